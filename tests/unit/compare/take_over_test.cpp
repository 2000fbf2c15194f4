/// Groups, supports and releases of an earlier project in the numbers of this model, and nothing besides.

#include "staad/compare/take_over.h"

#include "tests/support/model_equal.h"
#include "tests/support/placed_models.h"
#include "tests/support/take_over_models.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using numbers = std::vector<unsigned>;
using by_description = std::map<std::string, numbers>;
using texts = std::vector<std::string>;

/// `groups` as texts: "JOINT _A: 51 52".
texts listed(const std::vector<SdGroup>& groups)
{
    texts lines;
    for (const SdGroup& group : groups) {
        lines.push_back(group.kind + " " + group.name + ":");
        for (const int id : group.ids)
            lines.back() += " " + std::to_string(id);
    }
    return lines;
}

struct group_row {
    const char* why;
    std::vector<SdGroup> earlier;
    texts want;
};

const group_row group_rows[] = {
    {"none", {}, {}},
    {"joints", {{"JOINT", "_A", {10, 20, 30}}}, {"JOINT _A: 51 52 53"}},
    {"members", {{"MEMBER", "_A", {7, 8}}}, {"MEMBER _A: 201 202"}},
    {"a geometry lists members", {{"GEOMETRY", "_A", {7}}}, {"GEOMETRY _A: 201"}},
    {"elements go by the joints of their numbers", {{"ELEMENT", "_A", {20}}}, {"ELEMENT _A: 52"}},
    {"no kind is joints", {{"", "_A", {10}}}, {" _A: 51"}},
    {"an unknown kind is joints", {{"member", "_A", {7, 10}}}, {"member _A: 51"}},
    {"the order of the list, repeats kept", {{"JOINT", "_A", {30, 10, 10, 30}}}, {"JOINT _A: 53 51 51 53"}},
    {"joints that are gone are left out", {{"JOINT", "_A", {40, 20, 40}}}, {"JOINT _A: 52"}},
    {"members that are gone, too", {{"MEMBER", "_A", {9, 8}}}, {"MEMBER _A: 202"}},
    {"numbers that the earlier model does not have", {{"JOINT", "_A", {99, 0, -1, 10}}}, {"JOINT _A: 51"}},
    {"a number is no position", {{"JOINT", "_A", {1, 2, 3, 4}}, {"MEMBER", "_B", {1, 2, 3}}}, {}},
    {"nor a number of this model", {{"JOINT", "_A", {51, 57}}, {"MEMBER", "_B", {201, 203}}}, {}},
    {"joints are no members", {{"MEMBER", "_A", {10, 20}}, {"JOINT", "_B", {7, 8}}}, {}},
    {"an empty one is dropped", {{"JOINT", "_A", {}}, {"MEMBER", "_B", {}}, {"FLOOR", "_C", {}}}, {}},
    {"one that would be empty is dropped, the others keep their order",
     {{"JOINT", "_A", {20}},
      {"MEMBER", "_B", {9}},
      {"MEMBER", "_C", {7}},
      {"JOINT", "_D", {40}},
      {"JOINT", "_E", {10}}},
     {"JOINT _A: 52", "MEMBER _C: 201", "JOINT _E: 51"}},
};

TEST(TakeOver, BringsTheGroupsInTheNumbersOfThisModel)
{
    for (const group_row& c : group_rows) {
        SdReader old = take_over_models::earlier();
        old.groups = c.earlier;
        SdReader model = take_over_models::now();
        model.groups = {{"JOINT", "_OWN", {51}}, {"MEMBER", "_A", {203}}};
        model.TakeOverFrom(old);
        EXPECT_EQ(listed(model.groups), c.want) << c.why;
    }
}

struct description_row {
    const char* why;
    by_description own;
    by_description earlier;
    by_description want;
};

const description_row support_rows[] = {
    {"none", {}, {}, {}},
    {"this model's are gone", {{"FIXED", {51}}}, {}, {}},
    {"the earlier ones come", {}, {{"FIXED", {10, 30}}, {"PINNED", {20}}}, {{"FIXED", {51, 53}}, {"PINNED", {52}}}},
    {"in the place of this model's", {{"FIXED", {57}}, {"PINNED", {51}}}, {{"FIXED", {10}}}, {{"FIXED", {51}}}},
    {"joints that are gone are left out", {}, {{"FIXED", {40, 20, 99, 0}}}, {{"FIXED", {52}}}},
    {"a description stays though all its joints are gone", {}, {{"FIXED", {40}}}, {{"FIXED", {}}}},
    {"a description that had none stays", {{"A", {51}}}, {{"", {}}}, {{"", {}}}},
    {"numbers are no positions and no numbers of this model", {}, {{"FIXED", {1, 2, 51}}}, {{"FIXED", {}}}},
};

const description_row release_rows[] = {
    {"none", {}, {}, {}},
    {"this model's stay", {{"START MZ", {203}}}, {}, {{"START MZ", {203}}}},
    {"the earlier ones come",
     {},
     {{"END MY", {8, 7}}, {"START MZ", {7}}},
     {{"END MY", {202, 201}}, {"START MZ", {201}}}},
    {"beside this model's", {{"START MZ", {203}}}, {{"END MZ", {7}}}, {{"END MZ", {201}}, {"START MZ", {203}}}},
    {"the same description is replaced, not added to",
     {{"END MZ", {202, 203}}},
     {{"END MZ", {7}}},
     {{"END MZ", {201}}}},
    {"even if nothing is left of it", {{"END MZ", {202, 203}}}, {{"END MZ", {9}}}, {{"END MZ", {}}}},
    {"members that are gone are left out", {}, {{"END MZ", {9, 7, 99, 0}}}, {{"END MZ", {201}}}},
    {"a description stays though all its members are gone", {}, {{"END MZ", {9, 9}}}, {{"END MZ", {}}}},
};

