/// Joints: places, lines of them, copies, systems of coordinates, units.

#include "tests/unit/structure/shown_records.h"

#include <gtest/gtest.h>

#include <string>

namespace STAAD {
namespace {

/// Line 4 of a deck is the first line of a case.
std::string joint_deck(const std::string& kind, const std::string& set, const std::string& head,
                       const std::string& lines)
{
    return "STAAD " + kind + "\nUNIT METER KN\n" + (set.empty() ? "" : set + "\n") + "JOINT COORDINATES" + head + "\n" +
           lines + "\n";
}

struct joint_case {
    const char* form;
    const char* lines;
    const char* joints;   ///< with the file's Y up: z, x, y of the deck, mm
    const char* findings; ///< line 4 is the first one
    const char* why;
};

void expect_joints(const joint_case& each, const std::string& kind, const std::string& set = "",
                   const std::string& head = "")
{
    SCOPED_TRACE(std::string(each.form) + ": " + each.why);
    const test::deck_reading read = test::read_text(joint_deck(kind, set, head, each.lines));
    EXPECT_EQ(test::shown_joints(read.structure), each.joints);
    EXPECT_EQ(test::shown_findings(read.report), each.findings);
}

TEST(ReadJoints, OfEveryForm)
{
    const joint_case cases[] = {
        {"joint-coordinates", "1 1 2 3\n2 .5 -1.5e0 +0", "1:3000,1000,2000 2:0,500,-1500", "", "numbers of any form"},
        {"joint", "1 1 0 0; 2 2 -\n0 0; 3 3 0 0;", "1:0,1000,0 2:0,2000,0 3:0,3000,0", "", "items, one continued"},
        {"joint", "1 1 0 0; X 2 0 0; 3 3 0 0", "1:0,1000,0 3:0,3000,0", "line-unread@4", "the other items go on"},
        {"joint", "5 1 0 0\n0 1 0 0\n1.5 1 0 0\n-1 0 0 0", "5:0,1000,0", "line-unread@5 line-unread@6 line-unread@7",
         "numbers that no joint can have"},
        {"joint", "1 1 0 0 X", "1:0,1000,0", "line-unread@4", "a word after it"},
        {"joint", "1 1e306 0 0\n2 0 0 0", "2:0,0,0", "line-unread@4", "too far out for numbers in mm"},
        {"repeated-number", "1 3*2.5", "1:2500,2500,2500", "", "three of them"},
        {"repeated-number", "1 0 2*1; 2 0 0 0*1", "1:1000,0,1000 2:0,0,0", "line-unread@4 item-short@4",
         "a count of none is no number"},
        {"repeated-number", "1 10*0", "1:0,0,0", "line-unread@4", "more than any joint has"},
        {"joint-of-two-coordinates", "1 1 2\n2 1\n3", "1:0,1000,2000 2:0,1000,0 3:0,0,0",
         "item-short@4 item-short@5 item-short@6", "what is missing counts as 0"},
        {"joint-generation", "1 0 0 0 4 3 6 0", "1:0,0,0 2:0,1000,2000 3:0,2000,4000 4:0,3000,6000", "",
         "evenly on the line"},
        {"joint-generation", "1 0 0 0 5 4 0 0 2", "1:0,0,0 3:0,2000,0 5:0,4000,0", "", "by steps"},
        {"joint-generation", "1 0 0 0 6 5 0 0 2", "1:0,0,0 3:0,2000,0 5:0,4000,0 6:0,5000,0", "",
         "steps that miss the end"},
        {"joint-generation", "1 1 2 3 0 0", "1:3000,1000,2000", "", "a tail of zeros is none"},
        {"joint-generation", "5 0 0 0 2 1 0 0", "5:0,0,0 2:0,1000,0", "two-items@4",
         "a smaller number: the \";\" is forgotten"},
        {"joint-generation", "1 0 0 0 2 1 0 0", "1:0,0,0 2:0,1000,0", "", "the next number: the same either way"},
        {"joint-generation", "1 0 0 0 2 1\n3 0 0 0 4.5 1 0 0\n5 0 0 0 9 1 0 0 0.5", "1:0,0,0 3:0,0,0 5:0,0,0",
         "line-unread@4 line-unread@5 line-unread@6", "no second end, no number of one, no step"},
        {"joint-repeat", "1 0 0 0; 2 1 0 0\nREPEAT 2 0 0 1",
         "1:0,0,0 2:0,1000,0 3:1000,0,0 4:1000,1000,0 5:2000,0,0 6:2000,1000,0", "",
         "the line before, each from the copy before it"},
        {"joint-repeat", "1 0 0 0\nREPEAT 3 1 0 0 0 2 0", "1:0,0,0 2:0,1000,0 3:0,1000,2000 4:0,1000,4000", "",
         "the last move serves on"},
        {"joint-repeat", "7 0 0 0\n3 1 0 0\nrepeat 1 1 0 0", "7:0,0,0 3:0,1000,0 8:0,2000,0", "",
         "numbered on from the highest"},
        {"joint-repeat", "1 0 0 0\nREPEAT 1 1 0 0\nREPEAT 1 0 1 0", "1:0,0,0 2:0,1000,0 3:0,0,1000", "",
         "copies are no part of the line"},
        {"joint-repeat", "1 0 0 0 3 2 0 0\nREPEAT 1 0 0 1",
         "1:0,0,0 2:0,1000,0 3:0,2000,0 4:1000,0,0 5:1000,1000,0 6:1000,2000,0", "", "a generated line"},
        {"joint-repeat", "1 0 0 0\n2 1 0 0\nREPEAT ALL 1 0 0 1\n9 5 0 0\nREPEAT ALL 1 0 1 0",
         "1:0,0,0 2:0,1000,0 3:1000,0,0 4:1000,1000,0 9:0,5000,0 10:0,5000,1000", "",
         "everything since the last REPEAT ALL"},
        {"joint-repeat", "1 0 0 0\nREPEAT 1 0 0\nREPEAT X\nREPEAT ALL 0 1 0 0\nREPEAT 1 1 0 0 X", "1:0,0,0 2:0,1000,0",
         "line-unread@5 line-unread@6 line-unread@7 line-unread@8", "no move, no count; the last one has both"},
        {"joint-repeat", "REPEAT 1 1 0 0\n1 0 0 0\nREPEAT ALL 1 1 0 0\nREPEAT ALL 1 1 0 0", "1:0,0,0 2:0,1000,0",
         "line-unread@4 line-unread@7", "nothing to copy"},
        {"joint-repeat", "2147483647 0 0 0\nREPEAT 1 1 0 0", "2147483647:0,0,0", "line-unread@5", "no number is left"},
        {"joint-again", "1 0 0 0\n2 1 0 0\n1 5 0 0\n3 0 0 0", "1:0,5000,0 2:0,1000,0 3:0,0,0", "number-again@6",
         "the later, in the place of the earlier"},
        {"joint-again", "2 0 0 0; 1 1 0 0", "2:0,0,0 1:0,1000,0", "", "numbers may fall"},
        {"joint-again", "1 0 0 0\nSUPPORTS\n1 FIXED\nJOINT COORDINATES\n2 1 0 0; 1 3 0 0", "1:0,3000,0 2:0,1000,0",
         "number-again@8", "in another block"},
        {"block-between", "JTORIGIN 10 0 0\n1 1 0 0\nJOINT COORDINATES\n2 1 0 0", "1:0,11000,0 2:0,1000,0", "",
         "an origin counts in its block"},
        {"block-between", "1 1 0 0\nJTORIGIN 10 0\nJTORIGIN 1 2 3 4", "1:3000,2000,2000", "line-unread@5 line-unread@6",
         "for all joints of the block; three numbers"},
        {"unit-length-alone", "1 1 0 0\nUNIT FEET\n2 1 0 0\nREPEAT 1 1 0 0", "1:0,1000,0 2:0,304.8,0 3:0,609.6,0", "",
         "the block goes on"},
        {"unit-length-alone", "JTORIGIN 1 0 0\n1 1 0 0\nUNIT FEET\nREPEAT 1 1 0 0", "1:0,2000,0 2:0,2304.8,0", "",
         "a move in its own unit"},
        {"mesh", "1 0 0 0\nDEFINE MESH\n2 0 0 0", "1:0,0,0", "", "lines of another block are none of this"},
    };
    for (const joint_case& each : cases)
        expect_joints(each, "SPACE");
}

TEST(ReadJoints, InPlanes)
{
    expect_joints(
        {"joint-of-two-coordinates", "1 1 2; 2 1 2 3", "1:0,1000,2000 2:3000,1000,2000", "", "z may be left out"},
        "PLANE");
    expect_joints(
        {"joint-of-two-coordinates", "1 0 0 3 2 0", "1:0,0,0 2:0,1000,0 3:0,2000,0", "", "at both ends of a line"},
        "PLANE");
    expect_joints({"joint-of-two-coordinates", "1 0 0 5 4 0 2", "1:0,0,0 3:0,2000,0 5:0,4000,0", "", "with a step"},
                  "PLANE");
    expect_joints({"joint-of-two-coordinates", "1 1", "1:0,1000,0", "item-short@4", "but not y"}, "PLANE");
}

TEST(ReadJoints, WithZUp)
{
    expect_joints({"set-z-up", "1 1 2 3\nJTORIGIN 0 0 1", "1:1000,2000,4000", "", "the axes of the file"}, "SPACE",
                  "SET Z UP");
    expect_joints({"set-nl", "1 1 2 3", "1:3000,1000,2000", "", "another SET line turns nothing"}, "SPACE", "SET NL 5");
}

TEST(ReadJoints, InCylinders)
{
    const joint_case around_z[] = {
        {"joint-coordinates", "1 2 90 5", "1:5000,0,2000", "", "x = r cos, y = r sin"},
        {"joint-generation", "1 2 0 0 3 2 180 0", "1:0,2000,0 2:0,0,2000 3:0,-2000,0", "", "angles are parted evenly"},
        {"joint-repeat", "1 2 0 0\nREPEAT 1 0 90 1", "1:0,2000,0 2:1000,0,2000", "", "angles are moved"},
        {"unit-length-alone", "1 2 90 0\nUNIT FEET\n2 1 90 1\nJTORIGIN 0 0 1", "1:304.8,0,2000 2:609.6,0,304.8", "",
         "the block goes on around; angles have no unit"},
        {"joint", "1 1e305 0 0\nREPEAT 1 1e305 0 0\n5 0 0 0", "1:0,1e+308,0 5:0,0,0", "line-unread@5",
         "copies that go too far out"},
    };
    for (const joint_case& each : around_z)
        expect_joints(each, "SPACE", "", " CYLINDRICAL");
    const joint_case around_y[] = {
        {"joint-coordinates", "1 2 1 90", "1:-2000,0,1000", "", "x = r cos, z = -r sin"},
        {"joint-generation", "1 2 0 0 3 2 2 180", "1:0,2000,0 2:-2000,0,1000 3:0,-2000,2000", "",
         "height and angle are parted evenly"},
        {"joint-repeat", "1 2 0 0\nREPEAT ALL 1 0 1 90", "1:0,2000,0 2:-2000,0,1000", "", "height and angle are moved"},
        {"block-between", "1 2 0 0\nJOINT COORDINATES\n2 2 1 90", "1:0,2000,0 2:90000,2000,1000", "",
         "the next block is square again"},
    };
    for (const joint_case& each : around_y)
        expect_joints(each, "SPACE", "", " CYLINDRICAL REVERSE");
}

TEST(ReadJoints, KeepTheirLines)
{
    const test::deck_reading read =
        test::read_text(joint_deck("SPACE", "", "", "1 0 0 -\n* a line between\n0\n2 0 0 0; 3 1 0 0"));
    const auto lines_of = [&](std::size_t i) { return origin(read.structure, read.structure.joints.at(i).source); };
    EXPECT_EQ(lines_of(0).first, 4U);
    EXPECT_EQ(lines_of(0).last, 6U);
    EXPECT_EQ(lines_of(2).first, 7U);
}

TEST(ReadGeometry, EndsWhereALineAsksForTooMuch)
{
    const struct {
        const char* lines; ///< after a line of joints, the third
        std::size_t line;
    } cases[] = {
        {"10 0 0 0 2000000000 1 0 0", 5},
        {"REPEAT 2000000000 1 0 0", 5},
        {"REPEAT ALL 2147483647 1 0 0", 5},
        {"MEMBER INCIDENCES\n1 1 2 2000000000 1 0", 6},
        {"MEMBER INCIDENCES\n1 1 2\nREPEAT 2000000000 1 0", 7},
        {"MEMBER INCIDENCES\n1 1 2; 2 2 3\nREPEAT ALL 2147483647 1 0", 7},
        {"ELEMENT INCIDENCES\n1 1 2 3 TO 2000000000", 6},
        {"ELEMENT INCIDENCES SOLID\n1 1 2 3 4 TO 2000000000", 6},
        {"ELEMENT INCIDENCES\n1 1 2 3\nREPEAT 2000000000 1 0", 7},
        {"ELEMENT INCIDENCES\n1 1 2 3\n2 1 2 3\nREPEAT ALL 2000000000 1 0", 8},
        {"MEMBER INCIDENCES\nREPEAT 2000000000 1 0\n1 1 2", 0},
        {"ELEMENT INCIDENCES\nREPEAT 2000000000 1 0\n1 1 2 3", 0},
    };
    for (const auto& each : cases)
        EXPECT_EQ(test::line_of_limit(joint_deck("SPACE", "", "", "1 0 0 0; 2 1 0 0; 3 0 1 0").append(each.lines)),
                  each.line)
            << each.lines;
}

} // namespace
} // namespace STAAD
