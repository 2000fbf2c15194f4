/// The levels of a structure, and the level of each joint.

#include "staad/storeys/levels.h"

#include "tests/support/layered.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace STAAD {
namespace {

using layered::bars;
using layered::joint_levels;
using layered::places;
using layered::project_of;
using ints = std::vector<int>;

struct level_row {
    const char* why;
    places joints;
    bars members;
    std::vector<double> levels;
};

const double no_number = std::numeric_limits<double>::quiet_NaN();

const level_row level_rows[] = {
    {"no members, no levels", {{0, 0, 0}}, {}, {}},
    {"a column gives the heights of both ends", {{500, 900, 0}, {500, 900, 3000}}, {{1, 2}}, {0, 3000}},
    {"from the top down as well", {{500, 900, 3000}, {500, 900, -1500}}, {{1, 2}}, {-1500, 3000}},
    {"a level member gives its height once", {{100, 200, 4500}, {3100, 4200, 4500}}, {{1, 2}}, {4500}},
    {"a member of no length is level", {{0, 0, 4500}, {0, 0, 4500}}, {{1, 2}}, {4500}},
    {"and one that ends where it begins", {{0, 0, 4500}}, {{1, 1}}, {4500}},
    {"an inclined member gives none", {{0, 0, 0}, {6000, 0, 3000}}, {{1, 2}}, {}},
    {"a column off by less than can be measured is inclined", {{0.001, 0, 0}, {0, 0, 3000}}, {{1, 2}}, {}},
    {"in y as well", {{0, 0.001, 0}, {0, 0, 3000}}, {{1, 2}}, {}},
    {"a floor out of level by as much, too", {{0, 0, 3000}, {6000, 0, 3000.001}}, {{1, 2}}, {}},
    {"a zero with a sign is a zero", {{0.0, -0.0, 0}, {-0.0, 0.0, 3000}}, {{1, 2}}, {0, 3000}},
    {"heights that round to one form one level",
     {{0, 0, 2999.6}, {6000, 0, 2999.6}, {0, 5000, 3000.4}, {6000, 5000, 3000.4}},
     {{1, 2}, {3, 4}},
     {3000}},
    {"the ends of a column may round to one, too", {{0, 0, 2999.6}, {0, 0, 3000.4}}, {{1, 2}}, {3000}},
    {"heights that round to neighbours are two levels",
     {{0, 0, 2999.4}, {6000, 0, 2999.4}, {0, 5000, 2999.5}, {6000, 5000, 2999.5}},
     {{1, 2}, {3, 4}},
     {2999, 3000}},
    {"levels ascend whatever the order of the members, and each is there once",
     {{0, 0, 6000}, {0, 0, 3000}, {0, 0, 0}, {6000, 0, 6000}, {6000, 0, 3000}},
     {{1, 4}, {2, 1}, {5, 4}, {3, 2}, {2, 5}},
     {0, 3000, 6000}},
    {"a height that is no number is none", {{0, 0, no_number}, {0, 0, 3000}}, {{1, 2}}, {3000}},
};

TEST(StoreyLevels, ComeFromColumnsAndLevelMembers)
{
    for (const level_row& row : level_rows)
        EXPECT_EQ(storey_levels(layered::model(row.joints, row.members)), row.levels) << row.why;
}

TEST(StoreyLevels, AMemberWithAnUnknownEndGivesNone)
{
    const int no_joint[] = {0, -1, 5, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
    for (const int position : no_joint) {
        // Joint 2 would be the foot of a column, joint 4 lies on a floor of its own.
        const places joints = {{0, 0, 3000}, {0, 0, 0}, {6000, 0, 3000}, {6000, 0, 7000}};
        const bars members = {{1, 3}, {2, position}, {position, 4}, {position, position}};
        EXPECT_EQ(storey_levels(layered::model(joints, members)), std::vector<double>{3000}) << position;
    }
}

// ---- rounding ----------------------------------------------------------------------------------------

struct rounding_row {
    double value;
    double want;
};

/// The whole number below value + 0.5; the sum is that of doubles.
const rounding_row roundings[] = {
    {0, 0},
    {0.4, 0},
    {0.5, 1},
    {1.5, 2},
    {2.5, 3},
    {2999.49, 2999},
    {2999.5, 3000},
    {-0.0, 0},
    {-0.4, 0},
    {-0.5, 0},
    {-0.6, -1},
    {-1.5, -1},
    {-2.5, -2},
    {-3900.5, -3900},
    {-3900.6, -3901},
    {0.49999999999999994, 1},               // the last double below a half: the sum comes out as 1
    {4503599627370497.0, 4503599627370498}, // no double lies halfway between whole numbers here: the even one
    {1e300, 1e300},
};

TEST(StoreyLevels, AreWholeNumbersHalvesUpward)
{
    for (const rounding_row& row : roundings)
        EXPECT_EQ(storey_levels(layered::floors({row.value})), std::vector<double>{row.want}) << row.value;
}

TEST(JointLevels, HaveAllCoordinatesRounded)
{
    for (const rounding_row& row : roundings) {
        const double v = row.value;
        const auto levels = project_of(layered::model({{v, 7, 8}, {7, v, 8}, {7, 8, v}}, {{1, 1}})).node_levels;
        ASSERT_EQ(levels.size(), 3U);
        EXPECT_EQ(levels[0].rx, row.want) << v;
        EXPECT_EQ(levels[1].ry, row.want) << v;
        EXPECT_EQ(levels[2].rz, row.want) << v;
    }
}

// ---- the level of a joint ------------------------------------------------------------------------------

TEST(JointLevels, AreTheFirstLevelNotBelowTheJoint)
{
    struct row {
        double height;
        int level;
    };
    // Levels 0, 3000, 6000.
    const row rows[] = {
        {-500, 0},   {-0.4, 0},   {0, 0},    {0.4, 0},    {0.5, 1},  {1, 1},      {2999, 1},   {3000, 1},
        {3000.4, 1}, {3000.5, 2}, {4500, 2}, {5999.6, 2}, {6000, 2}, {6000.4, 2}, {6000.5, 3}, {1e12, 3},
    };
    for (const row& one : rows) {
        SdReader model = layered::floors({0, 3000, 6000});
        model.nodes.push_back(placed::joint(99, {0, 0, one.height}));
        EXPECT_EQ(project_of(model).node_levels.back().level, one.level) << one.height;
    }
}

TEST(JointLevels, ComeInTheOrderOfTheJointsWithTheirPositions)
{
    SdReader model = layered::model({{0, 0, 9000}, {0, 0, 3000}, {0, 0, 0}, {5, 0, 100}}, {{3, 2}, {2, 1}});
    model.nodes[0].id = 3; // numbers are not looked at, not even one that is there twice
    model.nodes[3].id = 3;
    const StaadProProject_layered project = project_of(model);
    ints positions;
    for (const NodeLevel& joint : project.node_levels)
        positions.push_back(joint.position);
    EXPECT_EQ(positions, (ints{1, 2, 3, 4}));
    EXPECT_EQ(joint_levels(project), (ints{2, 1, 0, 1}));
}

TEST(JointLevels, OfASingleLevelAreOnItOrAbove)
{
    SdReader model = layered::floors({4500});
    model.nodes.push_back(placed::joint(98, {0, 0, 0}));
    model.nodes.push_back(placed::joint(99, {0, 0, 4501}));
    EXPECT_EQ(joint_levels(project_of(model)), (ints{0, 0, 0, 1}));
}

TEST(JointLevels, AreAllZeroWithoutLevels)
{
    // A pyramid.
    const SdReader model = layered::model({{0, 0, -0.5}, {6000, 0, 0}, {3000, 3000, 4000.7}}, {{1, 3}, {2, 3}});
    StaadProProject_layered project;
    EXPECT_FALSE(project.BuildFromModel(model));
    ASSERT_EQ(joint_levels(project), (ints{0, 0, 0}));
    EXPECT_EQ(project.node_levels[0].rz, 0);
    EXPECT_EQ(project.node_levels[2].rz, 4001);
    EXPECT_EQ(project.node_levels[2].position, 3);
    EXPECT_TRUE(project.layers.empty());
}

} // namespace
} // namespace STAAD
