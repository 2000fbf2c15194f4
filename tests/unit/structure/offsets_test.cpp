/// Offsets of member ends, in the model frame.

#include "tests/unit/structure/read_deck.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

struct offset_row {
    const char* form;
    std::vector<std::string> lines;
    const char* set;
    std::size_t member; // position
    Vector3 start;      // mm
    Vector3 end;
    const char* warnings;
    const char* why;
};

const offset_row offsets_rows[] = {
    {"offset", {"1 START 1 2 3"}, "", 0, {3000, 1000, 2000}, {}, "", "file X Y Z are model y z x"},
    {"offset", {"1 END 1 2 3"}, "SET Z UP", 0, {}, {1000, 2000, 3000}, "", "file X Y Z are model x y z"},
    {"offset", {"1 START 0 1 0 END 0 -1 0"}, "", 0, {0, 0, 1000}, {0, 0, -1000}, "", "both ends on a line"},
    {"offset",
     {"* X    Y    Z", "1 START 0 .5 0", "UNIT MMS", "1 START 3*7"},
     "",
     0,
     {7, 7, 7},
     {},
     "",
     "a comment first; the later line counts, in its own unit"},
    {"offset", {}, "", 0, {}, {}, "", "an empty block"},
    {"offset", {"1 START 1 2"}, "", 0, {}, {}, "line-unread", "two numbers"},
    {"offset", {"1 MIDDLE 1 2 3"}, "", 0, {}, {}, "line-unread", "no end"},
    {"offset", {"88 START 1 2 3"}, "", 0, {}, {}, "member-unknown", "no such member"},
    // Member 2 runs along the file's +X: its axes are X, Y, Z. Member 1 is a column upwards: x is Y, y is -X, z is Z.
    {"offset-local", {"2 START LOCAL 1 2 3"}, "", 1, {3000, 1000, 2000}, {}, "", "along X the axes are the file's"},
    {"offset-local", {"1 END LOCAL 1 2 3"}, "", 0, {}, {3000, -2000, 1000}, "", "a column"},
    // Member 4 runs along +Z: x is Z, y is Y, z is -X.
    {"offset-local", {"4 START LOCAL 1 2 3"}, "", 3, {1000, -3000, 2000}, {}, "", "along Z"},
    {"offset-local",
     {"2 START 0 1 0", "2 END LOCAL 1 0 0"},
     "",
     1,
     {0, 0, 1000},
     {0, 1000, 0},
     "",
     "axes go from joint to joint: the offset of the start does not turn them"},
    // With Z up member 2 runs along X: x, y, z are X, Y, Z; member 1 runs along Y: x is Y, y is -X, z is Z.
    {"offset-local", {"2 START LOCAL 1 2 3"}, "SET Z UP", 1, {1000, 2000, 3000}, {}, "", "Z up, along X"},
    {"offset-local", {"1 START LOCAL 1 2 3"}, "SET Z UP", 0, {-2000, 1000, 3000}, {}, "", "Z up, along Y"},
    {"offset-local", {"2 START LOCALLY"}, "", 1, {}, {}, "line-unread", "no numbers"},
};

void expect_near(const Vector3& found, const Vector3& expected)
{
    EXPECT_NEAR(found.x, expected.x, 1e-9);
    EXPECT_NEAR(found.y, expected.y, 1e-9);
    EXPECT_NEAR(found.z, expected.z, 1e-9);
}

TEST(Offsets, OfMemberEnds)
{
    for (const offset_row& row : offsets_rows) {
        SCOPED_TRACE((row.lines.empty() ? std::string() : row.lines.back()) + ": " + row.why);
        std::vector<std::string> lines{"MEMBER OFFSET"};
        lines.insert(lines.end(), row.lines.begin(), row.lines.end());
        const auto read = test::read_in_frame(lines, row.set);
        ASSERT_GT(read.structure.members.size(), row.member);
        const Structure::Member& member = read.structure.members[row.member];
        expect_near(member.start_offset, row.start);
        expect_near(member.end_offset, row.end);
        EXPECT_EQ(test::warnings(read.report), row.warnings);
    }
}

TEST(Offsets, BetaTurnsTheLocalOnes)
{
    // Beta 90 turns y to where z was, the file's +Z, and z to -Y.
    const auto read =
        test::read_in_frame({"MEMBER OFFSET", "2 START LOCAL 1 2 3", "2 END 0 0 0", "CONSTANTS", "BETA 90 MEMB 2"});
    const Structure::Member& member = read.structure.members[1];
    EXPECT_EQ(test::case_line(read.structure, member.offset_source), 3U);
    expect_near(member.start_offset, {2000, 1000, -3000});
}

TEST(Offsets, AMemberWithoutLengthHasNoAxes)
{
    const auto read = test::read_in_frame({"MEMBER INCIDENCES", "9 1 1", "MEMBER OFFSET", "9 START LOCAL 1 0 0"});
    EXPECT_EQ(test::warnings(read.report), "line-unread");
}

} // namespace
} // namespace STAAD
