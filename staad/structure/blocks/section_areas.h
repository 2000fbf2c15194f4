/// Areas of sections that their values give.
#ifndef STAAD_STRUCTURE_BLOCKS_SECTION_AREAS_H
#define STAAD_STRUCTURE_BLOCKS_SECTION_AREAS_H

#include "staad/structure/structure.h"

#include <string_view>

namespace STAAD::detail {

/// The value of that name; null if the section has none.
const double* find_value(const Structure::Section& section, std::string_view name) noexcept;

/// mm2; 0 where the values do not say.
double area_of(const Structure::Section& section) noexcept;

} // namespace STAAD::detail

#endif
