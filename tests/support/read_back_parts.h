/// What the parts of read_back share.
#ifndef STAAD_TESTS_SUPPORT_READ_BACK_PARTS_H
#define STAAD_TESTS_SUPPORT_READ_BACK_PARTS_H

#include "staad/model/sd_reader.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace STAAD::read_back_parts {

inline constexpr double mm_per_metre = 1000.0;

/// The number after it was printed in the given form and read.
inline double printed(const char* form, double value)
{
    char text[512];
    std::snprintf(text, sizeof text, form, value);
    return std::strtod(text, nullptr);
}

template<class Number>
std::vector<Number> sorted(std::vector<Number> numbers)
{
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

/// The number that a member, joint or shell at this index is written with.
inline int position(std::size_t index)
{
    return static_cast<int>(index) + 1;
}

inline bool begins(const std::string& text, const char* beginning)
{
    return text.rfind(beginning, 0) == 0;
}

/// Sections of `from` to the members of `to`, which have no section yet.
void read_sections(const SdReader& from, SdReader& to);
/// Materials of members and shells; after the sections, which set some, too.
void read_materials(const SdReader& from, SdReader& to);
/// Load cases, definitions and the members that carry them.
void read_loads(const SdReader& from, SdReader& to);

} // namespace STAAD::read_back_parts

#endif
