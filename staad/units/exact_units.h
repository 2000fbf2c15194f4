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

    double area() const noexcept { return length * length; }
    double inertia() const noexcept { return area() * area(); }
    double moment() const noexcept { return force * length; }
    double force_per_length() const noexcept { return force / length; }
    double force_per_area() const noexcept { return force / area(); }
    double force_per_volume() const noexcept { return force / (area() * length); }
};

} // namespace STAAD::detail

#endif
