/// SURFACE INCIDENCE and SURFACE PROPERTY blocks, and the copies of surfaces among the shells.

#include "staad/model/sd_reader.h"
#include "tests/support/deck.h"

#include <gtest/gtest.h>

#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using ints = std::vector<int>;

struct corners_of_number {
    int id;
    ints node_ids;

    friend bool operator==(const corners_of_number&, const corners_of_number&) = default;
};

void PrintTo(const corners_of_number& one, std::ostream* out)
{
    *out << one.id << ": " << ::testing::PrintToString(one.node_ids);
}

template<class Records>
std::vector<corners_of_number> corners_of(const Records& records)
{
    std::vector<corners_of_number> found;
    for (const auto& record : records)
        found.push_back({record.id, record.node_ids});
    return found;
}

/// "9: 1 2 3 4; 3: 2 3 4"
std::string shown(const std::vector<corners_of_number>& surfaces)
{
    std::string text;
    for (const corners_of_number& one : surfaces) {
        text += (text.empty() ? "" : "; ") + std::to_string(one.id) + ':';
        for (const int corner : one.node_ids)
            text += ' ' + std::to_string(corner);
    }
    return text;
}

struct incidence {
    const char* why;
    decks::lines lines;
    const char* want; ///< number: corners
    std::map<int, int> index;
};

TEST(ReadSurface, ReadsTheLinesThatBeginWithADigit)
{
    const std::string keyword = "SURFACE INCIDENCE";
    const incidence rows[] = {
        {"no block", {"1 2 3 4 SUR 9"}, "", {}},
        {"corners, a word, the number", {keyword, "1 2 3 4 SUR 9"}, "9: 1 2 3 4", {{9, 1}}},
        {"any word, any number of corners", {keyword, "1 2 3 4 5 6 X 2"}, "2: 1 2 3 4 5 6", {{2, 1}}},
        {"several on a line, in order",
         {keyword, "1 2 3 SUR 9; 2 3 4 SUR 3;", "3 4 5 SUR 7"},
         "9: 1 2 3; 3: 2 3 4; 7: 3 4 5",
         {{3, 2}, {7, 3}, {9, 1}}},
        {"an item of nothing builds none", {keyword, "1 2 3 SUR 9; ;"}, "9: 1 2 3", {{9, 1}}},
        {"fewer than four words: number 0, no corners, no index",
         {keyword, "1 2 SUR; 1 2 SUR 4"},
         "0:; 4: 1 2",
         {{4, 2}}},
        {"a number below 1 is not in the index", {keyword, "1 2 3 SUR -4; 1 2 3 SUR A"}, "-4: 1 2 3; 0: 1 2 3", {}},
        {"of two with one number the index holds the last",
         {keyword, "1 2 3 SUR 5; 2 3 4 SUR 5"},
         "5: 1 2 3; 5: 2 3 4",
         {{5, 2}}},
        {"a line that begins with 0 ends the block",
         {keyword, "1 2 3 SUR 1", "0 2 3 SUR 2", "1 2 3 SUR 3"},
         "1: 1 2 3",
         {{1, 1}}},
        {"with a blank, too", {keyword, " 1 2 3 SUR 1", "1 2 3 SUR 3"}, "", {}},
        {"with a letter, too", {keyword, "A 2 3 SUR 1", "1 2 3 SUR 3"}, "", {}},
        {"the keyword is a whole line", {keyword + "S", "1 2 3 SUR 1"}, "", {}},
        {"only the first block is read", {keyword, "1 2 3 SUR 1", keyword, "1 2 3 SUR 2"}, "1: 1 2 3", {{1, 1}}},
    };
    for (const incidence& row : rows) {
        SCOPED_TRACE(row.why);
        const SdReader model = decks::read_frame(row.lines);
        EXPECT_EQ(shown(corners_of(model.surfaces)), row.want);
        EXPECT_EQ(model.surface_index, row.index);
        for (const SdSurface& surface : model.surfaces)
            EXPECT_EQ(surface.material, "CONCRETE");
    }
}

