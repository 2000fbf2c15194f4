/// The six maps of a comparison: both ways, as a whole, and nothing besides.

#include "tests/support/model_equal.h"
#include "tests/support/placed_models.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using placed::five_joints_earlier;
using placed::five_joints_now;
using placed::with_members;
using placed::with_shells;
using ints = std::vector<int>;
using map = std::map<int, int>;

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
