/// What the records of a structure have in common in JSON: numbers of the deck in the place of positions, and lines.
#ifndef TOOLS_STAADKIT_DUMP_STRUCTURE_ITEMS_H
#define TOOLS_STAADKIT_DUMP_STRUCTURE_ITEMS_H

#include "output/json_writer.h"
#include "staad/structure/structure.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <vector>

namespace STAAD {

// Beside their types, where the JSON writer finds them.

template<class Visit>
void each_field(const Structure::NamedValue& named, Visit visit)
{
    visit("name", named.name);
    visit("value", named.value);
}

template<class Visit>
void each_field(const Structure::CaseFactor& term, Visit visit)
{
    visit("case", term.number);
    visit("is_reference", term.is_reference);
    visit("factor", term.factor);
}

template<class Visit>
void each_field(const Structure::Cracked& factors, Visit visit)
{
    visit("ax", factors.ax);
    visit("ay", factors.ay);
    visit("az", factors.az);
    visit("ix", factors.ix);
    visit("iy", factors.iy);
    visit("iz", factors.iz);
}

} // namespace STAAD

namespace tool {

using STAAD::Structure;

using line_list = std::vector<std::array<std::size_t, 2>>;

/// [[first, last], ...] of the sources in their order, each lines once; of records without a source empty.
template<class Sources>
line_list lines_of(const Structure& structure, const Sources& sources)
{
    line_list lines;
    for (const Structure::Source source : sources) {
        const STAAD::FileLines place = STAAD::origin(structure, source);
        const std::array<std::size_t, 2> pair = {place.first, place.last};
        if (place.first != 0 && (lines.empty() || lines.back() != pair))
            lines.push_back(pair);
    }
    return lines;
}

inline line_list lines_of(const Structure& structure, Structure::Source source)
{
    return lines_of(structure, std::initializer_list<Structure::Source>{source});
}

/// The same of a record with few sources: none of its lines twice.
inline line_list different_lines_of(const Structure& structure, std::initializer_list<Structure::Source> sources)
{
    line_list lines = lines_of(structure, sources);
    auto past = lines.begin();
    for (const auto& pair : lines) {
        if (std::find(lines.begin(), past, pair) == past)
            *past++ = pair;
    }
    lines.erase(past, lines.end());
    return lines;
}

/// Whether `position` is one of a record in `records`.
template<class Records>
bool has_position(const Records& records, int position) noexcept
{
    return position >= 0 && static_cast<std::size_t>(position) < records.size();
}

/// The record's number in the deck; none for position -1.
template<class Records>
std::optional<int> number_at(const Records& records, int position)
{
    if (!has_position(records, position))
        return std::nullopt;
    return records[static_cast<std::size_t>(position)].number;
}

/// The number that JSON gives a record without one in the deck: its position, from 1; none for -1.
inline std::optional<int> counted(int position)
{
    return position < 0 ? std::nullopt : std::optional<int>(position + 1);
}

/// The numbers in the deck of records at `positions`, -1 left out.
template<class Records, class Positions>
std::vector<int> numbers_at(const Records& records, const Positions& positions)
{
    std::vector<int> numbers;
    for (const int position : positions) {
        if (has_position(records, position))
            numbers.push_back(records[static_cast<std::size_t>(position)].number);
    }
    return numbers;
}

inline std::array<double, 3> components(const STAAD::Vector3& vector)
{
    return {vector.x, vector.y, vector.z};
}

} // namespace tool

#endif
