/// Text to numbers, by the rules of C's atoi and atof in the "C" locale with every answer defined.
/// Nothing else in the library turns text into numbers.
#ifndef STAAD_TEXT_NUMBER_H
#define STAAD_TEXT_NUMBER_H

#include <string_view>

namespace STAAD::detail {

/// White space, sign, decimal digits; what follows is ignored. 0 without digits; past the range of
/// 32 bits the nearest limit.
int to_int(std::string_view text) noexcept;

/// White space, sign, decimal digits with an optional point, optional exponent e or E; what follows
/// is ignored. 0 without digits. No hexadecimal, no "inf", no "nan". Past the range of a double the
/// largest double, below it 0, both with the sign of the text.
double to_real(std::string_view text) noexcept;

/// Toward zero; past the range of 32 bits the nearest limit; 0 for NaN.
int truncate_to_int(double value) noexcept;

} // namespace STAAD::detail

#endif
