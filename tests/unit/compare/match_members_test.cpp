/// Which earlier member is the counterpart of which: hand cases.

#include "tests/support/placed_models.h"

#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using placed::five_joints_earlier;
using placed::five_joints_now;
using placed::with_members;
using ints = std::vector<int>;
using map = std::map<int, int>;
using pairs = std::vector<std::pair<int, int>>;

struct members_row {
    const char* why;
    pairs earlier;
    pairs now;
    ints want; // earlier position for each member, 0: none
};

const members_row member_rows[] = {
    {"none and none", {}, {}, {}},
    {"none earlier", {}, {{1, 2}}, {0}},
    {"none now", {{1, 2}}, {}, {}},
    {"the same ends", {{1, 2}}, {{1, 2}}, {1}},
    {"the ends swapped", {{1, 2}}, {{2, 1}}, {1}},
    {"in another order", {{1, 2}, {2, 3}, {3, 4}}, {{3, 4}, {1, 2}, {3, 2}}, {3, 1, 2}},
    {"one common end is not enough", {{1, 2}, {3, 1}}, {{2, 3}, {1, 4}}, {0, 0}},
    {"the first of two alike", {{1, 2}, {1, 2}}, {{1, 2}}, {1}},
    {"the first, though the second has the same direction", {{2, 1}, {1, 2}}, {{1, 2}}, {1}},
    {"the first of those that fit", {{3, 4}, {1, 3}, {2, 1}, {1, 2}}, {{1, 2}}, {3}},
    {"earlier members are not used up", {{1, 2}, {1, 2}}, {{1, 2}, {2, 1}, {1, 2}}, {1, 1, 1}},
    {"both ends at one joint", {{1, 1}, {2, 2}}, {{2, 2}}, {2}},
    {"a member without length is not one of the joint's others", {{1, 2}, {2, 3}}, {{2, 2}}, {0}},
    {"nor the other way round", {{1, 1}, {2, 2}}, {{1, 2}}, {0}},
    {"an end without counterpart: start", {{5, 2}}, {{5, 2}}, {0}},
    {"an end without counterpart: end", {{2, 5}}, {{2, 5}}, {0}},
    {"both ends without counterpart", {{5, 5}}, {{5, 5}}, {0}},
    {"no joint at the start, the same earlier", {{0, 2}}, {{0, 2}}, {0}},
    {"no joint at the end, the same earlier", {{2, 0}}, {{2, 0}}, {0}},
    {"no joints at all, the same earlier", {{0, 0}}, {{0, 0}}, {0}},
    {"positions past the list", {{6, 2}, {2, INT_MAX}}, {{6, 2}, {2, INT_MAX}}, {0, 0}},
    {"positions below it", {{-1, 2}, {2, INT_MIN}}, {{-1, 2}, {2, INT_MIN}}, {0, 0}},
    {"members without counterpart leave no gap in the positions",
     {{0, 1}, {5, 1}, {1, 2}},
     {{1, 5}, {0, 0}, {1, 2}},
     {0, 0, 3}},
    {"earlier members of strange ends are no member's counterpart",
     {{INT_MIN, INT_MAX}, {-1, -1}, {0, 0}, {1, INT_MAX}, {INT_MIN, 2}, {6, 1}, {2, 1}},
     {{1, 2}},
     {7}},
};

TEST(MatchMembers, HaveCounterpartsAtBothEnds)
{
    for (const members_row& c : member_rows) {
        SdReader model = with_members(five_joints_now(), c.now);
        model.MakeMap(with_members(five_joints_earlier(), c.earlier));
        EXPECT_EQ(placed::listed(model.old_proj_maps.members_new_to_old, c.now.size()), c.want) << c.why;
    }
}

TEST(MatchMembers, GoByPlaceWhateverThePositionsAndNumbersOfTheirJoints)
{
    SdReader old = with_members(placed::joints_at({{3000}, {2000}, {1000}}), {{2, 3}, {1, 2}});
    SdReader model = with_members(placed::joints_at({{2000}, {1000}, {3000}}), {{1, 2}, {1, 3}, {2, 3}});
    old.beams[0].id = 70;
    model.beams[0].id = -9;
    old.node_index = {{70, 1}};
    old.beam_index = {{1, 2}, {2, 1}};
    model.MakeMap(old);
    EXPECT_EQ(model.old_proj_maps.joints_new_to_old, (map{{1, 2}, {2, 3}, {3, 1}}));
    EXPECT_EQ(model.old_proj_maps.members_new_to_old, (map{{1, 1}, {2, 2}}));
    EXPECT_EQ(model.old_proj_maps.members_old_to_new, (map{{1, 1}, {2, 2}}));
}

TEST(MatchMembers, FollowTheChoiceOfTheirJoints)
{
    // Two joints at one place: the members of the second go to the second.
    SdReader old = with_members(placed::joints_at({{0}, {0}, {1000}}), {{2, 3}, {1, 3}});
    SdReader model = with_members(placed::joints_at({{0}, {0}, {1000}, {0}}), {{1, 3}, {2, 3}, {4, 3}});
    model.MakeMap(old);
    EXPECT_EQ(placed::listed(model.old_proj_maps.members_new_to_old, 3), (ints{2, 1, 0}));
}

} // namespace
} // namespace STAAD
