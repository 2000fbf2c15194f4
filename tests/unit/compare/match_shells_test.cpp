/// Which earlier shell is the counterpart of which: hand cases.

#include "tests/support/placed_models.h"

#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <vector>

namespace STAAD {
namespace {

using placed::five_joints_earlier;
using placed::five_joints_now;
using placed::with_shells;
using ints = std::vector<int>;
using map = std::map<int, int>;

struct shells_row {
    const char* why;
    std::vector<ints> earlier;
    std::vector<ints> now;
    ints want;
};

const shells_row shell_rows[] = {
    {"none and none", {}, {}, {}},
    {"none earlier", {}, {{1, 2, 3}}, {0}},
    {"none now", {{1, 2, 3}}, {}, {}},
    {"the same corners", {{1, 2, 3, 4}}, {{1, 2, 3, 4}}, {1}},
    {"another corner first", {{1, 2, 3, 4}}, {{2, 3, 4, 1}}, {0}},
    {"from the other side", {{1, 2, 3, 4}}, {{4, 3, 2, 1}}, {0}},
    {"from the other side, same first corner", {{1, 2, 3}}, {{1, 3, 2}}, {0}},
    {"one corner less", {{1, 2, 3, 4}}, {{1, 2, 3}}, {0}},
    {"one corner more", {{1, 2, 3}}, {{1, 2, 3, 4}}, {0}},
    {"in another order", {{1, 2, 3}, {2, 3, 4}}, {{2, 3, 4}, {1, 2, 3}}, {2, 1}},
    {"the first of two alike", {{4, 3, 2}, {1, 2, 3}, {1, 2, 3}}, {{1, 2, 3}}, {2}},
    {"earlier shells are not used up", {{1, 2, 3}}, {{1, 2, 3}, {1, 2, 3}}, {1, 1}},
    {"repeated corners count", {{1, 2, 2, 3}, {1, 2, 3}}, {{1, 2, 3}, {1, 2, 2, 3}, {1, 1, 2, 3}}, {2, 1, 0}},
    {"many corners", {{1, 2, 3, 4, 1, 2, 3, 4, 1}}, {{1, 2, 3, 4, 1, 2, 3, 4, 1}, {1, 2, 3, 4, 1, 2, 3, 4, 2}}, {1, 0}},
    {"one corner", {{1}, {2}}, {{2}}, {2}},
    {"no corners: the first without", {{1, 2, 3}, {}, {}}, {{}, {}}, {2, 2}},
    {"no corners, and none without", {{1, 2, 3}}, {{}}, {0}},
    {"corners, and only one without", {{}}, {{1, 2, 3}}, {0}},
    {"a corner without counterpart", {{1, 2, 5}}, {{1, 2, 5}}, {0}},
    {"the first corner without counterpart", {{5, 1, 2}, {1, 2}}, {{5, 1, 2}}, {0}},
    {"no joint at a corner, the same earlier", {{1, 0, 3}}, {{1, 0, 3}}, {0}},
    {"it is not left out", {{1, 3}}, {{1, 0, 3}}, {0}},
    {"all corners no joints", {{0, 0, 0}, {}}, {{0, 0, 0}}, {0}},
    {"positions past the list or below",
     {{1, 2, 6}, {1, 2, -1}, {INT_MAX, INT_MIN}},
     {{1, 2, 6}, {1, 2, -1}, {INT_MAX, INT_MIN}},
     {0, 0, 0}},
    {"earlier shells of strange corners are no shell's counterpart",
     {{0, 1, 2}, {1, 2, 3, 0}, {-1, INT_MAX, INT_MIN}, {1, 2, 3}},
     {{1, 2, 3}},
     {4}},
    {"shells without counterpart leave no gap in the positions", {{5}, {3, 2, 1}}, {{5}, {0}, {3, 2, 1}}, {0, 0, 2}},
};

TEST(MatchShells, HaveCounterpartsAtAllCornersInTheSameOrder)
{
    for (const shells_row& c : shell_rows) {
        SdReader model = with_shells(five_joints_now(), c.now);
        model.MakeMap(with_shells(five_joints_earlier(), c.earlier));
        EXPECT_EQ(placed::listed(model.old_proj_maps.shells_new_to_old, c.now.size()), c.want) << c.why;
    }
}

TEST(MatchShells, GoByPlaceAndOnlyByCorners)
{
    SdReader old = with_shells(placed::joints_at({{3000}, {2000}, {1000}}), {{3, 2, 1}});
    SdReader model = with_shells(placed::joints_at({{2000}, {1000}, {3000}}), {{2, 1, 3}});
    old.shells[0].id = 9;
    old.shells[0].thickness = 200;
    model.shells[0].material = "C1";
    model.MakeMap(old);
    EXPECT_EQ(model.old_proj_maps.shells_new_to_old, (map{{1, 1}}));
}

} // namespace
} // namespace STAAD
