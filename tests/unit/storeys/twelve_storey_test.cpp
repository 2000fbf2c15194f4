/// The storeys of the twelve-storey example, worked out from its design.
///
/// Every full floor has 12 columns below it, on a grid of 4 by 3, 9 beams along X (3 on each of 3 axes) and 8
/// along Z (2 on each of 4): 17. A floor slab has an element for each of the 3 by 2 bays but that of the lift
/// shaft: 5. Two sides of the shaft are walls, from the ground up.

#include "tests/support/layered.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using ints = std::vector<int>;

SdReader example()
{
    SdReader model;
    EXPECT_TRUE(model.ReadSDDataFromStdFile(STAADKIT_EXAMPLES_FOLDER "/twelve-storey.std"));
    return model;
}

StaadProProject_layered tower()
{
    StaadProProject_layered project;
    EXPECT_TRUE(project.BuidFromFile(STAADKIT_EXAMPLES_FOLDER "/twelve-storey.std", 0));
    return project;
}

struct storey_row {
    const char* what;
    double base;
    double height;
    int columns;
    int beams;
    int braces;
    int horizontal_braces;
    std::size_t shells;
};

const storey_row storey_rows[] = {
    // 10 basement walls, 3 + 3 along X and 2 + 2 along Z, and the ground slab of 5.
    {"basement", -3900, 3900, 12, 17, 0, 0, 15},
    // The mezzanine takes one bay along X: 6 columns end on it, 3 + 4 beams bound it, 2 slab elements lie in it.
    // The stair: its flight, a landing beam and 2 beams across, which are modelled 0.4 mm higher.
    {"below the mezzanine", 0, 2700, 6, 11, 0, 0, 2},
    // 6 columns stand on the mezzanine, the 6 of the lobby on the ground.
    {"above the mezzanine", 2700, 2400, 12, 17, 0, 0, 7},
    {"2nd storey", 5100, 3300, 12, 17, 0, 0, 7},
    {"3rd", 8400, 3300, 12, 17, 0, 0, 7},
    {"4th", 11700, 3300, 12, 17, 0, 0, 7},
    {"5th", 15000, 3300, 12, 17, 0, 0, 7},
    {"6th", 18300, 3300, 12, 17, 0, 0, 7},
    {"7th", 21600, 3300, 12, 17, 0, 0, 7},
    {"8th", 24900, 3300, 12, 17, 0, 0, 7},
    {"9th", 28200, 3300, 12, 17, 0, 0, 7},
    {"10th", 31500, 3300, 12, 17, 0, 0, 7},
    {"11th, with the cross over the lift shaft", 34800, 3300, 12, 17, 0, 2, 7},
    // The 8 columns of the outer axes and 3 + 3 beams on them; the wall along X.
    {"12th, to the eaves", 38100, 3000, 8, 6, 0, 0, 1},
    // The 4 columns of the middle axis, 3 ridge beams, 4 + 4 rafters, 2 braces in a gable, 3 + 3 roof elements
    // and the wall along Z, which is higher on one side.
    {"roof", 41100, 1500, 4, 11, 2, 0, 7},
};

/// How many members of each kind.
std::map<BeamType, int> kinds(const SdReader& model, const std::vector<LayerMember>& members)
{
    std::map<BeamType, int> found;
    for (const LayerMember& one : members)
        ++found[model.GetBeamType(one.member)];
    return found;
}

TEST(TwelveStorey, HasItsStoreys)
{
    const SdReader model = example();
    const StaadProProject_layered project = tower();
    ASSERT_EQ(project.layers.size(), std::size(storey_rows));
    for (std::size_t i = 0; i < std::size(storey_rows); ++i) {
        const storey_row& want = storey_rows[i];
        const StoreyLayer& layer = project.layers[i];
        EXPECT_EQ(layer.base, want.base) << want.what;
        EXPECT_EQ(layer.height, want.height) << want.what;
        auto found = kinds(model, layer.members);
        EXPECT_EQ(found[Column], want.columns) << want.what;
        EXPECT_EQ(found[Beam], want.beams) << want.what;
        EXPECT_EQ(found[Brace], want.braces) << want.what;
        EXPECT_EQ(found[HorizontalBrace], want.horizontal_braces) << want.what;
        EXPECT_EQ(layer.shells.size(), want.shells) << want.what;
    }
}

