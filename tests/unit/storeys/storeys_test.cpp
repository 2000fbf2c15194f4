/// Which storey members and elements are in.

#include "tests/support/deck.h"
#include "tests/support/layered.h"
#include "tests/support/model_equal.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using layered::bars;
using layered::corners;
using layered::places;
using layered::project_of;
using layered::storeys;
using texts = std::vector<std::string>;

/// Four floors at 0, 3000, 6000 and 9500: joints 1 to 4 above each other, members 101 to 104 level, joints 5
/// to 8 their far ends.
const places grid = {{0, 0, 0},    {0, 0, 3000},    {0, 0, 6000},    {0, 0, 9500},
                     {6000, 0, 0}, {6000, 0, 3000}, {6000, 0, 6000}, {6000, 0, 9500}};
const bars level_bars = {{1, 5}, {2, 6}, {3, 7}, {4, 8}};
constexpr int foot = 1, first = 2, second = 3, roof = 4;

SdReader tower(const bars& more_members, const std::vector<corners>& shells = {}, const places& more_joints = {})
{
    places joints = grid;
    joints.insert(joints.end(), more_joints.begin(), more_joints.end());
    bars members = level_bars;
    members.insert(members.end(), more_members.begin(), more_members.end());
    return layered::model(joints, members, shells);
}

/// Positions far outside every list.
constexpr int most = std::numeric_limits<int>::max();
constexpr int least = std::numeric_limits<int>::min();

struct member_row {
    const char* why;
    layered::bar member; ///< joint 9 is at 1000, 10 and 12 below all levels, 11 above
    const char* storeys;
};

/// The member under test is 105.
const member_row member_rows[] = {
    {"a column rises to the level of its top", {foot, first}, "0+3000: 102 105; 3000+3000: 103; 6000+3500: 104"},
    {"drawn from the top as well", {second, first}, "0+3000: 102; 3000+3000: 103 105; 6000+3500: 104"},
    {"a column through two storeys is in the upper one",
     {foot, second},
     "0+3000: 102; 3000+3000: 103 105; 6000+3500: 104"},
    {"an inclined member is where its higher end is", {6, 3}, "0+3000: 102; 3000+3000: 103 105; 6000+3500: 104"},
    {"an end between levels counts as the level above it",
     {foot, 9},
     "0+3000: 102 105; 3000+3000: 103; 6000+3500: 104"},
    {"what ends at the lowest level is in none", {10, foot}, "0+3000: 102; 3000+3000: 103; 6000+3500: 104"},
    {"what ends above the last level is in none", {roof, 11}, "0+3000: 102; 3000+3000: 103; 6000+3500: 104"},
    {"wherever it begins", {11, foot}, "0+3000: 102; 3000+3000: 103; 6000+3500: 104"},
    {"an unknown end does not count", {first, 0}, "0+3000: 102 105; 3000+3000: 103; 6000+3500: 104"},
    {"nor past the joints", {second, 13}, "0+3000: 102; 3000+3000: 103 105; 6000+3500: 104"},
    {"with one end at the lowest level it is in none", {foot, 0}, "0+3000: 102; 3000+3000: 103; 6000+3500: 104"},
    {"without any end as well", {most, least}, "0+3000: 102; 3000+3000: 103; 6000+3500: 104"},
};

/// Inclined to everything, so that they give no level.
const places other_joints = {{1, 2, 1000}, {3, 4, -2000}, {5, 6, 12000}, {7, 8, -2500}};

TEST(StoreyMembers, AreInTheStoreyThatTheyRiseTo)
{
    for (const member_row& row : member_rows)
        EXPECT_EQ(storeys(project_of(tower({row.member}, {}, other_joints))), row.storeys) << row.why;
}

TEST(StoreyMembers, KeepTheirOrder)
{
    EXPECT_EQ(storeys(project_of(tower({{second, first}, {first, foot}, {roof, foot}, {first, second}}))),
              "0+3000: 102 106; 3000+3000: 103 105 108; 6000+3500: 104 107");
}

TEST(StoreyMembers, AreTheWholeRecords)
{
    SdReader model = tower({{foot, first}});
    SdBeam& column = model.beams.back();
    column.offset_start = {1, 2, 3};
    column.offset_end = {4, 5, 6};
    column.kind_code = 1;
    column.beta = 90;
    column.int_list = {7, 7, 3};
    column.sect_country = "CHINESE";
    column.sect_extra = "x";
    column.sect_name = "PRIS YD 0.5 ZD 0.5";
    EXPECT_EQ(record_differences(layered::member(project_of(model), 105).member, column), texts());
}

TEST(StoreyMembers, AreThereAsOftenAsInTheModel)
{
    SdReader model = tower({{foot, first}, {foot, first}});
    model.beams.back().id = 105;
    EXPECT_EQ(storeys(project_of(model)), "0+3000: 102 105 105; 3000+3000: 103; 6000+3500: 104");
}

