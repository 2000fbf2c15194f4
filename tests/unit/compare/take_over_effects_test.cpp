/// What a take-over leaves in a model beside groups, supports and releases, and what it leaves alone.

#include "tests/support/model_equal.h"
#include "tests/support/placed_models.h"
#include "tests/support/take_over_models.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using ints = std::vector<int>;
using by_description = std::map<std::string, std::vector<unsigned>>;
using texts = std::vector<std::string>;

/// The earlier project with something to take over.
SdReader filled_earlier()
{
    SdReader old = take_over::earlier();
    old.groups = {{"JOINT", "_J", {10}}, {"MEMBER", "_M", {8}}};
    old.supports["FIXED"] = {10};
    old.releases["END MZ"] = {8};
    return old;
}

TEST(TakeOverEffects, AreTheMapsOfTheComparison)
{
    const SdReader old = filled_earlier();
    SdReader model = take_over::now();
    SdReader compared = take_over::now();
    model.old_proj_maps.joints_new_to_old[70] = 80;
    model.TakeOverFrom(old);
    compared.MakeMap(old);
    EXPECT_EQ(record_differences(model.old_proj_maps, compared.old_proj_maps), texts());
    EXPECT_EQ(placed::listed(model.old_proj_maps.joints_new_to_old, 4), (ints{3, 0, 2, 1}));
    EXPECT_EQ(placed::listed(model.old_proj_maps.members_new_to_old, 3), (ints{0, 2, 1}));
    EXPECT_EQ(placed::listed(model.old_proj_maps.shells_new_to_old, 1), ints{1});
}

TEST(TakeOverEffects, AreNoOthers)
{
    SdReader old = filled_earlier();
    old.brace_ids = {7};
    old.unit_text = "UNIT FEET KIP";
    old.surfaces.resize(1);
    SdReader model = take_over::now();
    SdReader before = model;
    model.TakeOverFrom(old);
    before.groups = model.groups;
    before.supports = model.supports;
    before.releases = model.releases;
    before.old_proj_maps = model.old_proj_maps;
    EXPECT_EQ(model_differences(model, before), texts());
}

TEST(TakeOverEffects, OfAnEmptyModelAreNoGroupsAndNoSupports)
{
    SdReader model = filled_earlier();
    model.TakeOverFrom(SdReader());
    EXPECT_TRUE(model.groups.empty());
    EXPECT_TRUE(model.supports.empty());
    EXPECT_EQ(model.releases, (by_description{{"END MZ", {8}}}));
}

TEST(TakeOverEffects, OfACopyAreNone)
{
    SdReader model = filled_earlier();
    SdReader want = model;
    model.TakeOverFrom(want);
    want.old_proj_maps = model.old_proj_maps;
    EXPECT_EQ(model_differences(model, want), texts());
}

TEST(TakeOverEffects, OfTheModelItselfAreNone)
{
    SdReader model = filled_earlier();
    SdReader want = model;
    model.TakeOverFrom(model);
    want.old_proj_maps = model.old_proj_maps;
    EXPECT_EQ(model_differences(model, want), texts());
}

} // namespace
} // namespace STAAD
