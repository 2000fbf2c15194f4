// Records and findings as short texts, for tables of what a deck gives.
#ifndef STAAD_TESTS_STRUCTURE_SHOWN_RECORDS_H
#define STAAD_TESTS_STRUCTURE_SHOWN_RECORDS_H

#include "staad/report/read_limit.h"
#include "tests/unit/structure/read_deck.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace STAAD::test {

inline void add_shown(std::string& shown, const std::string& next)
{
    shown += (shown.empty() ? "" : " ") + next;
}

/// "1:0,2500,3000": number and place, mm in the model frame, to a millionth.
inline std::string shown_joints(const Structure& structure)
{
    std::string shown;
    for (const Structure::Joint& joint : structure.joints) {
        char text[128];
        const auto plain = [](double value) {
            return std::abs(value) < 1e9 ? std::round(value * 1e6) / 1e6 + 0.0 : value;
        };
        std::snprintf(text, sizeof text, "%d:%.9g,%.9g,%.9g", joint.number, plain(joint.x), plain(joint.y),
                      plain(joint.z));
        add_shown(shown, text);
    }
    return shown;
}

/// "5:1-2": number and the numbers of joints; "?" for one that is not there.
template<class Joints>
std::string shown_record(const Structure& structure, int number, const Joints& joints, std::size_t fewest)
{
    std::string shown = std::to_string(number) + ":";
    std::size_t size = joints.size();
    while (size > fewest && joints[size - 1] < 0)
        --size;
    for (std::size_t i = 0; i < size; ++i)
        shown +=
            (i == 0 ? "" : "-") +
            (joints[i] < 0 ? "?" : std::to_string(structure.joints.at(static_cast<std::size_t>(joints[i])).number));
    return shown;
}

inline std::string shown_members(const Structure& structure)
{
    std::string shown;
    for (const Structure::Member& member : structure.members)
        add_shown(shown, shown_record(structure, member.number, std::vector<int>{member.start, member.end}, 2));
    return shown;
}

/// Of elements, solids, surfaces.
template<class Records>
std::string shown_corners(const Structure& structure, const Records& records)
{
    std::string shown;
    for (const auto& record : records)
        add_shown(shown, shown_record(structure, record.number, record.corners, 3));
    return shown;
}

/// "line-unread@4": code and first line of what is reported about the geometry and units.
inline std::string shown_findings(const ReadReport& report)
{
    constexpr std::string_view codes[] = {"line-unread",     "item-short",   "joint-unknown", "member-unknown",
                                          "element-unknown", "number-again", "two-items",     "unit-word",
                                          "no-unit",         "no-joints"};
    std::string shown;
    for (const Finding& finding : report.findings)
        if (std::find(std::begin(codes), std::end(codes), finding.code) != std::end(codes))
            add_shown(shown, finding.code + "@" + std::to_string(finding.first_line));
    return shown;
}

/// The line at which a text asks for more than a reading holds; 0: it is read.
inline std::size_t line_of_limit(const std::string& text)
{
    try {
        read_text(text);
        return 0;
    } catch (const ReadLimitError& error) {
        return error.first_line();
    }
}

} // namespace STAAD::test

#endif
