/// MEMBER OFFSET blocks and BETA lines.

#include "staad/model/sd_reader.h"
#include "tests/support/deck.h"
#include "tests/support/shown.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace STAAD {
namespace {

/// The model's three axes; "-" without an offset.
std::string offset(const SdOffset& of)
{
    const std::array<double, 3> all = {of.x, of.y, of.z};
    return of.x == 0.0 && of.y == 0.0 && of.z == 0.0 ? "-" : shown(all);
}

TEST(ReadOffset, TurnsTheThreeLengthsIntoTheModelsAxes)
{
    const char* metres = "UNIT METER KN";
    const struct {
        const char* why;
        const char* unit;
        const char* line;
        const char* start;
        const char* end;
    } rows[] = {
        {"file Z, X, Y, in mm", metres, "2 START 0.1 0.2 0.3", "300 100 200", "-"},
        {"the other end", metres, "2 END 0.1 0.2 -0.3", "-", "-300 100 200"},
        {"in feet", "UNIT FEET KIP", "2 START 1 0 10", "3048 304.8 0", "-"},
        {"missing lengths are 0", metres, "2 START 0.1", "0 100 0", "-"},
        {"all of them", metres, "2 END", "-", "-"},
        {"words are 0", metres, "2 START A 0.2 B", "0 0 200", "-"},
        {"words after do not matter", metres, "2 START 0.1 0.2 0.3 END", "300 100 200", "-"},
        {"any other first word is the end", metres, "2 STARTING 0.1 0.2 0.3", "-", "300 100 200"},
        {"even if START follows; the lengths are counted from the first word", metres, "2 LOCAL START 0.2 0.3", "-",
         "300 0 200"},
        {"a second word pushes the lengths on", metres, "2 START LOCAL 0.2 0.3 0.4", "300 0 200", "-"},
        {"0 ends the list and is the first word", metres, "2 0 START 0.2 0.3", "-", "300 0 200"},
        {"a number that only the description skips", metres, "2 +3 START 0.1 0.2 0.3", "300 100 200", "-"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.line) + ": " + row.why);
        const SdReader model = decks::read_frame({"MEMBER OFFSET", row.line}, {row.unit, 3});
        EXPECT_EQ(offset(decks::member(model, 2).offset_start), row.start);
        EXPECT_EQ(offset(decks::member(model, 2).offset_end), row.end);
        EXPECT_EQ(offset(decks::member(model, 3).offset_start), "-") << "no other member gets it";
        EXPECT_EQ(offset(decks::member(model, 3).offset_end), "-") << "no other member gets it";
    }
}

/// Numbers of the members with a start offset of 1 mm along the file's X.
std::string moved_members(const SdReader& model)
{
    EXPECT_EQ(model.beam_index.size(), 5U) << "no number enters the index";
    std::vector<int> found;
    for (const SdBeam& member : model.beams)
        if (offset(member.offset_start) == "0 1 0")
            found.push_back(member.id);
    return shown(found);
}

TEST(ReadOffset, GivesTheOffsetToTheListedMembers)
{
    const std::vector<decks::row> blocks = {
        {"no block", "1 START 1 0 0", "-"},
        {"a list with a range", "MEMBER OFFSET\n1 TO 3 5 START 1 0 0", "1 2 3 5"},
        {"several lines", "MEMBER OFFSET\n1 START 1 0 0\n4 START 1 0 0", "1 4"},
        {"unknown members are passed over", "MEMBER OFFSET\n99 2 START 1 0 0", "2"},
        {"no member listed", "MEMBER OFFSET\n0 START 1 0 0\n2 START 1 0 0", "2"},
        {"a line without START and END ends the block", "MEMBER OFFSET\n1 1 0 0\n2 START 1 0 0", "-"},
        {"a line that begins with a letter, too", "MEMBER OFFSET\nALL START 1 0 0\n2 START 1 0 0", "-"},
        {"or with a blank", "MEMBER OFFSET\n 1 START 1 0 0\n2 START 1 0 0", "-"},
        {"the keyword is a whole line", "MEMBER OFFSETS\n1 START 1 0 0", "-"},
        {"only the first block is read", "MEMBER OFFSET\n1 START 1 0 0\nMEMBER OFFSET\n2 START 1 0 0", "1"},
        {"a later line wins", "MEMBER OFFSET\n1 2 START 1 0 0\n2 START 5 0 0", "1"},
        {"the ends are apart from each other", "MEMBER OFFSET\n1 START 1 0 0\n1 END 5 0 0", "1"},
    };
    decks::expect_read(blocks, moved_members, {"UNIT MMS KN", 5});
}

