/// Unit normals of shells.

#include "tests/support/placed_models.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <vector>

namespace STAAD {
namespace {

using placed::point;

/// One shell over all points, in their order.
SdReader model_of(const std::vector<point>& corners)
{
    SdReader model = placed::joints_at(corners);
    std::vector<int> positions;
    for (std::size_t i = 1; i <= corners.size(); ++i)
        positions.push_back(static_cast<int>(i));
    return placed::with_shells(model, {positions});
}

void expect_normal(const point& found, const point& want)
{
    EXPECT_EQ(found.x, want.x);
    EXPECT_EQ(found.y, want.y);
    EXPECT_EQ(found.z, want.z);
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
    // Sums of a wall 4 m x 3 m: ny = -2 x 4000 x 3000, nz = 1.
    {"a wall: level but for the 1 that the sums start with",
     {{0, 0, 0}, {4000, 0, 0}, {4000, 0, 3000}, {0, 0, 3000}},
     {0, -1, 1.0 / 24e6}},
    {"the same wall from the other side is not turned",
     {{0, 0, 3000}, {4000, 0, 3000}, {4000, 0, 0}, {0, 0, 0}},
     {0, 1, 1.0 / 24e6}},
    {"a roof at 45 degrees", {{0, 0, 0}, {0, 5e6, 0}, {-5e6, 5e6, 5e6}, {-5e6, 0, 5e6}}, {half, 0, half}},
    {"the same from below is turned", {{-5e6, 0, 5e6}, {-5e6, 5e6, 5e6}, {0, 5e6, 0}, {0, 0, 0}}, {half, 0, half}},
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
    expect_normal(normal_of(model_of({{0, 0, 0}, {1000, 0, 0}, {1000, 1000, 0}, {0, 1000, 0}}), 1), {0, 0, 1});
    const double length = std::sqrt(24e6 * 24e6 + 1.0);
    expect_normal(normal_of(model_of({{0, 0, 0}, {4000, 0, 0}, {4000, 0, 3000}, {0, 0, 3000}}), 1),
                  {0, -24e6 / length, 1.0 / length});
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
    for (const int index : {0, 2, -1, INT_MIN, INT_MAX})
        expect_normal(normal_of(model, index), {0, 0, 1});
    for (const int no_joint : {0, 5, -1, INT_MIN, INT_MAX}) {
        model.shells[0].node_ids[2] = no_joint;
        expect_normal(normal_of(model, 1), {0, 0, 1});
    }
}

TEST(NormalOfShell, IsUpwardWhereTheSumsLeaveTheRangeOfADouble)
{
    const double far = 1e200; // its square is no double any more
    for (const double side : {far, -far})
        expect_normal(normal_of(model_of({{0, 0, 0}, {side, 0, 0}, {side, 0, far}, {0, 0, far}}), 1), {0, 0, 1});
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
