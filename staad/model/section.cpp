#include "staad/model/section.h"

#include "staad/model/section_family.h"

namespace STAAD {

bool Section::operator==(const Section& other) const
{
    return property == other.property;
}

bool Section::operator<(const Section& other) const
{
    return property < other.property;
}

void SdUserSectionTable::AddRecord(const std::string& name, const std::string& dimensions)
{
    records[name] = dimensions;
}

void SdUserSectionTable::SetType(UsrDefineSectionType family)
{
    if (family >= WideFlange && family <= Prismatic)
        type = detail::section_family_words[family];
}

} // namespace STAAD
