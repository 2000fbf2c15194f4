/// Text to numbers, by the rules of C's atoi and atof in the "C" locale, with a defined value for every text.
/// Nothing else in the library turns text into numbers.
#ifndef STAAD_TEXT_NUMBER_H
#define STAAD_TEXT_NUMBER_H

#include "staad/export.h"

#include <cstddef>
#include <string_view>

namespace STAAD {

/// The number at the front of a text.
template<class Number>
struct number_parse {
    Number value = 0;     ///< 0 without digits; the nearest that fits if the number does not
    std::size_t size = 0; ///< characters read, white space and sign among them; 0: there is no number
    bool fits = true;     ///< false: the number is past the range of its type

    bool is_number() const noexcept { return size != 0; }
    /// Whether all of `text`, from which it was read, is the number, and fits.
    bool is_all_of(std::string_view text) const noexcept { return is_number() && fits && size == text.size(); }
};

/// White space, sign, decimal digits; what follows is left. Past the range of 32 bits the nearest limit.
/// Cost: linear in the white space and digits.
STAAD_API number_parse<int> parse_int(std::string_view text) noexcept;

/// White space, sign, decimal digits with an optional point, optional exponent e or E; what follows is
/// left. No hexadecimal, no "inf", no "nan". Past the range of a double the largest double, below it 0,
/// both with the sign of the text. Cost: linear in the characters read.
STAAD_API number_parse<double> parse_real(std::string_view text) noexcept;

namespace detail {

/// The value alone, for the many places where a word that is not a number counts as 0.
inline int to_int(std::string_view text) noexcept
{
    return parse_int(text).value;
}
inline double to_real(std::string_view text) noexcept
{
    return parse_real(text).value;
}

/// Toward zero; past the range of 32 bits the nearest limit; 0 for NaN.
int truncate_to_int(double value) noexcept;

} // namespace detail
} // namespace STAAD

#endif
