// Decks of a few lines, read the complete way: for tables of cases.
#ifndef STAAD_TESTS_STRUCTURE_READ_DECK_H
#define STAAD_TESTS_STRUCTURE_READ_DECK_H

#include "staad/report/read_report.h"
#include "staad/structure/read_structure.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace STAAD::test {

/// What a deck gives. Where it gives no structure, that is empty and `is_given` says so.
struct deck_reading {
    Structure structure;
    ReadReport report;
    bool is_given = false;
};

inline deck_reading read_text(std::string text)
{
    deck_reading reading;
    const Deck deck(std::move(text));
    if (auto structure = read_structure(deck, reading.report)) {
        reading.structure = *std::move(structure);
        reading.is_given = true;
    }
    return reading;
}

/// The lines of the frame that most tests add theirs to. Number and position of joints are one apart, and so are
/// those of members; elements 11 and 12 have positions 0 and 1. In model axes a joint "n x y z" stands at (z, x, y)
/// m, after SET Z UP at (x, y, z) m.
inline constexpr const char* frame_lines[] = {
    "STAAD SPACE A FRAME",
    "UNIT METER KN",
    "JOINT COORDINATES",
    "1 0 0 0; 2 0 3 0; 3 4 3 0; 4 4 0 0",
    "5 0 0 5; 6 0 3 5; 7 4 3 5; 8 4 0 5",
    "MEMBER INCIDENCES",
    "1 1 2; 2 2 3; 3 3 4; 4 2 6; 5 3 7; 6 5 6",
    "ELEMENT INCIDENCES SHELL",
    "11 2 3 7 6; 12 1 2 3",
};
/// The frame, and the line of SET or of nothing before it: the first line of a case is the next one.
inline constexpr std::size_t frame_line_count = sizeof(frame_lines) / sizeof(frame_lines[0]) + 1;

/// The frame with lines after it; `set` stands before it: "SET Z UP".
inline deck_reading read_in_frame(const std::vector<std::string>& lines, const std::string& set = "")
{
    std::string text = set + "\n";
    for (const char* line : frame_lines)
        text += std::string(line) + "\n";
    for (const std::string& line : lines)
        text += line + "\n";
    return read_text(std::move(text));
}

/// Codes of the findings above notes, each as often as it counts, with a blank between: "line-unread".
inline std::string warnings(const ReadReport& report)
{
    std::string codes;
    for (const Finding& finding : report.findings)
        for (std::size_t i = 0; finding.severity > Finding::Note && i < finding.count; ++i)
            codes += (codes.empty() ? "" : " ") + finding.code;
    return codes;
}

/// The lines of a source, counted from the first line after the frame: 1 is that one.
inline std::size_t case_line(const Structure& structure, Structure::Source source)
{
    const std::size_t line = origin(structure, source).first;
    return line > frame_line_count ? line - frame_line_count : 0;
}

} // namespace STAAD::test

#endif