struct property {
    const char* why;
    const char* unit;
    const char* line;
    ints want; ///< thicknesses of surfaces 1 to 4
};

ints thicknesses_of(const SdReader& model)
{
    ints found;
    for (const SdSurface& surface : model.surfaces)
        found.push_back(surface.thickness);
    return found;
}

const decks::lines four_surfaces = {"SURFACE INCIDENCE", "1 2 3 SUR 1; 2 3 4 SUR 2", "3 4 5 SUR 3", "4 5 6 SUR 4"};

decks::lines with_four_surfaces(const decks::lines& more)
{
    decks::lines all = four_surfaces;
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

TEST(ReadSurface, GivesTheLastWordAsThicknessToTheListedSurfaces)
{
    const char* metres = "UNIT METER KN";
    const char* millimetres = "UNIT MMS KN";
    const property rows[] = {
        {"range", metres, "1 TO 3 THICKNESS 0.2", {200, 200, 200, 0}},
        {"truncated", metres, "2 THICKNESS 0.1999", {0, 199, 0, 0}},
        {"numbers", millimetres, "4 1 THICKNESS 120", {120, 0, 0, 120}},
        {"in feet", "UNIT FEET KIP", "1 THICKNESS 0.5", {152, 0, 0, 0}},
        {"two words assign nothing", metres, "1 0.2", {0, 0, 0, 0}},
        {"one word is list and thickness", millimetres, "3", {0, 0, 3, 0}},
        {"a thickness after numbers alone may name a surface", millimetres, "1 2 3.5", {3, 3, 3, 0}},
        {"not if it begins with 0", metres, "1 2 0.3", {300, 300, 0, 0}},
        {"0 ends the list", metres, "1 0 2 THICKNESS 0.2", {200, 0, 0, 0}},
        {"a bound below 1 is an empty range, and the list goes on", metres, "1 TO 0 3 THICKNESS 0.2", {200, 0, 200, 0}},
        {"a falling range, too", metres, "3 TO 2 1 THICKNESS 0.2", {200, 0, 200, 0}},
        {"a word after TO is its bound, so that the thickness may name a surface",
         millimetres,
         "1 TO THICKNESS 2.5",
         {2, 2, 0, 0}},
        {"a range counts from the last number that stands alone, not from a bound",
         metres,
         "4 TO 2 TO 3 THICKNESS 0.2",
         {0, 0, 0, 200}},
        {"unknown surfaces are passed over", metres, "99 2 TO 7 THICKNESS 0.2", {0, 200, 200, 200}},
        {"an unreadable thickness is 0", metres, "1 THICKNESS THIN", {0, 0, 0, 0}},
        {"past 32 bits the largest thickness", metres, "1 THICKNESS 1E9", {2147483647, 0, 0, 0}},
    };
    for (const property& row : rows) {
        SCOPED_TRACE(std::string(row.line) + ": " + row.why);
        const SdReader model = decks::read_frame(with_four_surfaces({"SURFACE PROPERTY", row.line}), {row.unit, 5});
        EXPECT_EQ(thicknesses_of(model), row.want);
        EXPECT_EQ(model.surface_index.size(), 4U);
    }
}

struct property_block {
    const char* why;
    decks::lines lines;
    ints want;
};

TEST(ReadSurface, FindsThePropertyLines)
{
    const property_block rows[] = {
        {"later lines win", {"SURFACE PROPERTY", "1 TO 4 THICKNESS 10", "2 THICKNESS 20"}, {10, 20, 10, 10}},
        {"the keyword is the beginning of a line", {"SURFACE PROPERTY WALLS", "1 THICKNESS 10"}, {10, 0, 0, 0}},
        {"the very beginning", {" SURFACE PROPERTY", "1 THICKNESS 10"}, {0, 0, 0, 0}},
        {"a line beginning with 0 ends the block",
         {"SURFACE PROPERTY", "1 THICKNESS 10", "0 THICKNESS 10", "2 THICKNESS 10"},
         {10, 0, 0, 0}},
        {"a comment, too", {"SURFACE PROPERTY", "1 THICKNESS 10", "* walls", "2 THICKNESS 10"}, {10, 0, 0, 0}},
        {"only the first block is read",
         {"SURFACE PROPERTY", "1 THICKNESS 10", "SURFACE PROPERTY", "2 THICKNESS 10"},
         {10, 0, 0, 0}},
        {"continued lines are one", {"SURFACE PROPERTY", "1 2 -", "TO 3 -", "THICKNESS 10"}, {10, 10, 10, 0}},
    };
    for (const property_block& row : rows)
        EXPECT_EQ(thicknesses_of(decks::read_frame(with_four_surfaces(row.lines), {"UNIT MMS KN", 5})), row.want)
            << row.why;
}

TEST(ReadSurface, FindsThePropertyLinesBeforeTheSurfaces)
{
    const SdReader model =
        decks::read("SURFACE PROPERTY\n2 THICKNESS 0.2\n" + decks::frame_deck(with_four_surfaces({})));
    EXPECT_EQ(thicknesses_of(model), (ints{0, 200, 0, 0}));
}

TEST(ReadSurface, PropertyLinesAloneBuildNothing)
{
    const SdReader model = decks::read_frame({"SURFACE PROPERTY", "1 TO 4 THICKNESS 0.2"});
    EXPECT_TRUE(model.surfaces.empty());
    EXPECT_TRUE(model.surface_index.empty());
    EXPECT_TRUE(model.shells.empty());
}

/// Joints 11 to 14 stand at positions 1 to 4.
const char* const square_of_joints = "UNIT METER KN\nJOINT COORDINATES\n11 0 0 0; 12 1 0 0; 13 1 1 0; 14 0 1 0\n"
                                     "MEMBER INCIDENCES\n1 11 12\n";

TEST(ReadSurface, CopiesStandAfterTheElementsAndReferToPositions)
{
    const SdReader model = decks::read(
        square_of_joints + decks::joined({"ELEMENT INCIDENCES SHELL", "3 11 12 13", "SURFACE INCIDENCE",
                                          "14 13 12 11 SUR 3; 11 12 99 SUR 8", "SURFACE PROPERTY", "3 THICKNESS 0.2"}));
    EXPECT_EQ(corners_of(model.surfaces), (std::vector<corners_of_number>{{3, {14, 13, 12, 11}}, {8, {11, 12, 99}}}));
    EXPECT_EQ(corners_of(model.shells),
              (std::vector<corners_of_number>{{3, {1, 2, 3}}, {3, {4, 3, 2, 1}}, {8, {1, 2, 0}}}));
    EXPECT_EQ(model.shells.at(1).thickness, 200) << "copied after the thicknesses were read";
    EXPECT_EQ(model.shells.at(1).material, "CONCRETE");
    EXPECT_EQ(model.shell_index, (std::map<int, int>{{3, 1}})) << "copies are not in the index";
    EXPECT_EQ(model.node_index.count(99), 0U) << "a corner that is no joint does not enter the index";
}

TEST(ReadSurface, SurfacesOfAnEarlierReadingStay)
{
    const decks::lines block = {"SURFACE INCIDENCE", "1 2 3 SUR 9", "SURFACE PROPERTY", "9 THICKNESS 0.2"};
    SdReader model = decks::read_frame(block);
    ASSERT_TRUE(model.ReadSDDataFromText(decks::frame_deck({"SURFACE PROPERTY", "9 THICKNESS 0.3"})));
    EXPECT_EQ(thicknesses_of(model), (ints{300}));
    EXPECT_EQ(model.shells.size(), 1U) << "they are copied again";

    ASSERT_TRUE(model.ReadSDDataFromText(decks::frame_deck(block)));
    EXPECT_EQ(thicknesses_of(model), (ints{300, 200}));
    EXPECT_EQ(model.surface_index, (std::map<int, int>{{9, 2}}));
    EXPECT_EQ(model.shells.size(), 2U);
}

} // namespace
} // namespace STAAD
