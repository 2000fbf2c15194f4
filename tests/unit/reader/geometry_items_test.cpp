/// Joints, members, elements and surfaces from their items of text.

#include "staad/model/geometry.h"
#include "tests/support/model_equal.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using numbers = std::vector<int>;
const std::vector<std::string> no_differences;

TEST(JointItem, TurnsTheFileAxesToTheModelAxes)
{
    const struct {
        const char* why;
        std::string item;
        int id;
        double x, y, z;
    } rows[] = {
        {"x is the file's Z, y its X, z its Y", "12 1000 0 5000", 12, 5000.0, 1000.0, 0.0},
        {"three different coordinates", "3 1 2 4", 3, 4.0, 1.0, 2.0},
        {"exponents", "4 1.5E3 2.5e-1 -1E2", 4, -100.0, 1500.0, 0.25},
        {"runs of blanks", "   5   1  2   3  ", 5, 3.0, 1.0, 2.0},
        {"more words are ignored", "6 1 2 3 4 FOO", 6, 3.0, 1.0, 2.0},
        {"a missing Z is 0", "7 1 2", 7, 0.0, 1.0, 2.0},
        {"a missing Y, too", "8 1", 8, 0.0, 1.0, 0.0},
        {"a number alone", "9", 9, 0.0, 0.0, 0.0},
        {"nothing", "", 0, 0.0, 0.0, 0.0},
        {"blanks only", "   ", 0, 0.0, 0.0, 0.0},
        {"words that are no numbers", "A B C D", 0, 0.0, 0.0, 0.0},
        {"a fraction of a joint number is cut", "3.7 1 2 3", 3, 3.0, 1.0, 2.0},
        {"a negative number", "-4 1 2 3", -4, 3.0, 1.0, 2.0},
        {"a number past 32 bits", "99999999999 1 2 3", INT_MAX, 3.0, 1.0, 2.0},
        {"a tab does not separate", "1\t2 3 4 5", 1, 5.0, 3.0, 4.0},
        {"a tab before a coordinate is white space", "1 \t2 3 4", 1, 4.0, 2.0, 3.0},
    };
    for (const auto& c : rows) {
        SdNode want;
        want.id = c.id;
        want.x = c.x;
        want.y = c.y;
        want.z = c.z;
        EXPECT_EQ(record_differences(SdNode(c.item), want), no_differences) << c.why;
    }
}

TEST(MemberItem, HoldsJointNumbersOfTheFile)
{
    const struct {
        const char* why;
        std::string item;
        int id, start, end;
    } rows[] = {
        {"number, start, end", "7 3 4", 7, 3, 4},
        {"more words are ignored", "7 3 4 99", 7, 3, 4},
        {"fractions are cut", "3.7 1.9 2.1", 3, 1, 2},
        {"runs of blanks", "  8   1   2 ", 8, 1, 2},
        {"a missing end is 0", "8 1", 8, 1, 0},
        {"a number alone", "8", 8, 0, 0},
        {"nothing", "", 0, 0, 0},
        {"words that are no numbers", "X Y Z", 0, 0, 0},
    };
    for (const auto& c : rows) {
        SdBeam want; // everything else as in a new record
        want.id = c.id;
        want.node_start = c.start;
        want.node_end = c.end;
        EXPECT_EQ(record_differences(SdBeam(c.item), want), no_differences) << c.why;
    }
}

struct corner_row {
    const char* why;
    std::string item;
    int id;
    numbers corners;
};

TEST(ElementItem, TakesEveryFurtherNumberAsACorner)
{
    const corner_row rows[] = {
        {"a triangle", "5 1 2 3", 5, {1, 2, 3}},
        {"a quadrilateral", "5 1 2 3 4", 5, {1, 2, 3, 4}},
        {"as many as there are", "5 1 2 3 4 5 6 7 8 9", 5, {1, 2, 3, 4, 5, 6, 7, 8, 9}},
        {"order and repeats are kept", "5 4 3 4", 5, {4, 3, 4}},
        {"a word is a corner 0", "5 1 X 3", 5, {1, 0, 3}},
        {"no corners", "5", 5, {}},
        {"nothing", "  ", 0, {}},
        {"TO is no range here", "5 1 TO 3", 5, {1, 0, 3}},
    };
    for (const corner_row& c : rows) {
        SdShell want;
        want.id = c.id;
        want.node_ids = c.corners;
        EXPECT_EQ(record_differences(SdShell(c.item), want), no_differences) << c.why;
    }
}

TEST(SurfaceItem, ListsCornersBeforeAWordAndTheNumber)
{
    const corner_row rows[] = {
        {"four corners", "1 2 3 4 SUR 9", 9, {1, 2, 3, 4}},
        {"the word is not checked", "1 2 3 4 5 9", 9, {1, 2, 3, 4}},
        {"four words are enough", "1 2 SUR 9", 9, {1, 2}},
        {"three are not", "1 2 SUR", 0, {}},
        {"nor one", "9", 0, {}},
        {"nor none", "", 0, {}},
        {"a number that is a word", "1 2 3 SUR X", 0, {1, 2, 3}},
        {"a corner that is a word", "1 X 3 SUR 9", 9, {1, 0, 3}},
        {"runs of blanks", "  1  2  3   SUR   9 ", 9, {1, 2, 3}},
    };
    for (const corner_row& c : rows) {
        SdSurface want;
        want.id = c.id;
        want.node_ids = c.corners;
        EXPECT_EQ(record_differences(SdSurface(c.item), want), no_differences) << c.why;
    }
}

TEST(Shell, CopiesEveryFieldOfASurface)
{
    SdSurface surface("1 2 3 4 SUR 9");
    surface.thickness = 199;
    surface.material = "CONCRETE";
    SdShell shell = surface;
    EXPECT_EQ(shell.id, 9);
    EXPECT_EQ(shell.node_ids, (numbers{1, 2, 3, 4}));
    EXPECT_EQ(shell.thickness, 199);
    EXPECT_EQ(shell.material, "CONCRETE");
    shell.node_ids[0] = 77;
    EXPECT_EQ(surface.node_ids[0], 1) << "the surface keeps its own corners";
}

} // namespace
} // namespace STAAD
