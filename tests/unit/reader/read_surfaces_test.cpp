/// SURFACE INCIDENCE and SURFACE PROPERTY blocks, and the copies of surfaces among the shells.

#include "staad/model/sd_reader.h"
#include "tests/support/deck.h"
#include "tests/support/shown.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

/// "9: 1 2 3 4; 3: 2 3 4" for surfaces or elements 9 and 3.
template<class Records>
std::string corners_of(const Records& records)
{
    std::vector<std::pair<int, std::vector<int>>> found;
    for (const auto& record : records)
        found.emplace_back(record.id, record.node_ids);
    return shown(found);
}

TEST(ReadSurface, ReadsTheLinesThatBeginWithADigit)
{
    const struct {
        const char* why;
        const char* lines;
        const char* want; ///< number: corners
        const char* index;
    } rows[] = {
        {"no block", "1 2 3 4 SUR 9", "-", "-"},
        {"corners, a word, the number", "SURFACE INCIDENCE\n1 2 3 4 SUR 9", "9: 1 2 3 4", "9: 1"},
        {"any word, any number of corners", "SURFACE INCIDENCE\n1 2 3 4 5 6 X 2", "2: 1 2 3 4 5 6", "2: 1"},
        {"several on a line, in order", "SURFACE INCIDENCE\n1 2 3 SUR 9; 2 3 4 SUR 3;\n3 4 5 SUR 7",
         "9: 1 2 3; 3: 2 3 4; 7: 3 4 5", "3: 2; 7: 3; 9: 1"},
        {"an item of nothing builds none", "SURFACE INCIDENCE\n1 2 3 SUR 9; ;", "9: 1 2 3", "9: 1"},
        {"fewer than four words: number 0, no corners, no index", "SURFACE INCIDENCE\n1 2 SUR; 1 2 SUR 4",
         "0: -; 4: 1 2", "4: 2"},
        {"a number below 1 is not in the index", "SURFACE INCIDENCE\n1 2 3 SUR -4; 1 2 3 SUR A", "-4: 1 2 3; 0: 1 2 3",
         "-"},
        {"of two with one number the index holds the last", "SURFACE INCIDENCE\n1 2 3 SUR 5; 2 3 4 SUR 5",
         "5: 1 2 3; 5: 2 3 4", "5: 2"},
        {"a line that begins with 0 ends the block", "SURFACE INCIDENCE\n1 2 3 SUR 1\n0 2 3 SUR 2\n1 2 3 SUR 3",
         "1: 1 2 3", "1: 1"},
        {"with a blank, too", "SURFACE INCIDENCE\n 1 2 3 SUR 1\n1 2 3 SUR 3", "-", "-"},
        {"with a letter, too", "SURFACE INCIDENCE\nA 2 3 SUR 1\n1 2 3 SUR 3", "-", "-"},
        {"the keyword is a whole line", "SURFACE INCIDENCES\n1 2 3 SUR 1", "-", "-"},
        {"only the first block is read", "SURFACE INCIDENCE\n1 2 3 SUR 1\nSURFACE INCIDENCE\n1 2 3 SUR 2", "1: 1 2 3",
         "1: 1"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.why);
        const SdReader model = decks::read_frame({row.lines});
        EXPECT_EQ(corners_of(model.surfaces), row.want);
        EXPECT_EQ(shown(model.surface_index), row.index);
        for (const SdSurface& surface : model.surfaces)
            EXPECT_EQ(surface.material, "CONCRETE");
    }
}

std::string thicknesses_of(const SdReader& model)
{
    return shown_fields(model.surfaces, &SdSurface::thickness);
}

const std::string four_surfaces = "SURFACE INCIDENCE\n1 2 3 SUR 1; 2 3 4 SUR 2\n3 4 5 SUR 3\n4 5 6 SUR 4";

TEST(ReadSurface, GivesTheLastWordAsThicknessToTheListedSurfaces)
{
    const char* metres = "UNIT METER KN";
    const char* millimetres = "UNIT MMS KN";
    const struct {
        const char* why;
        const char* unit;
        const char* line;
        const char* want; ///< thicknesses of surfaces 1 to 4
    } rows[] = {
        {"range", metres, "1 TO 3 THICKNESS 0.2", "200 200 200 0"},
        {"truncated", metres, "2 THICKNESS 0.1999", "0 199 0 0"},
        {"numbers", millimetres, "4 1 THICKNESS 120", "120 0 0 120"},
        {"in feet", "UNIT FEET KIP", "1 THICKNESS 0.5", "152 0 0 0"},
        {"two words assign nothing", metres, "1 0.2", "0 0 0 0"},
        {"one word is list and thickness", millimetres, "3", "0 0 3 0"},
        {"a thickness after numbers alone may name a surface", millimetres, "1 2 3.5", "3 3 3 0"},
        {"not if it begins with 0", metres, "1 2 0.3", "300 300 0 0"},
        {"0 ends the list", metres, "1 0 2 THICKNESS 0.2", "200 0 0 0"},
        {"a bound below 1 is an empty range, and the list goes on", metres, "1 TO 0 3 THICKNESS 0.2", "200 0 200 0"},
        {"a falling range, too", metres, "3 TO 2 1 THICKNESS 0.2", "200 0 200 0"},
        {"a word after TO is its bound, so that the thickness may name a surface", millimetres, "1 TO THICKNESS 2.5",
         "2 2 0 0"},
        {"a range counts from the last number that stands alone, not from a bound", metres, "4 TO 2 TO 3 THICKNESS 0.2",
         "0 0 0 200"},
        {"unknown surfaces are passed over", metres, "99 2 TO 7 THICKNESS 0.2", "0 200 200 200"},
        {"an unreadable thickness is 0", metres, "1 THICKNESS THIN", "0 0 0 0"},
        {"past 32 bits the largest thickness", metres, "1 THICKNESS 1E9", "2147483647 0 0 0"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.line) + ": " + row.why);
        const SdReader model = decks::read_frame({four_surfaces, "SURFACE PROPERTY", row.line}, {row.unit, 5});
        EXPECT_EQ(thicknesses_of(model), row.want);
        EXPECT_EQ(model.surface_index.size(), 4U);
    }
}