template<std::size_t Count>
void expect_taken_over(by_description SdReader::*list, const description_row (&rows)[Count])
{
    for (const description_row& c : rows) {
        SdReader old = take_over_models::earlier();
        old.*list = c.earlier;
        SdReader model = take_over_models::now();
        model.*list = c.own;
        model.TakeOverFrom(old);
        EXPECT_EQ(model.*list, c.want) << c.why;
    }
}

TEST(TakeOver, PutsSupportsInThePlaceOfThisModelsAndAddsReleases)
{
    expect_taken_over(&SdReader::supports, support_rows);
    expect_taken_over(&SdReader::releases, release_rows);
}

TEST(TakeOver, MeansTheFirstOfSeveralRecordsOfANumber)
{
    SdReader old = take_over_models::earlier();
    old.nodes[1].id = 10;
    old.beams[1].id = 7;
    old.node_index = {{10, 2}}; // as reading leaves it: the last one
    old.beam_index = {{7, 2}};
    old.groups = {{"JOINT", "_J", {10, 20}}, {"MEMBER", "_M", {7, 8}}};
    old.supports["FIXED"] = {10};
    old.releases["END MZ"] = {7};
    SdReader model = take_over_models::now();
    model.TakeOverFrom(old);
    EXPECT_EQ(listed(model.groups), (texts{"JOINT _J: 51", "MEMBER _M: 201"}));
    EXPECT_EQ(model.supports["FIXED"], numbers{51});
    EXPECT_EQ(model.releases["END MZ"], numbers{201});
}

TEST(TakeOver, MeansTheLastOfSeveralMembersBetweenTheSameJoints)
{
    SdReader old = take_over_models::earlier();
    old.groups = {{"MEMBER", "_M", {7}}};
    SdReader model = take_over_models::now();
    model.beams.push_back(placed::member(299, 3, 4));
    model.TakeOverFrom(old);
    EXPECT_EQ(listed(model.groups), texts{"MEMBER _M: 299"});
}

TEST(TakeOver, KeepsNegativeNumbers)
{
    SdReader old = take_over_models::earlier();
    old.nodes[0].id = -10;
    old.groups = {{"JOINT", "_J", {-10}}};
    old.supports["FIXED"] = {static_cast<unsigned>(-10)};
    SdReader model = take_over_models::now();
    model.nodes[3].id = -51;
    model.TakeOverFrom(old);
    EXPECT_EQ(listed(model.groups), texts{"JOINT _J: -51"});
    EXPECT_EQ(model.supports["FIXED"], numbers{static_cast<unsigned>(-51)});
}

/// The earlier project with something to take over, and something that has no counterpart.
SdReader filled_earlier()
{
    SdReader old = take_over_models::earlier();
    old.groups = {{"JOINT", "_J", {10, 40, 99}}, {"MEMBER", "_M", {8}}, {"FLOOR", "_GONE", {40}}};
    old.supports["FIXED"] = {10, 40};
    old.releases["END MZ"] = {8, 9, 9};
    return old;
}

TEST(TakeOver, SaysWhatIsTakenAndWhatIsLost)
{
    const SdReader old = filled_earlier();
    const SdReader model = take_over_models::now();
    const TakenOver taken = definitions_to_take_over(model, old, match(model, old));
    ASSERT_EQ(taken.groups.size(), 3U);
    EXPECT_EQ(taken.groups[0].group.ids, std::vector<int>{51});
    EXPECT_EQ(taken.groups[0].lost, (std::vector<int>{40, 99}));
    EXPECT_EQ(taken.groups[2].group.name, "_GONE") << "also what is left out in the end";
    EXPECT_EQ(taken.groups[2].lost, std::vector<int>{40});
    ASSERT_EQ(taken.supports.size(), 1U);
    EXPECT_EQ(taken.supports[0].description, "FIXED");
    EXPECT_EQ(taken.supports[0].lost, std::vector<int>{40});
    ASSERT_EQ(taken.releases.size(), 1U);
    EXPECT_EQ(taken.releases[0].numbers, numbers{202});
    EXPECT_EQ(taken.releases[0].lost, (std::vector<int>{9, 9}));
}

TEST(TakeOver, ChangesDefinitionsAndMapsAlone)
{
    SdReader old = filled_earlier();
    old.brace_ids = {7};
    old.unit_text = "UNIT FEET KIP";
    old.surfaces.resize(1);
    SdReader model = take_over_models::now();
    model.old_proj_maps.joints_new_to_old[70] = 80;
    SdReader want = take_over_models::now();
    model.TakeOverFrom(old);
    want.MakeMap(old);
    want.groups = model.groups;
    want.supports = model.supports;
    want.releases = model.releases;
    EXPECT_EQ(model_differences(model, want), texts());
}

TEST(TakeOver, FromAnEmptyModelLeavesNoGroupsAndNoSupports)
{
    SdReader model = filled_earlier();
    model.TakeOverFrom(SdReader());
    EXPECT_TRUE(model.groups.empty());
    EXPECT_TRUE(model.supports.empty());
    EXPECT_EQ(model.releases, filled_earlier().releases);
}

TEST(TakeOver, FromTheModelItselfChangesNothing)
{
    SdReader model = filled_earlier();
    model.groups[0].ids = {10, 40}; // 99 is no joint
    SdReader want = model;
    model.TakeOverFrom(model);
    want.old_proj_maps = model.old_proj_maps;
    EXPECT_EQ(model_differences(model, want), texts());
}

} // namespace
} // namespace STAAD