/// The members and elements of the model that are in no storey.
std::pair<ints, ints> in_no_storey(const SdReader& model, const StaadProProject_layered& project)
{
    std::set<int> members;
    std::set<int> shells;
    for (const SdBeam& member : model.beams)
        EXPECT_TRUE(members.insert(member.id).second);
    for (const SdShell& shell : model.shells)
        EXPECT_TRUE(shells.insert(shell.id).second);
    for (const StoreyLayer& layer : project.layers) {
        for (const LayerMember& one : layer.members)
            EXPECT_EQ(members.erase(one.member.id), 1U) << "in two storeys: " << one.member.id;
        for (const SdShell& shell : layer.shells)
            EXPECT_EQ(shells.erase(shell.id), 1U) << "in two storeys: " << shell.id;
    }
    return {ints(members.begin(), members.end()), ints(shells.begin(), shells.end())};
}

TEST(TwelveStorey, HasTheFoundationAndTheAerialInNoStorey)
{
    const auto [members, shells] = in_no_storey(example(), tower());
    const ints want_members = {121,  122,  123, 124, 125, 126, 127, 128, 129, // tie beams along X
                               131,  132,  133, 134, 135, 136, 137, 138,      // and along Z
                               1741, 1742, 1743};                             // struts of the aerial
    EXPECT_EQ(members, want_members);
    EXPECT_EQ(shells, (ints{151, 1751})) << "the bottom of the shaft and the sign on the roof";
}

TEST(TwelveStorey, AddsUp)
{
    // In storeys: 12 + 6 + 12 + 10 x 12 + 8 + 4 = 162 columns, 17 + 11 + 17 + 10 x 17 + 6 + 11 = 232 beams,
    // 2 + 2 braces, 15 + 2 + 7 + 10 x 7 + 1 + 7 = 102 elements; outside 17 beams, 3 braces, 2 elements.
    const SdReader model = example();
    EXPECT_EQ(model.beams.size(), 162U + 232U + 4U + 17U + 3U);
    EXPECT_EQ(model.shells.size(), 102U + 2U);
    // 12 joints on each of 13 full floors, 6 and the 3 of the stair on the mezzanine, 8, 4 and 1 from the eaves up.
    EXPECT_EQ(model.nodes.size(), 13U * 12 + 9 + 8 + 4 + 1);
}

TEST(TwelveStorey, HasItsJointsOnTheirLevels)
{
    // The joints of the stair are at 2700.4 mm, the tip of the aerial is above the last level, which is the 15th.
    std::map<int, int> want = {{0, 12}, {1, 12}, {2, 6 + 3}, {14, 8}, {15, 4}, {16, 1}};
    for (int floor = 3; floor <= 13; ++floor)
        want[floor] = 12;
    std::map<int, int> found;
    for (const int level : layered::joint_levels(tower()))
        ++found[level];
    EXPECT_EQ(found, want);
}

TEST(TwelveStorey, HasItsSectionsInTheOrderOfTheMembers)
{
    const std::vector<std::string> want = {
        "1 C30 PRIS800X400",                // tie beams, from 121 on, in no storey
        "2 C40 PRIS700X700",                // columns up to the first floor, from 201 on
        "3 C30 PRIS600X300",                // beams along X, 221
        "4 C30 PRIS550X300",                // beams along Z, 231
        "5 C30 PRIS450X250",                // mezzanine, 321
        "6 C30 PRIS400X500",                // flight of the stair, 341
        "7 C40 PRIS750",                    // lobby columns, 403
        "8 C40 PRIS600X600",                // columns, 501
        "9 C30 PRIS500X500",                // columns, 1001
        "10 Q345 TABLE ST PIP168X7",        // cross over the shaft, 1441: (168 - 154) / 2
        "11 Q345 TAPERED500X10X350X250X16", // rafters, 1631
    };
    std::vector<std::string> found;
    const StaadProProject_layered project = tower();
    for (const Section& section : project.sections)
        found.push_back(std::to_string(section.tag) + ' ' + section.material + ' ' + section.property);
    EXPECT_EQ(found, want);
    const Section column = layered::member(project, 701).section;
    EXPECT_EQ(column.tag, 8);
    EXPECT_EQ(column.material, "C30") << "of the same size as below, but of another concrete";
}

TEST(TwelveStorey, KeepsThicknessesAndLoadCases)
{
    const StaadProProject_layered project = tower();
    ASSERT_EQ(project.layers.size(), std::size(storey_rows));
    std::map<int, int> thicknesses;
    for (const SdShell& shell : project.layers[0].shells)
        ++thicknesses[shell.thickness];
    EXPECT_EQ(thicknesses, (std::map<int, int>{{140, 5}, {350, 10}}));
    std::vector<std::string> titles;
    for (const auto& [number, load_case] : project.load_cases)
        titles.push_back(std::to_string(number) + ' ' + load_case.title);
    EXPECT_EQ(titles, (std::vector<std::string>{"1 DEAD", "2 LIVE", "3 WIND +X"}));
}

} // namespace
} // namespace STAAD
