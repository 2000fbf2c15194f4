#include "staad/model/section.h"
#include "staad/text/words.h"

#include <utility>

namespace STAAD {
namespace {

constexpr const char* section_types[] = {"ST", "TAPERED", "PRIS"};

} // namespace

Section::Section(std::string material_name, std::string property_text)
    : material(std::move(material_name)), property(std::move(property_text))
{
    for (char& c : property)
        c = detail::to_upper_ascii(c);
    for (const char* const candidate : section_types) {
        if (detail::starts_with(property, candidate)) {
            type = candidate;
            return;
        }
    }
}

} // namespace STAAD