/// Beta angles of the members 1, 2, 3 and 4.
std::string angles(const SdReader& model)
{
    EXPECT_EQ(model.beam_index.size(), 4U) << "no number enters the index";
    return shown_fields(model.beams, &SdBeam::beta);
}

TEST(ReadBeta, ReadsEveryLineThatBeginsWithTheKeyword)
{
    const std::vector<decks::row> rows = {
        {"range", "BETA 90 MEMB 1 TO 3", "90 90 90 0"},
        {"ALL is no number and has no number that exists", "BETA 90 ALL", "0 0 0 0"},
        {"not even after MEMB", "BETA 90 MEMB ALL", "0 0 0 0"},
        {"fractions and signs", "BETA -22.5 MEMB 2", "0 -22.5 0 0"},
        {"extra blanks", "BETA   45  MEMB  2   4", "0 45 0 45"},
        {"the third word is dropped, whatever it is", "BETA 90 1 2 3", "0 90 90 0"},
        {"later lines win", "BETA 90 MEMB 1 TO 4\nBETA 30 MEMB 2\nBETA X MEMB 3", "90 30 0 90"},
        {"lines need no block", "BETA 90 MEMB 1\nSUPPORTS\n1 FIXED\nBETA 30 MEMB 2", "90 30 0 0"},
        {"a word for the angle shifts the list away", "BETA ANGLE 90 MEMB 1", "0 0 0 0"},
        {"unknown members are passed over", "BETA 90 MEMB 99 1 TO 2 77", "90 90 0 0"},
        {"the list ends at 0", "BETA 90 MEMB 1 0 2", "90 0 0 0"},
        {"the keyword begins its line", " BETA 90 MEMB 1", "0 0 0 0"},
        {"with a blank after it", "BETA\t90 MEMB 1\nBETA90 MEMB 2", "0 0 0 0"},
        {"alone on its line", "BETA\nBETA ", "0 0 0 0"},
        {"small letters are no keyword", "beta 90 MEMB 1", "0 0 0 0"},
        {"continued lines are one", "BETA 90 MEMB 1 -\nTO 2 -\n4", "90 90 0 90"},
    };
    decks::expect_read(rows, angles, {"UNIT FEET KIP", 4});
    const SdReader before = decks::read("BETA 90 MEMB 2\n" + decks::frame_deck({}, {"UNIT FEET KIP", 4}));
    EXPECT_EQ(angles(before), "0 90 0 0") << "before the members, too";
}

TEST(ReadMemberData, OfTwoMembersWithOneNumberTheFirstIsMeant)
{
    const SdReader model = decks::read(
        decks::joined({"UNIT METER KN", "JOINT COORDINATES", "1 0 0 0; 2 1 0 0", "MEMBER INCIDENCES",
                       "1 1 2; 2 1 2; 1 2 1", "BETA 90 MEMB 1", "MEMBER OFFSET", "1 TO 2 END 0.1 0 0", "FINISH"}));
    EXPECT_EQ(model.beams.at(0).beta, 90.0);
    EXPECT_EQ(model.beams.at(2).beta, 0.0);
    EXPECT_EQ(offset(model.beams.at(0).offset_end), "0 100 0");
    EXPECT_EQ(offset(model.beams.at(1).offset_end), "0 100 0");
    EXPECT_EQ(offset(model.beams.at(2).offset_end), "-");
}

} // namespace
} // namespace STAAD
