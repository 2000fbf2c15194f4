/// From the container to a structure and back.

#include "staad/model/sd_reader.h"
#include "staad/structure/container.h"
#include "tests/support/example_files.h"
#include "tests/support/model_equal.h"
#include "tests/support/random_deck.h"
#include "tests/unit/structure/plain_differences.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace STAAD {
namespace {

TEST(StructureOf, GivesTheContainerOfTheExamplesBack)
{
    for (const char* name : {"concrete-frame.std", "steel-portal.std", "twelve-storey.std"}) {
        SdReader host;
        ASSERT_TRUE(host.ReadSDDataFromText(examples::content(name)));
        SdReader back;
        to_reader(structure_of(host), back);
        EXPECT_EQ(model_differences(host, back), std::vector<std::string>{}) << name;
    }
}

TEST(StructureOf, GivesTheContainerOfPlainDecksBack)
{
    for (std::uint64_t seed = 1; seed <= 150; ++seed) {
        const decks::random_deck deck = decks::make_random_deck(seed, 8, decks::deck_kind::plain);
        SdReader host;
        ASSERT_TRUE(host.ReadSDDataFromText(deck.text));
        SdReader back;
        to_reader(structure_of(host), back);
        test::take_self_weights_on_all(host, back);
        for (const std::string& difference : model_differences(host, back))
            // The order of the rows of a table is not known after two with the same numbers.
            EXPECT_TRUE((difference.find("].sect_text: ") != std::string::npos && test::is_rounding(difference)) ||
                        difference.find("usr_tables[") == 0)
                << "seed " << seed << ", " << difference;
    }
}

TEST(StructureOf, ReadsTextsInTheUnitsOfTheModel)
{
    SdReader model;
    model.unit_text = "UNIT FEET KIP";
    model.nodes.resize(1);
    model.nodes[0].id = 7;
    model.node_index[7] = 1;
    model.beams.resize(1);
    model.beams[0].id = 3;
    model.beams[0].node_start = 1; // and no end
    model.beams[0].sect_name = "PRIS YD 2 ZD 1";
    model.beams[0].material = "C30";
    model.beams[0].int_list = {1};
    model.beam_index[3] = 1;
    model.brace_ids = {3};
    model.supports["FIXED BUT KFY 1"] = {7};
    model.load_cases[4].id = 4;
    model.load_defs[1] = {"MEMBER LOAD UNI", "GZ", {-0.5, 0.0, 1524.0}, 4}; // in units of the model already
    const Structure structure = structure_of(model);
    ASSERT_EQ(structure.members.size(), 1U);
    const Structure::Member& member = structure.members[0];
    EXPECT_EQ(member.start, 0);
    EXPECT_EQ(member.end, -1);
    EXPECT_EQ(member.behaviour, Structure::Behaviour::truss);
    ASSERT_GE(member.material, 0);
    EXPECT_EQ(structure.materials[static_cast<std::size_t>(member.material)].name, "C30");
    ASSERT_EQ(structure.sections.size(), 1U);
    ASSERT_EQ(structure.sections[0].values.size(), 2U);
    EXPECT_DOUBLE_EQ(structure.sections[0].values[0].value, 609.6);
    ASSERT_EQ(structure.supports.size(), 1U);
    EXPECT_DOUBLE_EQ(structure.supports[0].springs[2], 4.4482216152605 / 304.8); // KFY is along model z
    EXPECT_EQ(structure.supports[0].held, (std::array<bool, 6>{true, true, false, true, true, true}));
    ASSERT_EQ(structure.load_cases.size(), 1U);
    EXPECT_EQ(structure.load_cases[0].number, 4);
    ASSERT_EQ(structure.load_cases[0].loads.size(), 1U);
    const Structure::Load& load = structure.load_cases[0].loads[0];
    EXPECT_EQ(load.kind, Structure::Load::Kind::uniform);
    EXPECT_EQ(load.direction, Structure::Load::Direction::global_z);
    EXPECT_EQ(load.value_count, 3);
    EXPECT_EQ(load.values, (std::array<double, 6>{-0.5, 0.0, 1524.0}));
    ASSERT_EQ(load.on.size(), 1U);
    EXPECT_EQ(load.on[0].first, 0);
    EXPECT_EQ(load.source, 0U);
    EXPECT_TRUE(structure.sources.empty());
}

} // namespace
} // namespace STAAD
