/// Numbers and counts as people write them, independent of the locale.
#ifndef TOOLS_STAADKIT_OUTPUT_PHRASES_H
#define TOOLS_STAADKIT_OUTPUT_PHRASES_H

#include "staad/model/load.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// "1 joint", "2 joints".
std::string count_of(std::size_t count, std::string_view noun);

/// With at most seven significant digits, no trailing zeros.
std::string short_number(double number);
/// With `digits` decimals; never "-0.00".
std::string fixed_number(double number, int digits);

/// A length in mm as metres: one decimal, two where the second is not 0.
std::string metres(double length);

/// Storeys between ascending levels in mm: "3 (4.20 + 2 x 3.60 m), base at -0.50 m", at most twelve
/// terms.
std::string storeys_in_words(const std::vector<double>& levels);

/// "dead", "live", "wind", "seismic"; "unknown" for all others.
const char* load_type_word(STAAD::LoadCase::LoadType type) noexcept;

/// "1 TO 9 12 15 TO 20" in ascending order, as the lists of a .std file have it; of very many runs the first
/// ones and "...".
std::string run_list(const std::vector<int>& numbers);

} // namespace tool

#endif
