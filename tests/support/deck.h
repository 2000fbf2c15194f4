/// Small decks for the tests of the block readers: a row of members, and the lines under test after it.
#ifndef STAAD_TESTS_SUPPORT_DECK_H
#define STAAD_TESTS_SUPPORT_DECK_H

#include "staad/model/sd_reader.h"

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

/// Every line with a line feed behind it.
inline std::string joined(const lines& parts)
{
    std::string text;
    for (const std::string& part : parts)
        text.append(part).push_back('\n');
    return text;
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

/// The record of member `number` in a model read from one of the decks above.
inline const SdBeam& member(const SdReader& model, int number)
{
    return model.beams.at(static_cast<std::size_t>(number - 1));
}

} // namespace STAAD::decks

#endif
