/// MEMBER OFFSET blocks and BETA lines.

#include "staad/model/sd_reader.h"
#include "tests/support/deck.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using triple = std::array<double, 3>;

triple start_of(const SdBeam& member)
{
    return {member.offset_start.x, member.offset_start.y, member.offset_start.z};
}

triple end_of(const SdBeam& member)
{
    return {member.offset_end.x, member.offset_end.y, member.offset_end.z};
}

constexpr triple none = {0.0, 0.0, 0.0};

struct offset_line {
    const char* why;
    const char* unit;
    const char* line;
    triple start;
    triple end;
};

TEST(ReadOffset, TurnsTheThreeLengthsIntoTheModelsAxes)
{
    const char* metres = "UNIT METER KN";
    const offset_line rows[] = {
        {"file Z, X, Y, in mm", metres, "2 START 0.1 0.2 0.3", {300.0, 100.0, 200.0}, none},
        {"the other end", metres, "2 END 0.1 0.2 -0.3", none, {-300.0, 100.0, 200.0}},
        {"in feet", "UNIT FEET KIP", "2 START 1 0 10", {10 * (12 * 25.4), 12 * 25.4, 0.0}, none},
        {"missing lengths are 0", metres, "2 START 0.1", {0.0, 100.0, 0.0}, none},
        {"all of them", metres, "2 END", none, none},
        {"words are 0", metres, "2 START A 0.2 B", {0.0, 0.0, 200.0}, none},
        {"words after do not matter", metres, "2 START 0.1 0.2 0.3 END", {300.0, 100.0, 200.0}, none},
        {"any other first word is the end", metres, "2 STARTING 0.1 0.2 0.3", none, {300.0, 100.0, 200.0}},
        {"even if START follows; the lengths are counted from the first word",
         metres,
         "2 LOCAL START 0.2 0.3",
         none,
         {300.0, 0.0, 200.0}},
        {"a second word pushes the lengths on", metres, "2 START LOCAL 0.2 0.3 0.4", {300.0, 0.0, 200.0}, none},
        {"0 ends the list and is the first word", metres, "2 0 START 0.2 0.3", none, {300.0, 0.0, 200.0}},
        {"a number that only the description skips", metres, "2 +3 START 0.1 0.2 0.3", {300.0, 100.0, 200.0}, none},
    };
    for (const offset_line& row : rows) {
        SCOPED_TRACE(std::string(row.line) + ": " + row.why);
        const SdReader model = decks::read_frame({"MEMBER OFFSET", row.line}, {row.unit, 3});
        EXPECT_EQ(start_of(decks::member(model, 2)), row.start);
        EXPECT_EQ(end_of(decks::member(model, 2)), row.end);
        EXPECT_EQ(start_of(decks::member(model, 3)), none) << "no other member gets it";
        EXPECT_EQ(end_of(decks::member(model, 3)), none) << "no other member gets it";
    }
}

struct offset_block {
    const char* why;
    decks::lines lines;
    std::vector<int> want; ///< members with a start offset of 1 mm along the file's X
};

TEST(ReadOffset, GivesTheOffsetToTheListedMembers)
{
    const offset_block blocks[] = {
        {"no block", {"1 START 1 0 0"}, {}},
        {"a list with a range", {"MEMBER OFFSET", "1 TO 3 5 START 1 0 0"}, {1, 2, 3, 5}},
        {"several lines", {"MEMBER OFFSET", "1 START 1 0 0", "4 START 1 0 0"}, {1, 4}},
        {"unknown members are passed over", {"MEMBER OFFSET", "99 2 START 1 0 0"}, {2}},
        {"no member listed", {"MEMBER OFFSET", "0 START 1 0 0", "2 START 1 0 0"}, {2}},
        {"a line without START and END ends the block", {"MEMBER OFFSET", "1 1 0 0", "2 START 1 0 0"}, {}},
        {"a line that begins with a letter, too", {"MEMBER OFFSET", "ALL START 1 0 0", "2 START 1 0 0"}, {}},
        {"or with a blank", {"MEMBER OFFSET", " 1 START 1 0 0", "2 START 1 0 0"}, {}},
        {"the keyword is a whole line", {"MEMBER OFFSETS", "1 START 1 0 0"}, {}},
        {"only the first block is read", {"MEMBER OFFSET", "1 START 1 0 0", "MEMBER OFFSET", "2 START 1 0 0"}, {1}},
        {"a later line wins", {"MEMBER OFFSET", "1 2 START 1 0 0", "2 START 5 0 0"}, {1}},
        {"the ends are apart from each other", {"MEMBER OFFSET", "1 START 1 0 0", "1 END 5 0 0"}, {1}},
    };
    for (const offset_block& block : blocks) {
        const SdReader model = decks::read_frame(block.lines, {"UNIT MMS KN", 5});
        std::vector<int> found;
        for (const SdBeam& member : model.beams)
            if (start_of(member) == triple{0.0, 1.0, 0.0})
                found.push_back(member.id);
        EXPECT_EQ(found, block.want) << block.why;
        EXPECT_EQ(model.beam_index.size(), 5U) << block.why;
    }
}

