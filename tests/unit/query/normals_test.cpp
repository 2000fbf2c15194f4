/// Unit normals of shells.

#include "staad/model/sd_reader.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <vector>

namespace STAAD {
namespace {

struct point {
    double x, y, z;
};

/// One shell over all points, in their order.
SdReader model_of(const std::vector<point>& corners)
{
    SdReader model;
    SdShell shell;
    for (const point& corner : corners) {
        SdNode node;
        node.x = corner.x;
        node.y = corner.y;
        node.z = corner.z;
        model.nodes.push_back(node);
        shell.node_ids.push_back(static_cast<int>(model.nodes.size()));
    }
    model.shells = {shell};
    return model;
}

point normal_of(const SdReader& model, int index)
{
    point n{7.0, 8.0, 9.0}; // must not matter
    model.NormalOfShell(index, n.x, n.y, n.z);
    return n;
}

struct normal_row {
    const char* why;
    std::vector<point> corners;
    point want;
};

const double half = std::sqrt(0.5);

const normal_row normals[] = {
    {"a level square", {{0, 0, 0}, {1000, 0, 0}, {1000, 1000, 0}, {0, 1000, 0}}, {0, 0, 1}},
    {"listed clockwise it is turned upward", {{0, 1000, 0}, {1000, 1000, 0}, {1000, 0, 0}, {0, 0, 0}}, {0, 0, 1}},
    {"far from the origin",
     {{50000, 40000, 3000}, {51000, 40000, 3000}, {51000, 41000, 3000}, {50000, 41000, 3000}},
     {0, 0, 1}},
    {"a level triangle", {{0, 0, 0}, {1000, 0, 0}, {0, 1000, 0}}, {0, 0, 1}},
    // Sums of a wall 4 m x 3 m: ny = -2 x 4000 x 3000, nz = 1.
    {"a wall: level but for the 1 that the sums start with",
     {{0, 0, 0}, {4000, 0, 0}, {4000, 0, 3000}, {0, 0, 3000}},
     {0, -1, 1.0 / 24e6}},
    {"the same wall from the other side is not turned",
     {{0, 0, 3000}, {4000, 0, 3000}, {4000, 0, 0}, {0, 0, 0}},
     {0, 1, 1.0 / 24e6}},
    {"a wall across it", {{0, 0, 0}, {0, 4000, 0}, {0, 4000, 3000}, {0, 0, 3000}}, {1, 0, 1.0 / 24e6}},
    {"a roof at 45 degrees", {{0, 0, 0}, {0, 5e6, 0}, {-5e6, 5e6, 5e6}, {-5e6, 0, 5e6}}, {half, 0, half}},
    {"the same from below is turned", {{-5e6, 0, 5e6}, {-5e6, 5e6, 5e6}, {0, 5e6, 0}, {0, 0, 0}}, {half, 0, half}},
    {"three corners at one place", {{5, 5, 5}, {5, 5, 5}, {5, 5, 5}}, {0, 0, 1}},
    {"all corners on a line", {{0, 0, 0}, {1000, 0, 0}, {2000, 0, 0}}, {0, 0, 1}},
    {"two corners", {{0, 0, 0}, {1000, 0, 3000}}, {0, 0, 1}},
    {"one corner", {{1000, 2000, 3000}}, {0, 0, 1}},
    {"no corner", {}, {0, 0, 1}},
    // Sums of a triangle of 0.5 mm2: ny = -1, nz = 1.
    {"a tiny upright triangle leans by the 1", {{0, 0, 0}, {1, 0, 0}, {0, 0, 1}}, {0, -half, half}},
    {"a tiny level one, clockwise, cancels it", {{0, 0, 0}, {0, 1, 0}, {1, 0, 0}}, {0, 0, 1}},
};

TEST(NormalOfShell, IsThatOfTheCornersTurnedUpward)
{
    for (const normal_row& c : normals) {
        SCOPED_TRACE(c.why);
        const point n = normal_of(model_of(c.corners), 1);
        EXPECT_NEAR(n.x, c.want.x, 1e-13);
        EXPECT_NEAR(n.y, c.want.y, 1e-13);
        EXPECT_NEAR(n.z, c.want.z, 1e-13);
    }
}

TEST(NormalOfShell, IsExactWhereTheSumsAre)
{
    const point up = normal_of(model_of({{0, 0, 0}, {1000, 0, 0}, {1000, 1000, 0}, {0, 1000, 0}}), 1);
    EXPECT_EQ(up.x, 0.0);
    EXPECT_EQ(up.y, 0.0);
    EXPECT_EQ(up.z, 1.0);
    const point wall = normal_of(model_of({{0, 0, 0}, {4000, 0, 0}, {4000, 0, 3000}, {0, 0, 3000}}), 1);
    const double length = std::sqrt(24e6 * 24e6 + 1.0);
    EXPECT_EQ(wall.x, 0.0);
    EXPECT_EQ(wall.y, -24e6 / length);
    EXPECT_EQ(wall.z, 1.0 / length);
}

TEST(NormalOfShell, IsTurnedOnlyPastATolerance)
{
    // Panels 10 m high in direction y, leaning so that nz is about lean / 10000.
    struct row {
        const char* why;
        double lean;
        bool turned;
    };
    const row rows[] = {
        {"leaning back", 500.0, false},           {"upright", 0.0, false},     {"over by less than 0.01", -99.0, false},
        {"over by more than 0.01", -101.0, true}, {"far over", -5000.0, true},
    };
    for (const row& c : rows) {
        SCOPED_TRACE(c.why);
        const double high = 10000.0;
        const point n = normal_of(model_of({{0, 0, 0}, {1000, 0, 0}, {1000, c.lean, high}, {0, c.lean, high}}), 1);
        EXPECT_EQ(n.y > 0.0, c.turned);
        const double lean = c.turned ? -c.lean : c.lean;
        EXPECT_NEAR(n.z, lean / std::hypot(high, c.lean), 1e-6);
    }
}

TEST(NormalOfShell, IsUpwardForWhatIsNoShell)
{
    SdReader model = model_of({{0, 0, 0}, {4000, 0, 0}, {4000, 0, 3000}, {0, 0, 3000}});
    for (const int index : {0, 2, -1, INT_MIN, INT_MAX}) {
        SCOPED_TRACE(index);
        const point n = normal_of(model, index);
        EXPECT_EQ(n.x, 0.0);
        EXPECT_EQ(n.y, 0.0);
        EXPECT_EQ(n.z, 1.0);
    }
    for (const int unknown : {0, 5, -1, INT_MIN, INT_MAX}) {
        SCOPED_TRACE(unknown);
        model.shells[0].node_ids[2] = unknown;
        const point n = normal_of(model, 1);
        EXPECT_EQ(n.x, 0.0);
        EXPECT_EQ(n.y, 0.0);
        EXPECT_EQ(n.z, 1.0);
    }
}

TEST(NormalOfShell, IsUpwardWhereTheSumsLeaveTheRangeOfADouble)
{
    const double far = 1e200; // its square is no double any more
    for (const double turn : {1.0, -1.0}) {
        const SdReader model = model_of({{0, 0, 0}, {turn * far, 0, 0}, {turn * far, 0, far}, {0, 0, far}});
        const point n = normal_of(model, 1);
        EXPECT_EQ(n.x, 0.0);
        EXPECT_EQ(n.y, 0.0);
        EXPECT_EQ(n.z, 1.0);
    }
}

TEST(NormalOfShell, TakesTheShellAtThePosition)
{
    SdReader model = model_of({{0, 0, 0}, {0, 4000, 0}, {0, 4000, 3000}, {0, 0, 3000}});
    model.shells.push_back(model.shells[0]);
    model.shells[0].node_ids.clear();
    model.shells[0].id = 2;
    model.shells[1].id = 1;
    EXPECT_EQ(normal_of(model, 1).x, 0.0);
    EXPECT_NEAR(normal_of(model, 2).x, 1.0, 1e-13);
}

} // namespace
} // namespace STAAD
