/// Joint, member and element blocks as the driver reads them.

#include "tests/support/deck.h"
#include "tests/support/shown.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using numbers = std::vector<int>;
using index = std::map<int, int>;

using decks::read;

/// A model of nothing but these joint lines.
SdReader read_joints(const std::string& lines, const std::string& unit = "UNIT MMS KN")
{
    return read(unit + "\nJOINT COORDINATES\n" + lines + "\nMEMBER INCIDENCES\nFINISH\n");
}

const char* const four_joints = "UNIT MMS KN\nJOINT COORDINATES\n11 0 0 0; 12 5000 0 0; 13 5000 3000 0; 14 0 3000 0\n";

/// Joints 11 to 14 and these member lines.
SdReader read_members(const std::string& lines)
{
    return read(four_joints + ("MEMBER INCIDENCES\n" + lines) + "\nFINISH\n");
}

template<class Record>
numbers ids_of(const std::vector<Record>& records)
{
    numbers ids;
    for (const Record& record : records)
        ids.push_back(record.id);
    return ids;
}

struct block_row {
    const char* why;
    const char* lines;
    numbers want;
};

const block_row joint_blocks[] = {
    {"two joints in a line", "1 0 0 0; 2 5000 0 0", {1, 2}},
    {"several lines", "1 0 0 0\n2 1 0 0;\n3 2 0 0;", {1, 2, 3}},
    {"order is that of the file", "9 0 0 0; 2 1 0 0; 5 2 0 0", {9, 2, 5}},
    {"items without a word build nothing", ";1 0 0 0;; ; 2 1 0 0;\n;\n ; ;", {1, 2}},
    {"a comment builds nothing", "* 7 0 0 0; 8 0 0 0\n1 0 0 0\n*\n2 1 0 0", {1, 2}},
    {"a ruler swallows nothing", "* ------\n1 0 0 0", {1}},
    {"a comment after a blank is an item like any other", " * note\n1 0 0 0", {0, 1}},
    {"a comment inside a continuation, too", "1 0 0 0; -\n* note\n2 1 0 0", {1, 0, 2}},
    {"a generated comment is not there", "1 0 0 0; -\n*{ note\n2 1 0 0", {1, 2}},
    {"lines may begin with a blank, a zero or a sign", " 1 0 0 0\n02 1 0 0\n-3 2 0 0", {1, 2, -3}},
    {"any line up to the member keyword is read", "1 0 0 0\nFOO\nSUPPORTS", {1, 0, 0}},
    {"continued lines are one", "1 0 0 0; 2 1 0 0; -\n3 2 0 -\n0; 4 3 0 0", {1, 2, 3, 4}},
    {"no joints", "", {}},
    {"a number twice gives two records", "1 0 0 0; 1 5 0 0", {1, 1}},
    {"a number past 32 bits", "99999999999 0 0 0", {2147483647}},
};

TEST(JointBlock, BuildsOneRecordPerItem)
{
    for (const block_row& c : joint_blocks)
        EXPECT_EQ(ids_of(read_joints(c.lines).nodes), c.want) << c.why;
}

TEST(JointBlock, TurnsAndScalesCoordinates)
{
    const SdReader plain = read_joints("1 0 0 0; 2 5000 10 20");
    EXPECT_EQ(plain.nodes.at(1).x, 20.0);
    EXPECT_EQ(plain.nodes.at(1).y, 5000.0);
    EXPECT_EQ(plain.nodes.at(1).z, 10.0);

    const SdReader metres = read_joints("1 1.5 2 -0.25", "UNIT METER KN");
    EXPECT_EQ(metres.nodes.at(0).x, -250.0);
    EXPECT_EQ(metres.nodes.at(0).y, 1500.0);
    EXPECT_EQ(metres.nodes.at(0).z, 2000.0);

    const SdReader feet = read_joints("1 10 0 0", "UNIT FEET KIP");
    EXPECT_EQ(feet.nodes.at(0).y, 3047.9999999999995) << "times 12 x 25.4, which is not 304.8";

    const SdReader unknown = read_joints("1 10 0 0", "UNIT METERS KN");
    EXPECT_EQ(unknown.nodes.at(0).y, 10.0) << "an unknown unit word";
}

