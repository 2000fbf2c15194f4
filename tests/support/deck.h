/// Small decks for the tests of the block readers: a row of members, and the lines under test after it.
#ifndef STAAD_TESTS_SUPPORT_DECK_H
#define STAAD_TESTS_SUPPORT_DECK_H

#include "staad/model/sd_reader.h"
#include "staad/report/read_limit.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace STAAD::decks {

using lines = std::vector<std::string>;

/// What a deck has before the lines under test.
struct frame {
    std::string unit = "UNIT METER KN";
    int members = 5;
};

/// Physical line of the first line under test in `frame_deck` and `open_frame_deck`.
inline constexpr std::size_t first_line_under_test = 7;

/// Every line with a line feed after it.
inline std::string joined(const lines& parts)
{
    std::string text;
    for (const std::string& part : parts)
        text.append(part).push_back('\n');
    return text;
}

/// The same text with CR LF for every line feed.
inline std::string with_cr(const std::string& text)
{
    std::string changed;
    for (const char character : text)
        changed += character == '\n' ? std::string("\r\n") : std::string(1, character);
    return changed;
}

/// Unit line, joints, members and `parts`, which the text ends with. Member n runs from joint n to joint
/// n + 1, all in one line along the file's X, a length unit each. A line of no meaning ends the members, so
/// that a part may begin with a number.
inline std::string open_frame_deck(const lines& parts, const frame& shape = {})
{
    std::string joints;
    for (int number = 1; number <= shape.members + 1; ++number)
        joints += std::to_string(number) + " " + std::to_string(number - 1) + " 0 0; ";
    std::string members;
    for (int number = 1; number <= shape.members; ++number)
        members += std::to_string(number) + " " + std::to_string(number) + " " + std::to_string(number + 1) + "; ";
    return joined({shape.unit, "JOINT COORDINATES", joints, "MEMBER INCIDENCES", members, "PRINT ALL"}) + joined(parts);
}

/// The same, ended as a file is: by a FINISH line.
inline std::string frame_deck(const lines& parts, const frame& shape = {})
{
    return open_frame_deck(parts, shape) + "FINISH\n";
}

/// Reads a text that holds a model.
inline SdReader read(const std::string& text)
{
    SdReader model;
    EXPECT_TRUE(model.ReadSDDataFromText(text)) << text;
    return model;
}

inline SdReader read_frame(const lines& parts, const frame& shape = {})
{
    return read(frame_deck(parts, shape));
}

/// A row of a table of cases: lines of a deck, and what a model read from it holds.
struct row {
    const char* why;
    std::string lines;
    std::string want;
};

/// Reads the lines of each row after the members of a frame and the line `block`; `see` puts what the table is about
/// in one line.
template<class See>
void expect_read(const std::vector<row>& rows, See see, const frame& shape = {}, const std::string& block = "")
{
    for (const row& one : rows)
        EXPECT_EQ(see(read_frame({block, one.lines}, shape)), one.want) << one.lines << ": " << one.why;
}

/// The record of member `number` in a model read from one of the decks above.
inline const SdBeam& member(const SdReader& model, int number)
{
    return model.beams.at(static_cast<std::size_t>(number - 1));
}

/// Calls `take`, which must pass a limit of a reading at physical lines `first` to `last`.
template<class Take>
void expect_limit(Take take, std::size_t first, std::size_t last, std::size_t limit)
{
    try {
        take();
        ADD_FAILURE() << "no exception";
    } catch (const ReadLimitError& error) {
        EXPECT_EQ(error.first_line(), first);
        EXPECT_EQ(error.last_line(), last);
        EXPECT_EQ(error.limit(), limit);
    }
}

} // namespace STAAD::decks

#endif
