/// Lists of joints, members and elements, by the blocks that have them.

#include "staad/report/read_limit.h"
#include "tests/unit/structure/read_deck.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

struct list_row {
    const char* form;
    std::string list;
    const char* found; // positions, "1 3 4"
    const char* warnings;
    const char* why;
};

// Six members 1 to 6 at positions 0 to 5.
const list_row member_rows[] = {
    {"list-to", "1 TO 4", "0 1 2 3", "", "both ends"},
    {"list-to", "1 to 2 TO 4 6", "0 1 2 3 5", "", "1 TO 2 TO 4 is 1 TO 4"},
    {"list-to", "1 4 TO 5", "0 3 4", "", "numbers and ranges"},
    {"list-to", "5 TO 90", "4 5", "", "numbers between that no member has are nothing to report"},
    {"list-to", "70 TO 90 1", "0", "member-unknown", "a range without any member"},
    {"list-to", "1 77 2", "0 1", "member-unknown", "a number without member"},
    {"list-to", "5 TO 3 1", "0", "member-unknown", "a range that goes back has none"},
    {"list-to", "1 TO", "0", "line-unread", "no end: TO is left over"},
    {"list-to", "1 TO 2 -\n* a ruler\n\n4", "0 1 3", "", "over several lines"},
    {"list-by", "1 TO 6 BY 2", "0 2 4", "", "every second"},
    {"list-by", "2 TO 6 by 3 1", "0 1 4", "", "2, 5, then 1"},
    {"list-by", "1 TO 3 BY", "0 1 2", "line-unread", "no step: BY is left over"},
    {"list-by", "1 TO 3 BY 0", "0 1 2", "line-unread", "a step of 0 is none"},
    {"list-all", "ALL", "0 1 2 3 4 5", "", "all members"},
    {"list-all", "all", "0 1 2 3 4 5", "", "in any case"},
    {"list-all", "ALLES 1", "", "line-unread", "another word"},
    {"list-head", "LIST 2 3", "1 2", "", "LIST means nothing more"},
    {"list-head", "LIST ALL", "0 1 2 3 4 5", "", "before ALL too"},
    {"list-head", "1 LIST MEMB 2", "0 1", "", "two of them, among numbers"},
    {"list-head", "1 BEAM _PAIR", "0 1 2", "", "before a group"},
    {"list-head", "1 LIST", "0", "line-unread", "no list follows: LIST is left over"},
    {"list-group", "_PAIR", "1 2", "", "the group is defined after its use"},
    {"list-group", "6 _pair 1", "0 1 2 5", "", "without regard to case, among numbers"},
    {"list-group", "_OTHER 1", "0", "group-unknown", "no such group; the rest counts"},
    {"list-group", "_CORNERS 1", "0", "group-unknown", "a group of joints lists no members"},
    {"list-group", "_TWICE", "3", "", "of two kinds the one that fits: members"},
    {"list-group", "_DECK", "4 5", "", "FLOOR lists members"},
    // Members 1 and 3 are columns at X 0 and 4, 2 a beam between them, 4 and 5 beams along Z, 6 a column at Z 5.
    {"list-range", "YRANGE 3 3", "1 3 4", "", "what lies wholly in it: the beams at the top"},
    {"list-range", "XRANGE -0.5 0", "0 3 5", "", "at X 0: two columns and a beam"},
    {"list-range", "XR 0 0 yr 3 0", "0 3 5", "", "short words, ends in any order"},
    {"list-range", "XRANGE 0 0 ZRANGE 4 6", "5", "", "several are what they share"},
    {"list-range", "XRANGE 0 0 ZRANGE 4 6 3", "2 5", "", "numbers after it add"},
    {"list-range", "XRANGE 0", "", "line-unread", "one end"},
    {"list-range", "ZRANGE 20 30", "", "", "nothing lies there"},
};

std::string truss_members(const Structure& structure)
{
    std::string found;
    for (std::size_t i = 0; i < structure.members.size(); ++i)
        if (structure.members[i].behaviour == Structure::Behaviour::truss)
            found += (found.empty() ? "" : " ") + std::to_string(i);
    return found;
}

const std::vector<std::string> groups = {"START GROUP DEFINITION",
                                         "JOINT",
                                         "_CORNERS 1 4",
                                         "_TWICE 1 TO 3",
                                         "MEMBER",
                                         "_Pair 2 3",
                                         "_TWICE 4",
                                         "ELEMENT",
                                         "_TWICE 11",
                                         "FLOOR",
                                         "_DECK 5 6",
                                         "END GROUP DEFINITION"};

test::deck_reading read_with_groups(std::vector<std::string> lines, const char* set = "")
{
    lines.insert(lines.end(), groups.begin(), groups.end());
    return test::read_in_frame(lines, set);
}

