/// The family words of user section tables, by UsrDefineSectionType.
#ifndef STAAD_MODEL_SECTION_FAMILY_H
#define STAAD_MODEL_SECTION_FAMILY_H

#include <string_view>

namespace STAAD::detail {

inline constexpr std::string_view section_family_words[] = {
    "", // UnknownSection has no word
    "WIDE FLANGE",
    "CHANNEL",
    "ANGLE",
    "DOUBLE ANGLE",
    "TEE",
    "PIPE",
    "TUBE",
    "GENERAL",
    "ISECTION",
    "PRISMATIC",
};

} // namespace STAAD::detail

#endif
