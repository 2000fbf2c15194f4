/// Which earlier joint is the counterpart of which: hand cases.

#include "tests/support/placed_models.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <map>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using placed::point;
using limits = std::numeric_limits<double>;
using map = std::map<int, int>;

const double huge = limits::max();
const double infinite = limits::infinity();
const double no_number = limits::quiet_NaN();
const double tiny = limits::denorm_min();

double above(double value)
{
    return std::nextafter(value, infinite);
}

double below(double value)
{
    return std::nextafter(value, -infinite);
}

struct distance_row {
    const char* why;
    double earlier;
    double now;
    bool same;
};

const distance_row distances[] = {
    {"the same place", 0, 0, true},
    {"half the tolerance", 0, 0.05, true},
    {"the tolerance is too much", 0, 0.1, false},
    {"one bit less is not", 0, below(0.1), true},
    {"one bit more is too much", 0, above(0.1), false},
    {"on both sides of 0, the tolerance apart", -0.05, 0.05, false},
    {"a zero with a sign is a zero", -0.0, 0.0, true},
    {"a zero with a sign and less than the tolerance", -0.0, -0.09, true},
    {"the least there is, below 0", tiny, -tiny, true},
    {"0.2 - 0.1 is exactly it", 0.1, 0.2, false},
    {"doubles: 0.3 - 0.2 comes out less", 0.2, 0.3, true},
    {"doubles: 0.4 - 0.3 comes out more", 0.3, 0.4, false},
    {"doubles: 3000.1 - 3000 comes out less", 3000, 3000.1, true},
    {"doubles: 6000.1 - 6000 comes out more", 6000, 6000.1, false},
    {"mirrored", 3000, -3000, false},
    {"neighbours where doubles are 1/16 apart", 0x1p48, 0x1p48 + 0.0625, true},
    {"but not the next but one", 0x1p48, 0x1p48 + 0.125, false},
    {"below 0 as well", -0x1p48, -0x1p48 - 0.0625, true},
    {"neighbours where the spacing changes: 1/16 below", 0x1p49, 0x1p49 - 0.0625, true},
    {"neighbours where the spacing changes: 1/8 above", 0x1p49, 0x1p49 + 0.125, false},
    {"very large", 1e300, 1e300, true},
    {"the largest there is", huge, huge, true},
    {"the largest below 0", -huge, -huge, true},
    {"the largest and its neighbour", huge, below(huge), false},
    {"the difference is past all doubles", huge, -huge, false},
    {"infinity is nowhere: infinity less infinity is no number", infinite, infinite, false},
    {"infinity below 0", -infinite, -infinite, false},
    {"infinity and a number", infinite, 0, false},
    {"no number equals nothing", no_number, no_number, false},
    {"no number and a number", no_number, 0, false},
    {"a number and no number", 0, no_number, false},
};

/// The same row with the difference along x, y or z, among the coordinates of an ordinary joint.
SdReader joint_along(int axis, double value)
{
    point place{4500, -6000.25, 12000.5};
    (axis == 0 ? place.x : axis == 1 ? place.y : place.z) = value;
    return placed::joints_at({place});
}

TEST(MatchJoints, AreCloserThanTheToleranceInEachCoordinate)
{
    for (const distance_row& c : distances) {
        for (const int axis : {0, 1, 2}) {
            const SdReader one = joint_along(axis, c.earlier);
            const SdReader other = joint_along(axis, c.now);
            const map want = c.same ? map{{1, 1}} : map{};
            for (const auto& [earlier, later] : {std::pair(&one, &other), std::pair(&other, &one)}) {
                SdReader now = *later;
                now.MakeMap(*earlier);
                EXPECT_EQ(now.old_proj_maps.joints_new_to_old, want) << c.why << ", axis " << axis;
                EXPECT_EQ(now.old_proj_maps.joints_old_to_new, want) << c.why << ", axis " << axis;
            }
        }
    }
}

struct joints_row {
    const char* why;
    std::vector<point> earlier;
    std::vector<point> now;
    std::vector<int> want; // earlier position for each joint, 0: none
};