TEST(Lists, OfMembers)
{
    for (const list_row& row : member_rows) {
        SCOPED_TRACE(row.list + ": " + row.why);
        const auto read = read_with_groups({"MEMBER TRUSS", row.list});
        EXPECT_EQ(truss_members(read.structure), row.found);
        EXPECT_EQ(test::warnings(read.report), row.warnings);
    }
}

const list_row joint_rows[] = {
    {"list-to", "3 TO 4 FIXED", "2 3", "", "joints, not members"},
    {"list-by", "1 TO 8 BY 3 FIXED", "0 3 6", "", "1, 4, 7"},
    {"list-group", "_corners FIXED", "0 3", "", "a group of joints"},
    {"list-group", "_TWICE PINNED", "0 1 2", "", "of two kinds the one that fits: joints"},
    {"list-group", "_PAIR FIXED", "", "group-unknown", "a group of members"},
    {"list-range", "YR 0 0 ZR 0 0 FIXED", "0 3", "", "joints 1 and 4 stand there"},
    {"list-range", "XRANGE 0 1 YRANGE 0 1 ZRANGE 4 6 FIXED", "4", "", "three: joint 5 alone"},
    {"list-to", "80 90 FIXED", "", "joint-unknown joint-unknown", "each is reported"},
};

std::string supported_joints(const Structure& structure)
{
    std::string found;
    for (const Structure::Support& support : structure.supports)
        found += (found.empty() ? "" : " ") + std::to_string(support.joint);
    return found;
}

TEST(Lists, OfJoints)
{
    for (const list_row& row : joint_rows) {
        SCOPED_TRACE(row.list + ": " + row.why);
        for (const char* set : {"", "SET Z UP"}) { // ranges name the axes of the file, whichever is up
            const auto read = read_with_groups({"SUPPORTS", row.list}, set);
            EXPECT_EQ(supported_joints(read.structure), row.found);
            EXPECT_EQ(test::warnings(read.report), row.warnings);
        }
    }
}

const list_row element_rows[] = {
    {"list-group", "_TWICE TH 1", "0", "", "of two kinds the one that fits: elements"},
    {"list-to", "11 TO 12 TH 1", "0 1", "", "elements"},
    {"list-head", "11 ELEMENT 12 TH 1", "0 1", "", "ELEMENT means nothing more"},
    {"list-range", "ZRANGE 0 0 TH 1", "1", "", "the triangle stands at Z 0"},
    {"list-range", "YRANGE 3000 3000 TH 1", "", "", "ranges are in the unit in force, here m"},
    {"list-all", "ALL TH 1", "0 1", "", "all elements"},
};

TEST(Lists, OfElements)
{
    for (const list_row& row : element_rows) {
        SCOPED_TRACE(row.list + ": " + row.why);
        const auto read = read_with_groups({"ELEMENT PROPERTY", row.list});
        std::string found;
        for (std::size_t i = 0; i < read.structure.elements.size(); ++i)
            if (read.structure.elements[i].thickness[0] != 0.0)
                found += (found.empty() ? "" : " ") + std::to_string(i);
        EXPECT_EQ(found, row.found);
        EXPECT_EQ(test::warnings(read.report), row.warnings);
    }
}

TEST(Lists, RangesAreInTheUnitInForce)
{
    const auto read = read_with_groups({"UNIT MMS KN", "ELEMENT PROPERTY", "YRANGE 3000 3000.0005 TH 7"});
    EXPECT_EQ(read.structure.elements[0].thickness[0], 7.0); // the floor at 3 m, a thousandth of a mm more or less
    EXPECT_EQ(read.structure.elements[1].thickness[0], 0.0);
}

TEST(Lists, RangesFindTheirRecordsBeforeAndAfterADeletion)
{
    // Member 6 is the only one wholly at Z 5; after it is gone, 4 and 5 keep their places.
    const auto read = read_with_groups({"DELETE MEMBERS ZRANGE 5 5", "MEMBER TRUSS", "YRANGE 3 3"});
    ASSERT_EQ(read.structure.members.size(), 5U);
    EXPECT_EQ(read.structure.members[4].number, 5);
    EXPECT_EQ(truss_members(read.structure), "1 3 4");
}

TEST(Lists, AreBounded)
{
    EXPECT_THROW(read_with_groups({"MEMBER TRUSS", "1 TO 2000000000 BY 2"}), ReadLimitError);
    // Words without end that mean nothing more.
    std::string heads;
    for (int i = 0; i < 200000; ++i)
        heads += "LIST ";
    EXPECT_EQ(test::warnings(read_with_groups({"MEMBER TRUSS", "1 " + heads}).report), "line-unread");
    EXPECT_EQ(truss_members(read_with_groups({"MEMBER TRUSS", "1 " + heads + "2"}).structure), "0 1");
}

} // namespace
} // namespace STAAD
