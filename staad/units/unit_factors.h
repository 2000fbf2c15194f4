/// The words of a UNIT line and their factors.
#ifndef STAAD_UNITS_UNIT_FACTORS_H
#define STAAD_UNITS_UNIT_FACTORS_H

#include <string>
#include <string_view>

namespace STAAD::detail {

/// The factors of one UNIT line. A word that the tables do not know, or that is not there, leaves its
/// factor at 1; the unknown ones are named as written.
struct unit_factors {
    double length = 1.0;       ///< mm
    double force = 1.0;        ///< kN
    double force_length = 1.0; ///< kN*mm
    bool is_short = false;     ///< fewer than three words: no factor was taken from the line
    std::string unknown_length;
    std::string unknown_force;
    std::string unknown_moment;
};

unit_factors factors_of_unit_line(std::string_view line);

} // namespace STAAD::detail

#endif
