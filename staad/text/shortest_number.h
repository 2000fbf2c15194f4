/// The shortest decimal that stands for a number after a conversion.
#ifndef STAAD_TEXT_SHORTEST_NUMBER_H
#define STAAD_TEXT_SHORTEST_NUMBER_H

#include "staad/text/number.h"

#include <charconv>
#include <cmath>
#include <string>

namespace STAAD::detail {

/// A double as the shortest text that reads back as it, without an exponent where that is not long.
inline std::string shortest_text(double value)
{
    const double size = std::abs(value);
    const bool is_plain = value == 0 || (size >= 1e-5 && size < 1e15);
    char digits[64];
    const auto end = is_plain ? std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed)
                              : std::to_chars(digits, digits + sizeof digits, value, std::chars_format::scientific);
    return {digits, end.ptr};
}

/// The shortest decimal near `guess` for which `fits(its value)` holds; `guess` itself where none does. For numbers
/// of one unit that a text has in another: `guess` is converted back, which may round, and `fits` converts forth.
template<class Fits>
std::string shortest_fitting(double guess, Fits fits)
{
    constexpr int most_digits = 17;
    for (int count = 1; count <= most_digits; ++count) {
        char digits[64];
        const auto end = std::to_chars(digits, digits + sizeof digits, guess, std::chars_format::scientific, count - 1);
        const double value = to_real({digits, static_cast<std::size_t>(end.ptr - digits)});
        if (fits(value))
            return shortest_text(value);
    }
    for (const double beside : {std::nextafter(guess, HUGE_VAL), std::nextafter(guess, -HUGE_VAL)})
        if (fits(beside))
            return shortest_text(beside);
    return shortest_text(guess);
}

} // namespace STAAD::detail

#endif
