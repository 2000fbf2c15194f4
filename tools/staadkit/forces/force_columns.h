/// The columns of a station: names, units, decimals on a screen.
///
/// Forces and moments are named by their place in the listing: which axes they go by, the listing's
/// heading says.
#ifndef TOOLS_STAADKIT_FORCES_FORCE_COLUMNS_H
#define TOOLS_STAADKIT_FORCES_FORCE_COLUMNS_H

#include "staad/model/force.h"

#include <span>

namespace tool {

struct force_column {
    const char* name;
    const char* unit;
    const char* key; ///< of JSON objects, and in the header of CSV
    double STAAD::ForcePoint::*value;
    int decimals;
};

inline constexpr force_column position_column = {"position", "mm", "position_mm", &STAAD::ForcePoint::position, 1};

inline constexpr force_column force_columns[] = {
    position_column,
    {"F1", "kN", "f1_kN", &STAAD::ForcePoint::f1, 3},
    {"F2", "kN", "f2_kN", &STAAD::ForcePoint::f2, 3},
    {"F3", "kN", "f3_kN", &STAAD::ForcePoint::f3, 3},
    {"M1", "kN*mm", "m1_kNmm", &STAAD::ForcePoint::m1, 1},
    {"M2", "kN*mm", "m2_kNmm", &STAAD::ForcePoint::m2, 1},
    {"M3", "kN*mm", "m3_kNmm", &STAAD::ForcePoint::m3, 1},
};

/// Without the position.
inline constexpr std::span<const force_column> force_components = std::span(force_columns).subspan(1);

} // namespace tool

#endif
