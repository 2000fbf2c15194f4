#include "staad/model/section.h"
#include "staad/reader/words.h"

#include <utility>

namespace STAAD {
namespace {

constexpr const char* section_types[] = {"ST", "TAPERED", "PRIS"};

} // namespace

Section::Section(std::string material_name, std::string property_text)
    : material(std::move(material_name)), property(detail::to_upper_ascii(property_text))
{
    for (const char* const candidate : section_types) {
        if (detail::starts_with(property, candidate)) {
            type = candidate;
            return;
        }
    }
}

} // namespace STAAD