const joints_row rows[] = {
    {"nothing and nothing", {}, {}, {}},
    {"each coordinate for itself: the way through space may be longer", {{0, 0, 0}}, {{0.09, -0.09, 0.09}}, {1}},
    {"close in two coordinates is not enough: x", {{0, 5, 5}}, {{0.1, 5, 5}}, {0}},
    {"close in two coordinates is not enough: z", {{5, 5, 0}}, {{5, 5, 0.1}}, {0}},
    {"coordinates do not change places", {{1, 2, 3}}, {{2, 1, 3}, {3, 2, 1}, {1, 3, 2}}, {0, 0, 0}},
    {"in another order", {{0}, {1000}, {2000}}, {{2000}, {0}, {1000}}, {3, 1, 2}},
    {"one gone, one new", {{0}, {1000}, {2000}}, {{0}, {2000}, {3000}}, {1, 3, 0}},
    {"the first in list order, not the nearest", {{0.09}, {0}}, {{0}}, {1}},
    {"the other stays free for the next", {{0.09}, {0}}, {{0}, {0}}, {1, 2}},
    {"each is matched once", {{0}, {0.05}}, {{0}, {0}, {0}}, {1, 2, 0}},
    {"the order of this model decides, not who is nearer", {{0.05}}, {{0}, {0.05}}, {1, 0}},
    {"no second thoughts: another choice would have served both", {{0}, {0.09}}, {{0.05}, {-0.05}}, {1, 0}},
    {"one that is out of reach is no reason to stop", {{0.15}, {0}, {0.04}}, {{0}}, {2}},
    {"one that is taken is no reason to stop", {{0}, {500}, {0}}, {{0}, {0}}, {1, 3}},
    {"a chain: each is close to its neighbours only",
     {{0}, {0.06}, {0.12}, {0.18}},
     {{0.18}, {0.12}, {0.06}, {0}},
     {3, 2, 1, 0}},
    {"a chain listed from its other end", {{0.12}, {0.06}, {0}}, {{0.06}, {0.06}, {0.06}}, {1, 2, 3}},
    {"in space: the eight around one, in list order",
     {{9.95, 19.95, 29.95},
      {10.05, 19.95, 29.95},
      {9.95, 20.05, 29.95},
      {10.05, 20.05, 29.95},
      {9.95, 19.95, 30.05},
      {10.05, 19.95, 30.05},
      {9.95, 20.05, 30.05},
      {10.05, 20.05, 30.05}},
     {{10, 20, 30}, {10, 20, 30}, {10.05, 20.05, 30.05}, {10, 20, 30}, {10, 20, 30}, {10, 20, 30}},
     {1, 2, 8, 3, 4, 5}},
    {"one without a place keeps nothing from the others",
     {{no_number}, {infinite}, {0}},
     {{infinite}, {no_number}, {0}},
     {0, 0, 3}},
    {"without a height it has no place", {{0, 0, no_number}, {0, 0, 0}}, {{0, 0, 0}, {0, 0, no_number}}, {2, 0}},
    {"the ends of the doubles and all between",
     {{huge, huge, huge}, {-huge, -huge, -huge}, {0, 0, 0}, {1e300, -1e300, 1e20}},
     {{1e300, -1e300, 1e20}, {0, 0, 0}, {-huge, -huge, -huge}, {huge, huge, huge}, {huge, huge, -huge}},
     {4, 3, 2, 1, 0}},
};

TEST(MatchJoints, TakeTheFirstFreeOneInListOrder)
{
    for (const joints_row& c : rows) {
        SdReader now = placed::joints_at(c.now);
        now.MakeMap(placed::joints_at(c.earlier));
        EXPECT_EQ(placed::listed(now.old_proj_maps.joints_new_to_old, c.now.size()), c.want) << c.why;
    }
}

TEST(MatchJoints, GoByPlaceAndNotByNumber)
{
    SdReader earlier = placed::row_of_joints(3);
    SdReader now = placed::row_of_joints(3);
    const int numbers[] = {INT_MAX, -5, 1};
    for (std::size_t i = 0; i < 3; ++i)
        now.nodes[i].id = numbers[i];
    now.nodes[1].extra_ids = {4};
    earlier.node_index = {{1, 3}, {2, 2}, {3, 1}};
    now.node_index = {{1, 1}};
    now.MakeMap(earlier);
    EXPECT_EQ(now.old_proj_maps.joints_new_to_old, (map{{1, 1}, {2, 2}, {3, 3}})) << "maps hold positions";
}

} // namespace
} // namespace STAAD