// ---- one level ---------------------------------------------------------------------------------------

TEST(OneLevel, HasAStoreyOfThreeMetresWithWhatLiesOnItOrBelow)
{
    const SdReader model = layered::model({{0, 0, 4500}, {6000, 0, 4500}, {10, 0, 0}, {20, 0, 6000}},
                                          {{1, 2}, {3, 1}, {1, 4}, {0, 0}}, {{1, 2, 3}, {1, 2, 4}, {}});
    EXPECT_EQ(storeys(project_of(model)), "4500+3000: 101 102 104 | 1001 1003") << "without what rises above it";
}

TEST(TwoLevels, HaveOneStorey)
{
    EXPECT_EQ(storeys(project_of(layered::floors({-3600, 100}))), "-3600+3700: 102");
}

// ---- elements ------------------------------------------------------------------------------------------

struct shell_row {
    const char* why;
    corners shell;
    const char* storeys;
};

const shell_row shell_rows[] = {
    {"a slab", {2, 6, 6, 2}, "0+3000: 102 | 1001; 3000+3000: 103; 6000+3500: 104"},
    {"a wall rises to its top", {2, 6, 7, 3}, "0+3000: 102; 3000+3000: 103 | 1001; 6000+3500: 104"},
    {"a single high corner decides", {1, 5, 8}, "0+3000: 102; 3000+3000: 103; 6000+3500: 104 | 1001"},
    {"one corner", {4}, "0+3000: 102; 3000+3000: 103; 6000+3500: 104 | 1001"},
    {"the lowest level", {1, 5, 1}, "0+3000: 102; 3000+3000: 103; 6000+3500: 104"},
    {"above the last", {1, 5, 11}, "0+3000: 102; 3000+3000: 103; 6000+3500: 104"},
    {"no corners: the lowest level", {}, "0+3000: 102; 3000+3000: 103; 6000+3500: 104"},
    {"unknown corners do not count", {0, 2, -7, 6, 13}, "0+3000: 102 | 1001; 3000+3000: 103; 6000+3500: 104"},
    {"none but unknown corners", {0, most, least}, "0+3000: 102; 3000+3000: 103; 6000+3500: 104"},
};

TEST(StoreyShells, AreInTheStoreyOfTheirHighestCorner)
{
    for (const shell_row& row : shell_rows)
        EXPECT_EQ(storeys(project_of(tower({}, {row.shell}, other_joints))), row.storeys) << row.why;
}

TEST(StoreyShells, KeepTheirOrderAndAreTheWholeRecords)
{
    SdReader model = tower({}, {{3, 7, 2}, {2, 6, 1}, {4, 8}, {2, 3, 7, 6}});
    SdShell& wall = model.shells[3];
    wall.thickness = 250;
    wall.material = "C40";
    const StaadProProject_layered project = project_of(model);
    ASSERT_EQ(storeys(project), "0+3000: 102 | 1002; 3000+3000: 103 | 1001 1004; 6000+3500: 104 | 1003");
    EXPECT_EQ(record_differences(project.layers[1].shells[1], wall), texts());
}

TEST(StoreyShells, AreSurfacesToo)
{
    // Columns at both ends of a wall 3.6 m high, whose corners are named by numbers that are no positions.
    const SdReader model = decks::read("UNIT METER KN\nJOINT COORDINATES\n91 0 0 0; 92 5 0 0; 93 0 3.6 0; 94 5 3.6 0;\n"
                                       "MEMBER INCIDENCES\n1 91 93; 2 92 94;\nSURFACE INCIDENCE\n"
                                       "91 92 94 93 SURFACE 7\nSURFACE PROPERTY\n7 THICKNESS 0.3\nFINISH\n");
    const StaadProProject_layered project = project_of(model);
    ASSERT_EQ(storeys(project), "0+3600: 1 2 | 7");
    EXPECT_EQ(project.layers[0].shells[0].thickness, 300);
}

TEST(StoreyShells, GiveNoLevels)
{
    EXPECT_EQ(storeys(project_of(layered::model({{0, 0, 0}, {0, 0, 3000}, {6000, 0, 1500}}, {{1, 2}}, {{3, 3, 3}}))),
              "0+3000: 101 | 1001");
    StaadProProject_layered project;
    EXPECT_FALSE(project.BuildFromModel(layered::model({{0, 0, 0}, {6000, 0, 0}, {0, 0, 3000}}, {}, {{1, 2, 3}})));
    EXPECT_TRUE(project.layers.empty());
}

TEST(Storeys, MayBeEmpty)
{
    // A post begins at 3000, where nothing ends.
    EXPECT_EQ(storeys(project_of(layered::model({{0, 0, 0}, {0, 0, 3000}, {0, 0, 7000}}, {{3, 1}, {2, 3}}))),
              "0+3000:; 3000+4000: 101 102");
}

} // namespace
} // namespace STAAD