TEST(JointBlock, IndexesTheLastOfEachNumber)
{
    const SdReader model = read_joints("7 0 0 0; 3 1 0 0; 7 2 0 0");
    EXPECT_EQ(model.node_index, (index{{3, 2}, {7, 3}}));
    EXPECT_EQ(model.locateNodeIndex(7), 1) << "a search finds the first";
}

TEST(JointBlock, EndsAtTheFirstMemberKeywordOnly)
{
    const SdReader model =
        read("UNIT MMS KN\nJOINT COORDINATES\n1 0 0 0\nMEMBER INCIDENCES\n1 1 1\nMEMBER INCIDENCES\n2 1 1\n");
    EXPECT_EQ(ids_of(model.nodes), numbers{1});
    EXPECT_EQ(ids_of(model.beams), numbers{1}) << "the second keyword begins with a letter and ends the block";
}

const block_row member_blocks[] = {
    {"a line of items", "1 11 12; 2 12 13", {1, 2}},
    {"joined lines: the item goes on after the mark", "1 11 12; 2 12 13; -\n3 13 14", {1, 2, 3}},
    {"joined inside an item: its further words are ignored", "1 11 12; 2 12 13 -\n3 13 14", {1, 2}},
    {"several lines", "1 11 12\n2 12 13;", {1, 2}},
    {"a line may begin with a blank", " 1 11 12\n  2 12 13", {1, 2}},
    {"items without a word build nothing", "1 11 12;; ;2 12 13;", {1, 2}},
    {"a line beginning with 0 ends the block", "1 11 12\n0 12 13\n3 13 14", {1}},
    {"so does a comment", "1 11 12\n* 2 12 13\n3 13 14", {1}},
    {"so does a letter", "1 11 12\nFOO\n3 13 14", {1}},
    {"so does a semicolon", "1 11 12\n;2 12 13\n3 13 14", {1}},
    {"so does a tab", "1 11 12\n\t2 12 13\n3 13 14", {1}},
    {"a word after a blank is a member 0", "1 11 12\n FOO\n3 13 14", {1, 0, 3}},
    {"blank lines are not there", "1 11 12\n\n  \n2 12 13", {1, 2}},
    {"a number twice gives two records", "5 11 12; 5 12 13", {5, 5}},
    {"no members", "", {}},
};

TEST(MemberBlock, BuildsOneRecordPerItem)
{
    for (const block_row& c : member_blocks)
        EXPECT_EQ(ids_of(read_members(c.lines).beams), c.want) << c.why;
}

TEST(MemberBlock, TurnsJointNumbersToPositions)
{
    const SdReader model = read_members("1 11 12; 2 14 13");
    EXPECT_EQ(shown_fields(model.beams, &SdBeam::node_start), "1 4");
    EXPECT_EQ(shown_fields(model.beams, &SdBeam::node_end), "2 3");
    EXPECT_EQ(model.beam_index, (index{{1, 1}, {2, 2}}));
    EXPECT_EQ(model.node_index, (index{{11, 1}, {12, 2}, {13, 3}, {14, 4}}));
}

TEST(MemberBlock, EntersUnknownJointsWithPositionZero)
{
    const SdReader model = read_members("1 11 77; 2 -5 12; 3 14; 4");
    EXPECT_EQ(shown_fields(model.beams, &SdBeam::node_start), "1 0 4 0");
    EXPECT_EQ(shown_fields(model.beams, &SdBeam::node_end), "0 2 0 0");
    EXPECT_EQ(shown(model.node_index), "-5: 0; 0: 0; 11: 1; 12: 2; 13: 3; 14: 4; 77: 0")
        << "a missing number reads as joint 0";
    EXPECT_EQ(model.nodes.size(), 4u);
}