struct beta_lines {
    const char* why;
    decks::lines lines;
    std::vector<double> want; ///< of members 1, 2, 3, 4
};

TEST(ReadBeta, ReadsEveryLineThatBeginsWithTheKeyword)
{
    const beta_lines rows[] = {
        {"range", {"BETA 90 MEMB 1 TO 3"}, {90, 90, 90, 0}},
        {"ALL is no number and has no number that exists", {"BETA 90 ALL"}, {0, 0, 0, 0}},
        {"not even after MEMB", {"BETA 90 MEMB ALL"}, {0, 0, 0, 0}},
        {"fractions and signs", {"BETA -22.5 MEMB 2"}, {0, -22.5, 0, 0}},
        {"extra blanks", {"BETA   45  MEMB  2   4"}, {0, 45, 0, 45}},
        {"the third word is dropped, whatever it is", {"BETA 90 1 2 3"}, {0, 90, 90, 0}},
        {"later lines win", {"BETA 90 MEMB 1 TO 4", "BETA 30 MEMB 2", "BETA X MEMB 3"}, {90, 30, 0, 90}},
        {"lines need no block", {"BETA 90 MEMB 1", "SUPPORTS", "1 FIXED", "BETA 30 MEMB 2"}, {90, 30, 0, 0}},
        {"a word for the angle shifts the list away", {"BETA ANGLE 90 MEMB 1"}, {0, 0, 0, 0}},
        {"unknown members are passed over", {"BETA 90 MEMB 99 1 TO 2 77"}, {90, 90, 0, 0}},
        {"the list ends at 0", {"BETA 90 MEMB 1 0 2"}, {90, 0, 0, 0}},
        {"the keyword begins its line", {" BETA 90 MEMB 1"}, {0, 0, 0, 0}},
        {"with a blank after it", {"BETA\t90 MEMB 1", "BETA90 MEMB 2"}, {0, 0, 0, 0}},
        {"alone on its line", {"BETA", "BETA "}, {0, 0, 0, 0}},
        {"small letters are no keyword", {"beta 90 MEMB 1"}, {0, 0, 0, 0}},
        {"continued lines are one", {"BETA 90 MEMB 1 -", "TO 2 -", "4"}, {90, 90, 0, 90}},
    };
    for (const beta_lines& row : rows) {
        const SdReader model = decks::read_frame(row.lines, {"UNIT FEET KIP", 4});
        std::vector<double> found;
        for (const SdBeam& member : model.beams)
            found.push_back(member.beta);
        EXPECT_EQ(found, row.want) << row.why;
        EXPECT_EQ(model.beam_index.size(), 4U) << row.why;
    }
}

TEST(ReadBeta, ReadsLinesBeforeTheMembers)
{
    const SdReader model = decks::read("BETA 90 MEMB 2\n" + decks::frame_deck({}));
    EXPECT_EQ(decks::member(model, 2).beta, 90.0);
}

TEST(ReadMemberData, OfTwoMembersWithOneNumberTheFirstIsMeant)
{
    const SdReader model = decks::read(
        decks::joined({"UNIT METER KN", "JOINT COORDINATES", "1 0 0 0; 2 1 0 0", "MEMBER INCIDENCES",
                       "1 1 2; 2 1 2; 1 2 1", "BETA 90 MEMB 1", "MEMBER OFFSET", "1 TO 2 END 0.1 0 0", "FINISH"}));
    EXPECT_EQ(model.beams.at(0).beta, 90.0);
    EXPECT_EQ(model.beams.at(2).beta, 0.0);
    EXPECT_EQ(end_of(model.beams.at(0)), (triple{0.0, 100.0, 0.0}));
    EXPECT_EQ(end_of(model.beams.at(1)), (triple{0.0, 100.0, 0.0}));
    EXPECT_EQ(end_of(model.beams.at(2)), none);
}

} // namespace
} // namespace STAAD
