// Loads in a few words, and tables of cases that compare these.
#ifndef STAAD_TESTS_STRUCTURE_DESCRIBED_LOADS_H
#define STAAD_TESTS_STRUCTURE_DESCRIBED_LOADS_H

#include "tests/unit/structure/read_deck.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

namespace STAAD::test {

inline std::string described(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.9g", value);
    return text;
}

inline std::string described(const std::vector<Structure::CaseFactor>& sum)
{
    std::string text;
    for (const Structure::CaseFactor& term : sum)
        text += std::string(text.empty() ? "" : " ") + (term.is_reference ? "R" : "") + std::to_string(term.number) +
                "*" + described(term.factor);
    return text;
}

inline std::string described(const std::vector<Structure::Range>& ranges)
{
    std::string text;
    for (const Structure::Range& range : ranges)
        text += std::string(text.empty() ? "" : ",") + std::to_string(range.first) +
                (range.last == range.first ? "" : "-" + std::to_string(range.last));
    return text;
}

inline std::string described(const Structure::Box& box)
{
    return "[" + described(box.low.x) + " " + described(box.high.x) + "|" + described(box.low.y) + " " +
           described(box.high.y) + "|" + described(box.low.z) + " " + described(box.high.z) + "]";
}

/// "uniform GZ on 0-2: -0.005", positions and directions of the model; of loads on members and elements "0-5/0-1".
inline std::string described(const Structure::Load& load)
{
    constexpr const char* kinds[] = {"joint",    "uniform", "umoment", "point",  "moment",      "linear", "trapezoid",
                                     "pressure", "partial", "at",      "corner", "trapezoidal", "weight", "floor",
                                     "one-way",  "area",    "temp",    "strain", "cases",       "kept"};
    constexpr const char* directions[] = {"", " X", " Y", " Z", " GX", " GY", " GZ", " PX", " PY", " PZ"};
    std::string text = kinds[static_cast<std::size_t>(load.kind)];
    text += directions[static_cast<std::size_t>(load.direction)];
    if (load.along != 0)
        text += std::string(" along ") + load.along;
    if (load.towards >= 0)
        text += " to " + std::to_string(load.towards);
    if (load.group >= 0)
        text += " group " + std::to_string(load.group);
    if (load.box)
        text += " " + described(*load.box);
    if (!load.on.empty() || !load.on_elements.empty())
        text += " on " + described(load.on) + (load.on_elements.empty() ? "" : "/" + described(load.on_elements));
    for (std::size_t i = 0; i < load.value_count; ++i)
        text += (i == 0 ? ": " : " ") + described(load.values[i]);
    return load.sum.empty() ? text : text + " " + described(load.sum);
}

/// All loads of all cases, the reference cases first, with "; " between.
inline std::string described_loads(const Structure& structure)
{
    std::string text;
    for (const auto* cases : {&structure.reference_cases, &structure.load_cases})
        for (const Structure::LoadCase& each : *cases)
            for (const Structure::Load& load : each.loads)
                text += (text.empty() ? "" : "; ") + described(load);
    return text;
}

struct load_row {
    const char* form;
    std::vector<std::string> lines; // after the frame
    const char* loads;
    const char* warnings;
    const char* why;
    const char* set = "";
};

inline void check_loads(const std::vector<load_row>& rows)
{
    for (const load_row& row : rows) {
        SCOPED_TRACE(std::string(row.form) + ": " + row.why);
        const deck_reading reading = read_in_frame(row.lines, row.set);
        EXPECT_EQ(described_loads(reading.structure), row.loads);
        EXPECT_EQ(warnings(reading.report), row.warnings);
    }
}

} // namespace STAAD::test

#endif
