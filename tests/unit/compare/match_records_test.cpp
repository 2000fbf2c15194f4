/// Which earlier member and shell is the counterpart of which: hand cases, and the maps of a comparison.

#include "tests/support/model_equal.h"
#include "tests/support/placed_models.h"

#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using placed::five_joints_earlier;
using placed::five_joints_now;
using placed::with_members;
using placed::with_shells;
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
    {"none earlier", {}, {{1, 2}}, {0}},
    {"the same ends", {{1, 2}}, {{1, 2}}, {1}},
    {"the ends swapped", {{1, 2}}, {{2, 1}}, {1}},
    {"in another order", {{1, 2}, {2, 3}, {3, 4}}, {{3, 4}, {1, 2}, {3, 2}}, {3, 1, 2}},
    {"one common end is not enough", {{1, 2}, {3, 1}}, {{2, 3}, {1, 4}}, {0, 0}},
    {"the first, though the second has the same direction", {{2, 1}, {1, 2}}, {{1, 2}}, {1}},
    {"the first of those that fit", {{3, 4}, {1, 3}, {2, 1}, {1, 2}}, {{1, 2}}, {3}},
    {"earlier members are not used up", {{1, 2}, {1, 2}}, {{1, 2}, {2, 1}, {1, 2}}, {1, 1, 1}},
    {"both ends at one joint", {{1, 1}, {2, 2}}, {{2, 2}}, {2}},
    {"a member without length is not one of the joint's others", {{1, 2}, {2, 3}}, {{2, 2}}, {0}},
    {"an end without counterpart: start", {{5, 2}}, {{5, 2}}, {0}},
    {"an end without counterpart: end", {{2, 5}}, {{2, 5}}, {0}},
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

struct shells_row {
    const char* why;
    std::vector<ints> earlier;
    std::vector<ints> now;
    ints want;
};

const shells_row shell_rows[] = {
    {"none earlier", {}, {{1, 2, 3}}, {0}},
    {"the same corners", {{1, 2, 3, 4}}, {{1, 2, 3, 4}}, {1}},
    {"another corner first", {{1, 2, 3, 4}}, {{2, 3, 4, 1}}, {0}},
    {"from the other side", {{1, 2, 3, 4}}, {{4, 3, 2, 1}}, {0}},
    {"one corner less", {{1, 2, 3, 4}}, {{1, 2, 3}}, {0}},
    {"one corner more", {{1, 2, 3}}, {{1, 2, 3, 4}}, {0}},
    {"in another order", {{1, 2, 3}, {2, 3, 4}}, {{2, 3, 4}, {1, 2, 3}}, {2, 1}},
    {"the first of two alike", {{4, 3, 2}, {1, 2, 3}, {1, 2, 3}}, {{1, 2, 3}}, {2}},
    {"earlier shells are not used up", {{1, 2, 3}}, {{1, 2, 3}, {1, 2, 3}}, {1, 1}},
    {"repeated corners count", {{1, 2, 2, 3}, {1, 2, 3}}, {{1, 2, 3}, {1, 2, 2, 3}, {1, 1, 2, 3}}, {2, 1, 0}},
    {"no corners: the first without", {{1, 2, 3}, {}, {}}, {{}, {}}, {2, 2}},
    {"no corners, and none without", {{1, 2, 3}}, {{}}, {0}},
    {"a corner without counterpart", {{1, 2, 5}}, {{1, 2, 5}}, {0}},
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

TEST(MatchInverse, TheLastOfSeveralWins)
{
    SdReader model = with_members(five_joints_now(), {{1, 2}, {2, 3}, {2, 1}});
    model = with_shells(model, {{1, 2, 3}, {1, 2, 3}, {2, 3, 4}});
    SdReader old = with_members(five_joints_earlier(), {{3, 4}, {1, 2}, {2, 3}});
    old = with_shells(old, {{2, 3, 4}, {1, 2, 3}});
    model.MakeMap(old);
    EXPECT_EQ(model.old_proj_maps.members_new_to_old, (map{{1, 2}, {2, 3}, {3, 2}}));
    EXPECT_EQ(model.old_proj_maps.members_old_to_new, (map{{2, 3}, {3, 2}}));
    EXPECT_EQ(model.old_proj_maps.shells_new_to_old, (map{{1, 2}, {2, 2}, {3, 1}}));
    EXPECT_EQ(model.old_proj_maps.shells_old_to_new, (map{{1, 3}, {2, 2}}));
}

/// A model whose six maps have entries after a comparison with a copy of it.
SdReader full_model()
{
    return with_shells(with_members(five_joints_now(), {{1, 2}, {2, 3}}), {{1, 2, 3}});
}

TEST(MatchMaps, AreReplacedByEachComparison)
{
    SdReader compared_before = full_model();
    compared_before.MakeMap(full_model());
    for (const SdReader& old :
         {SdReader(), five_joints_earlier(), with_members(five_joints_earlier(), {{2, 3}}), full_model()}) {
        SdReader again = compared_before;
        again.old_proj_maps.joints_old_to_new[77] = 99;
        SdReader first = full_model();
        again.MakeMap(old);
        first.MakeMap(old);
        EXPECT_EQ(model_differences(again, first), std::vector<std::string>());
    }
    SdReader none = compared_before;
    none.MakeMap(SdReader());
    EXPECT_EQ(filled_containers(none.old_proj_maps), std::vector<std::string>());
    EXPECT_EQ(filled_containers(compared_before.old_proj_maps).size(), 6U);
}

TEST(MatchMaps, AreAllThatAComparisonChanges)
{
    SdReader model = full_model();
    model.groups = {{"JOINT", "_G", {1}}};
    model.supports["FIXED"] = {2};
    const SdReader before = model;
    SdReader old = five_joints_earlier();
    old.groups = {{"JOINT", "_OLD", {1}}};
    model.MakeMap(old);
    EXPECT_EQ(model.old_proj_maps.joints_new_to_old.size(), 4U);
    model.old_proj_maps = {};
    EXPECT_EQ(model_differences(model, before), std::vector<std::string>());
}

TEST(MatchMaps, GiveEveryJointOfAModelItselfInTheModel)
{
    // The joints before it are taken when its turn comes, so that it is the first free one at its place.
    SdReader model = placed::joints_at({{0}, {0.05}, {0}, {0.09, 0.01, 0}, {1e300}, {0}});
    model = with_members(model, {{1, 2}, {2, 1}, {2, 2}, {0, 1}});
    model = with_shells(model, {{1, 2, 3}, {2, 3, 1}, {1, 2, 3}});
    const SdReader copy = model;
    model.MakeMap(model);
    EXPECT_EQ(placed::listed(model.old_proj_maps.joints_new_to_old, 6), (ints{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(placed::listed(model.old_proj_maps.members_new_to_old, 4), (ints{1, 1, 3, 0}));
    EXPECT_EQ(placed::listed(model.old_proj_maps.shells_new_to_old, 3), (ints{1, 2, 1}));
    SdReader other = copy;
    other.MakeMap(copy);
    EXPECT_EQ(model_differences(model, other), std::vector<std::string>());
}

} // namespace
} // namespace STAAD