TEST(MemberBlock, RefersToTheLastJointAndIndexesTheLastMemberOfANumber)
{
    const SdReader model = read("UNIT MMS KN\nJOINT COORDINATES\n1 0 0 0; 2 1 0 0; 1 2 0 0\nMEMBER INCIDENCES\n"
                                "5 1 2; 6 1 2; 5 2 2\n");
    EXPECT_EQ(model.beams.at(0).node_start, 3);
    EXPECT_EQ(model.beam_index, (index{{5, 3}, {6, 2}}));
    EXPECT_EQ(model.locateBeamIndex(5), 1);
}

const block_row shell_blocks[] = {
    {"an element", "ELEMENT INCIDENCES SHELL\n5 11 12 13 14", {5}},
    {"items and lines", "ELEMENT INCIDENCES SHELL\n5 11 12 13; 6 11 13 14\n7 11 12 14;", {5, 6, 7}},
    {"items without a word build nothing", "ELEMENT INCIDENCES SHELL\n5 11 12 13;; ;6 11 13 14;", {5, 6}},
    {"joined lines", "ELEMENT INCIDENCES SHELL\n5 11 12 13; -\n6 11 13 14", {5, 6}},
    {"a leading blank ends the block", "ELEMENT INCIDENCES SHELL\n 5 11 12 13 14", {}},
    {"even after elements", "ELEMENT INCIDENCES SHELL\n5 11 12 13\n 6 11 12 13\n7 11 12 13", {5}},
    {"so does 0", "ELEMENT INCIDENCES SHELL\n05 11 12 13", {}},
    {"so does a comment", "ELEMENT INCIDENCES SHELL\n5 11 12 13\n* x\n6 11 12 13", {5}},
    {"the keyword alone", "ELEMENT INCIDENCES SHELL", {}},
    {"the keyword needs SHELL", "ELEMENT INCIDENCES\n5 11 12 13 14", {}},
    {"and nothing after it", "ELEMENT INCIDENCES SHELL \n5 11 12 13 14", {}},
    {"other lines may come before", "FOO\n* x\nELEMENT INCIDENCES SHELL\n5 11 12 13 14", {5}},
    {"the first keyword counts", "ELEMENT INCIDENCES SHELL\n5 11 12 13\nELEMENT INCIDENCES SHELL\n6 11 12 13", {5}},
    {"a number twice gives two records", "ELEMENT INCIDENCES SHELL\n5 11 12 13; 5 12 13 14", {5, 5}},
};

TEST(ShellBlock, BuildsOneRecordPerItem)
{
    for (const block_row& c : shell_blocks) {
        SCOPED_TRACE(c.why);
        const SdReader model = read_members(c.lines);
        EXPECT_EQ(ids_of(model.shells), c.want);
        for (const SdShell& shell : model.shells) {
            EXPECT_EQ(shell.material, "C1");
            EXPECT_EQ(shell.thickness, 0);
        }
    }
}

TEST(ShellBlock, TurnsCornersToPositionsAndEntersUnknownOnes)
{
    const SdReader model = read_members("ELEMENT INCIDENCES SHELL\n5 14 13 12 11; 6 11 88 12; 5 12 X 14; 7");
    EXPECT_EQ(model.shells.at(0).node_ids, (numbers{4, 3, 2, 1}));
    EXPECT_EQ(model.shells.at(1).node_ids, (numbers{1, 0, 2}));
    EXPECT_EQ(model.shells.at(2).node_ids, (numbers{2, 0, 4}));
    EXPECT_EQ(model.shells.at(3).node_ids, numbers());
    EXPECT_EQ(model.node_index, (index{{0, 0}, {11, 1}, {12, 2}, {13, 3}, {14, 4}, {88, 0}}));
    EXPECT_EQ(model.shell_index, (index{{5, 3}, {6, 2}, {7, 4}}));
    EXPECT_EQ(model.locateShellIndex(5), 1);
}

TEST(ShellBlock, IsLookedForAfterTheMembersOnly)
{
    const SdReader model =
        read("ELEMENT INCIDENCES SHELL\n5 11 12 13\n" + std::string(four_joints) + "MEMBER INCIDENCES\n1 11 12\n");
    EXPECT_TRUE(model.shells.empty());
}

} // namespace
} // namespace STAAD
