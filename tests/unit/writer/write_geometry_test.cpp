/// Joints, members and shell elements as they are written.

#include "staad/model/sd_reader.h"
#include "tests/support/placed_models.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <string>
#include <vector>

namespace STAAD {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

using placed::joint;
using placed::member;
using placed::shell;

/// Corners that make the item of a shell with a number of one digit `length` characters long: a number, then
/// blanks and corners of one digit, at most one of them of two, then ";".
std::vector<int> corners_of_length(std::size_t length)
{
    std::vector<int> corners;
    std::size_t left = length - 2;
    for (; left > 3; left -= 2)
        corners.push_back(5);
    corners.push_back(left == 3 ? 55 : 5);
    return corners;
}

/// The item itself.
std::string item_of_length(int number, std::size_t length)
{
    std::string item = std::to_string(number);
    for (const int corner : corners_of_length(length))
        item += ' ' + std::to_string(corner);
    return item + ';';
}

TEST(WriteJoints, NumbersThemByPosition)
{
    SdReader model;
    model.nodes = {joint(10, {0, 0, 0}), joint(30, {0, 1000, 0}), joint(20, {0, 2000, 0})};
    EXPECT_EQ(written::joints(model), "1 0 0 0; 2 1 0 0; 3 2 0 0;\n");
}

struct coordinates {
    const char* why;
    placed::point place;
    const char* want;
};

const coordinates coordinate_rows[] = {
    {"at the origin", {0, 0, 0}, "1 0 0 0;\n"},
    {"the model's y, z and x, in metres", {-2500, 1500, 0}, "1 1.5 0 -2.5;\n"},
    {"each axis has its place", {3000, 1000, 2000}, "1 1 2 3;\n"},
    {"six significant digits", {0, 1234.5678, 12345678.9}, "1 1.23457 12345.7 0;\n"},
    {"the last digit is rounded to the nearest, ties to even", {0, 123456500, 123457500}, "1 123456 123458 0;\n"},
    {"from seven digits on an exponent", {0, 999999e3, 1234567e3}, "1 999999 1.23457e+06 0;\n"},
    {"rounding may add the digit", {0, 999999.5e3, 0}, "1 1e+06 0 0;\n"},
    {"small numbers are fixed down to 0.0001", {0, 0.1, 0.01}, "1 0.0001 1e-05 0;\n"},
    {"no zeros at the end", {0, 120, 2500000}, "1 0.12 2500 0;\n"},
    {"a foot", {0, 304.79999999999995, 0}, "1 0.3048 0 0;\n"},
    {"negative zero keeps its sign", {-0.0, 0.0, -0.0}, "1 0 -0 -0;\n"},
    {"the largest numbers", {-1e308, 1e308, 1e-308}, "1 1e+305 1e-311 -1e+305;\n"},
    {"no numbers at all", {not_a_number, infinity, -infinity}, "1 inf -inf nan;\n"},
};

TEST(WriteJoints, HasTheCoordinatesInFileOrderInMetres)
{
    for (const coordinates& row : coordinate_rows) {
        EXPECT_EQ(written::joints(placed::joints_at({row.place})), row.want) << row.why;
    }
}

TEST(WriteMembers, NumbersThemFromOneAndKeepsTheirReferences)
{
    SdReader model;
    model.nodes = {joint(10, {0, 0, 0}), joint(20, {0, 1000, 0})};
    model.beams = {member(10, 1, 2), member(30, 2, 1), member(20, 2, 2)};
    model.shells = {shell(0, {1, 2, 1}), shell(0, {2, 1, 2, 1})};
    EXPECT_EQ(written::members(model), "1 1 2; 2 2 1; 3 2 2;\n");
    EXPECT_EQ(written::between(model, "ELEMENT INCIDENCES SHELL", "ELEMENT PROPERTY"), "4 1 2 1; 5 2 1 2 1;\n");
    model.WriteDataToText();
    EXPECT_EQ(model.nodes[0].id, 10) << "joints keep their numbers in the model";
    EXPECT_EQ(model.beams[1].id, 2) << "members and shells do not";
    EXPECT_EQ(model.shells[1].id, 5);
}

TEST(WriteMembers, WritesReferencesToNoJointAsTheyAre)
{
    SdReader model;
    model.beams = {member(1, 0, -1), member(2, 9, 900), member(3, INT_MAX, INT_MIN)};
    model.shells = {shell(0, {0, -7, INT_MAX, INT_MIN})};
    EXPECT_EQ(written::members(model), "1 0 -1; 2 9 900; 3 2147483647 -2147483648;\n");
    EXPECT_EQ(written::between(model, "ELEMENT INCIDENCES SHELL", "ELEMENT PROPERTY"),
              "4 0 -7 2147483647 -2147483648;\n");
}

TEST(WriteShells, HasItsKeywordEvenWithoutShells)
{
    EXPECT_EQ(written::shells_tables_groups(written::row_of_members(1)), "");
    EXPECT_EQ(written::joints(SdReader()), "");
    EXPECT_EQ(written::members(SdReader()), "");
}

TEST(WriteShells, WritesHoweverManyCornersThereAre)
{
    SdReader model;
    model.shells = {shell(0, {}), shell(0, {1}), shell(0, {3, 2, 1, 5, 4, 6})};
    EXPECT_EQ(written::between(model, "ELEMENT INCIDENCES SHELL", "ELEMENT PROPERTY"), "1; 2 1; 3 3 2 1 5 4 6;\n");
}

struct packing {
    const char* why;
    std::vector<std::size_t> lengths;   ///< of the items of shells 1, 2, 3 ...
    std::vector<std::vector<int>> want; ///< shells of each line; no shells: an empty line
};

const packing packing_rows[] = {
    {"one item", {12}, {{1}}},
    {"a line of exactly 79 characters", {40, 38}, {{1, 2}}},
    {"80 characters are too many", {40, 39}, {{1}, {2}}},
    {"three items, 79 characters with their blanks", {30, 27, 20}, {{1, 2, 3}}},
    {"three items, the last one too long by one", {30, 27, 21}, {{1, 2}, {3}}},
    {"a first item of 78 stands on the first line", {78}, {{1}}},
    {"a first item of 79 has an empty line before it", {79}, {{}, {1}}},
    {"a longer first item has, too, and is not cut", {150}, {{}, {1}}},
    {"what follows a first item of 79 begins a line", {79, 10}, {{}, {1}, {2}}},
    {"a later long item has no empty line before it", {10, 79, 10}, {{1}, {2}, {3}}},
    {"nothing fits after 77 characters", {77, 6}, {{1}, {2}}},
    {"two long items in a row", {200, 200}, {{}, {1}, {2}}},
};

TEST(PackItems, KeepsLinesToSeventyNineCharacters)
{
    for (const packing& row : packing_rows) {
        SdReader model;
        for (const std::size_t length : row.lengths)
            model.shells.push_back(shell(0, corners_of_length(length)));
        std::string want;
        for (const std::vector<int>& line : row.want) {
            std::string text;
            for (const int number : line) {
                const std::size_t length = row.lengths[static_cast<std::size_t>(number - 1)];
                text += (text.empty() ? "" : " ") + item_of_length(number, length);
                ASSERT_EQ(item_of_length(number, length).size(), length);
            }
            want += text + '\n';
        }
        EXPECT_EQ(written::between(model, "ELEMENT INCIDENCES SHELL", "ELEMENT PROPERTY"), want) << row.why;
    }
}

} // namespace
} // namespace STAAD
