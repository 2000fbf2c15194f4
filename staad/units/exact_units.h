/// The unit words that decks use, with their exact factors.
#ifndef STAAD_UNITS_EXACT_UNITS_H
#define STAAD_UNITS_EXACT_UNITS_H

#include <optional>
#include <string>
#include <string_view>

namespace STAAD::detail {

/// mm of a length word, in any spelling and case: "METER", "FEET", "FT", "MMS". None: it is no length.
std::optional<double> exact_length(std::string_view word) noexcept;

/// kN of a force word: "KN", "KIPS", "NEWTON", "MTON". None: it is no force.
std::optional<double> exact_force(std::string_view word) noexcept;

/// The units that are in force at a place of a deck.
struct exact_units {
    double length = 1.0;     ///< mm
    double force = 1.0;      ///< kN
    std::string length_word; ///< as written; empty: no line has said it yet
    std::string force_word;

    // Values of the deck in the units of the model. Divided and multiplied one after the other: a factor made
    // beforehand would be one rounding more.
    double length_of(double value) const noexcept { return value * length; }                        ///< mm
    double area_of(double value) const noexcept { return value * length * length; }                 ///< mm2
    double inertia_of(double value) const noexcept { return area_of(area_of(value)); }              ///< mm4
    double force_of(double value) const noexcept { return value * force; }                          ///< kN
    double moment_of(double value) const noexcept { return value * force * length; }                ///< kN*mm
    double force_per_length_of(double value) const noexcept { return value * force / length; }      ///< kN/mm
    double pressure_of(double value) const noexcept { return value * force / length / length; }     ///< kN/mm2
    double force_per_volume_of(double value) const noexcept { return pressure_of(value) / length; } ///< kN/mm3
};

} // namespace STAAD::detail

#endif
