/// The six degrees of freedom as supports and releases name them.
#ifndef STAAD_STRUCTURE_BLOCKS_DEGREE_WORDS_H
#define STAAD_STRUCTURE_BLOCKS_DEGREE_WORDS_H

#include "staad/deck/row_words.h"
#include "staad/structure/values.h"
#include "staad/text/words.h"
#include "staad/units/exact_units.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace STAAD::detail {

/// 0 to 5 for FX FY FZ MX MY MZ; none of another word.
inline std::optional<std::size_t> degree_of(std::string_view word) noexcept
{
    if (word.size() != 2)
        return std::nullopt;
    const char kind = to_upper_ascii(word[0]);
    const char axis = to_upper_ascii(word[1]);
    if ((kind != 'F' && kind != 'M') || axis < 'X' || axis > 'Z')
        return std::nullopt;
    return static_cast<std::size_t>(axis - 'X') + (kind == 'M' ? 3 : 0);
}

/// A spring and the direction that it acts in.
struct spring_words {
    std::size_t degree = 0; ///< 0 to 5
    double value = 0.0;     ///< kN/mm, kN*mm/degree
};

/// Takes "KFX value" and its like; none at other words, which stay.
inline std::optional<spring_words> take_spring(row_words& words, const exact_units& units) noexcept
{
    const std::string_view word = words.peek();
    const bool has_k = !word.empty() && to_upper_ascii(word.front()) == 'K';
    const std::optional<std::size_t> degree = has_k ? degree_of(word.substr(1)) : std::nullopt;
    if (!degree)
        return std::nullopt;
    row_words ahead = words;
    std::string_view taken;
    ahead.next(taken);
    const std::optional<double> value = number_words(ahead).next();
    if (!value)
        return std::nullopt;
    words = ahead;
    return spring_words{*degree, *degree < 3 ? units.force_per_length_of(*value) : units.moment_of(*value)};
}

} // namespace STAAD::detail

#endif