TEST(ReadSurface, FindsThePropertyLines)
{
    const std::vector<decks::row> rows = {
        {"later lines win", "SURFACE PROPERTY\n1 TO 4 THICKNESS 10\n2 THICKNESS 20", "10 20 10 10"},
        {"the keyword is the beginning of a line", "SURFACE PROPERTY WALLS\n1 THICKNESS 10", "10 0 0 0"},
        {"the very beginning", " SURFACE PROPERTY\n1 THICKNESS 10", "0 0 0 0"},
        {"a line beginning with 0 ends the block", "SURFACE PROPERTY\n1 THICKNESS 10\n0 THICKNESS 10\n2 THICKNESS 10",
         "10 0 0 0"},
        {"a comment, too", "SURFACE PROPERTY\n1 THICKNESS 10\n* walls\n2 THICKNESS 10", "10 0 0 0"},
        {"only the first block is read", "SURFACE PROPERTY\n1 THICKNESS 10\nSURFACE PROPERTY\n2 THICKNESS 10",
         "10 0 0 0"},
        {"continued lines are one", "SURFACE PROPERTY\n1 2 -\nTO 3 -\nTHICKNESS 10", "10 10 10 0"},
    };
    decks::expect_read(rows, thicknesses_of, {"UNIT MMS KN", 5}, four_surfaces);
}

TEST(ReadSurface, FindsThePropertyLinesBeforeTheSurfacesAndNeedsSurfaces)
{
    const SdReader before = decks::read("SURFACE PROPERTY\n2 THICKNESS 0.2\n" + decks::frame_deck({four_surfaces}));
    EXPECT_EQ(thicknesses_of(before), "0 200 0 0");
    const SdReader alone = decks::read_frame({"SURFACE PROPERTY", "1 TO 4 THICKNESS 0.2"});
    EXPECT_TRUE(alone.surfaces.empty() && alone.surface_index.empty() && alone.shells.empty());
}

/// Joints 11 to 14 stand at positions 1 to 4.
const char* const square_of_joints = "UNIT METER KN\nJOINT COORDINATES\n11 0 0 0; 12 1 0 0; 13 1 1 0; 14 0 1 0\n"
                                     "MEMBER INCIDENCES\n1 11 12\n";

TEST(ReadSurface, CopiesStandAfterTheElementsAndReferToPositions)
{
    const SdReader model = decks::read(
        square_of_joints + decks::joined({"ELEMENT INCIDENCES SHELL", "3 11 12 13", "SURFACE INCIDENCE",
                                          "14 13 12 11 SUR 3; 11 12 99 SUR 8", "SURFACE PROPERTY", "3 THICKNESS 0.2"}));
    EXPECT_EQ(corners_of(model.surfaces), "3: 14 13 12 11; 8: 11 12 99");
    EXPECT_EQ(corners_of(model.shells), "3: 1 2 3; 3: 4 3 2 1; 8: 1 2 0");
    EXPECT_EQ(model.shells.at(1).thickness, 200) << "copied after the thicknesses were read";
    EXPECT_EQ(model.shells.at(1).material, "CONCRETE");
    EXPECT_EQ(shown(model.shell_index), "3: 1") << "copies are not in the index";
    EXPECT_EQ(model.node_index.count(99), 0U) << "a corner that is no joint does not enter the index";
}

TEST(ReadSurface, SurfacesOfAnEarlierReadingStay)
{
    const decks::lines block = {"SURFACE INCIDENCE", "1 2 3 SUR 9", "SURFACE PROPERTY", "9 THICKNESS 0.2"};
    SdReader model = decks::read_frame(block);
    ASSERT_TRUE(model.ReadSDDataFromText(decks::frame_deck({"SURFACE PROPERTY", "9 THICKNESS 0.3"})));
    EXPECT_EQ(thicknesses_of(model), "300");
    EXPECT_EQ(model.shells.size(), 1U) << "they are copied again";

    ASSERT_TRUE(model.ReadSDDataFromText(decks::frame_deck(block)));
    EXPECT_EQ(thicknesses_of(model), "300 200");
    EXPECT_EQ(shown(model.surface_index), "9: 2");
    EXPECT_EQ(model.shells.size(), 2U);
}

} // namespace
} // namespace STAAD
