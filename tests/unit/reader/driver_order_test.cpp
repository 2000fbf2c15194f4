/// The order in which a reading takes the blocks, shown by what one block does to the work of another. The order of
/// the blocks in the file does not matter, except where a block is searched from a certain line on.

#include "staad/model/sd_reader.h"
#include "tests/support/deck.h"
#include "tests/support/model_equal.h"
#include "tests/support/shown.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

const decks::lines user_table = {"START USER TABLE", "TABLE 1", "UNIT MMS KN", "WIDE FLANGE", "W1", "10 20", "END"};

TEST(DriverOrder, UserTablesComeBeforeTheUnitLine)
{
    SdReader model;
    EXPECT_FALSE(model.ReadSDDataFromText("START USER TABLE\nTABLE 1\nEND\n"));
    EXPECT_EQ(model.usr_tables.count(1), 1U) << "read, though the text has no unit line";

    EXPECT_FALSE(model.ReadSDDataFromText("START USER TABLE\nTABLE 2\nEND\nUNIT METER KN\n"));
    EXPECT_EQ(model.usr_tables.count(2), 1U) << "read, though nothing follows the unit line";
}

TEST(DriverOrder, AUnitLineOfAUserTableGovernsIfItIsTheFirst)
{
    const SdReader before = decks::read(decks::joined(user_table) + decks::frame_deck({}));
    EXPECT_EQ(before.unit_text, "UNIT MMS KN");
    EXPECT_EQ(before.nodes.at(1).y, 1.0);
    const SdReader after = decks::read_frame(user_table);
    EXPECT_EQ(after.unit_text, "UNIT METER KN");
    EXPECT_EQ(after.nodes.at(1).y, 1000.0);
}

TEST(DriverOrder, ATextWithoutMembersStopsBeforeGroupsDensityAndBraces)
{
    SdReader model;
    model.concrete_density = 1.0;
    EXPECT_FALSE(model.ReadSDDataFromText("UNIT METER KN\nJOINT COORDINATES\n1 0 0 0\n"
                                          "START GROUP DEFINITION\nJOINT\n_A 1\nEND GROUP DEFINITION\n"
                                          "MEMBER TRUSS\n1\nSUPPORTS\n1 FIXED\nLOAD 1\nSELFWEIGHT Y -1\nFINISH\n"));
    EXPECT_EQ(model.unit_text, "UNIT METER KN");
    EXPECT_EQ(model.length_factor, 1000.0);
    EXPECT_EQ(model.concrete_density, 1.0);
    EXPECT_EQ(filled_containers(model), std::vector<std::string>{"unit_text"});
}

/// A model with the given lines right after the members, and others before them.
SdReader read_around_members(const std::string& before, const std::string& after)
{
    return decks::read(decks::joined({"UNIT METER KN", before, "JOINT COORDINATES", "1 0 0 0; 2 1 0 0",
                                      "MEMBER INCIDENCES", "1 1 2", after, "FINISH"}));
}

TEST(DriverOrder, GroupsAndPropertiesAreSearchedFromTheLineAfterTheMembers)
{
    const std::string start = "START GROUP DEFINITION";
    const std::string rest = "MEMBER\n_A 1\nEND GROUP DEFINITION";
    EXPECT_TRUE(read_around_members(start + "\n" + rest, "").groups.empty());
    EXPECT_TRUE(read_around_members(start, rest).groups.empty());
    EXPECT_EQ(read_around_members("", start + "\n" + rest).groups.size(), 1U) << "at once";
    const auto section = [](const std::string& before, const std::string& after) {
        return read_around_members(before, after).beams.at(0).sect_text;
    };
    EXPECT_EQ(section("MEMBER PROPERTY\n1 TABLE ST A", ""), "");
    EXPECT_EQ(section("", "MEMBER PROPERTY\n1 TABLE ST A"), "TABLE ST A") << "at once";
    EXPECT_EQ(section("CONSTANTS", "MEMBER PROPERTY\nCONSTANTS\n1 TABLE ST A"), "")
        << "a CONSTANTS line before the members does not hide the one that ends the block";
}

TEST(DriverOrder, MaterialLinesOverrideThePropertyBlock)
{
    const SdReader model =
        decks::read("MATERIAL CONCRETE MEMB 1 2\n" +
                    decks::frame_deck({"MATERIAL Q345 MEMB 3", "MEMBER PROPERTY", "1 TO 4 TABLE ST A"}));
    EXPECT_EQ(shown_fields(model.beams, &SdBeam::material), "CONCRETE CONCRETE Q345 STEEL -");
}

TEST(DriverOrder, MaterialAllReachesTheCopiesOfSurfaces)
{
    const SdReader model = decks::read_frame({"MATERIAL C40 ALL", "ELEMENT INCIDENCES SHELL", "7 1 2 3",
                                              "SURFACE INCIDENCE", "1 2 3 SUR 9", "MEMBER PROPERTY", "1 TABLE ST A"});
    EXPECT_EQ(shown_fields(model.beams, &SdBeam::material), "C40 C40 C40 C40 C40");
    EXPECT_EQ(shown_fields(model.shells, &SdShell::material), "C40 C40");
    EXPECT_EQ(model.surfaces.at(0).material, "CONCRETE") << "the surface itself keeps its own";
}

TEST(DriverOrder, ElementThicknessesComeBeforeTheCopiesOfSurfaces)
{
    const SdReader model =
        decks::read_frame({"ELEMENT INCIDENCES SHELL", "9 1 2 3", "ELEMENT PROPERTY", "9 THICKNESS 0.2",
                           "SURFACE INCIDENCE", "1 2 3 SUR 9", "SURFACE PROPERTY", "9 THICKNESS 0.3"});
    EXPECT_EQ(shown_fields(model.shells, &SdShell::thickness), "200 300");
}

/// Every block, each of one line or more, in the order in which they are taken.
const std::vector<decks::lines> every_block = {
    user_table,
    {"START GROUP DEFINITION", "MEMBER", "_A 1 2", "END GROUP DEFINITION"},
    {"DEFINE MATERIAL START", "ISOTROPIC CONCRETE", "LAMBDA 20", "END DEFINE MATERIAL"},
    {"MEMBER TRUSS", "1 2"},
    {"ELEMENT INCIDENCES SHELL", "1 1 2 3"},
    {"ELEMENT PROPERTY", "1 THICKNESS 0.2"},
    {"SURFACE INCIDENCE", "1 2 3 SUR 1"},
    {"SURFACE PROPERTY", "1 THICKNESS 0.3"},
    {"MEMBER PROPERTY", "1 TABLE ST A", "CONSTANTS"},
    {"BETA 90 MEMB 1"},
    {"MATERIAL M MEMB 1"},
    {"SUPPORTS", "1 2 FIXED"},
    {"MEMBER RELEASE", "1 2 START MZ"},
    {"MEMBER OFFSET", "1 START 0.1 0 0"},
    {"LOAD 1", "SELFWEIGHT Y -1", "LOAD COMB 9"},
};

TEST(DriverOrder, IsNotThatOfTheFile)
{
    // Thicknesses are searched from the elements on; these two keep their order.
    const auto elements = every_block.begin() + 4;
    decks::lines forwards;
    decks::lines backwards;
    for (auto block = every_block.begin(); block != every_block.end(); ++block) {
        forwards.insert(forwards.end(), block->begin(), block->end());
        if (block != elements)
            backwards.insert(backwards.begin(), block->begin(), block->end());
        if (block == elements + 1)
            backwards.insert(backwards.begin(), elements->begin(), elements->end());
    }
    const SdReader model = decks::read_frame(forwards);
    EXPECT_EQ(model_differences(decks::read_frame(backwards), model), std::vector<std::string>());
    EXPECT_EQ(model.usr_tables.size(), 1U);
    EXPECT_EQ(model.groups.at(0).ids.size(), 2U);
    EXPECT_EQ(model.concrete_density, 20.0);
    EXPECT_EQ(model.brace_ids.size(), 2U);
    EXPECT_EQ(shown_fields(model.shells, &SdShell::thickness), "200 300") << "an element and the copy of a surface";
    EXPECT_EQ(model.beams.at(0).sect_text, "TABLE ST A");
    EXPECT_EQ(model.beams.at(0).beta, 90.0);
    EXPECT_EQ(model.beams.at(0).material, "M") << "after the section, which gives STEEL";
    EXPECT_EQ(model.beams.at(0).offset_start.y, 100.0);
    EXPECT_EQ(model.supports.at("FIXED").size(), 2U);
    EXPECT_EQ(model.releases.at("START MZ").size(), 2U);
    EXPECT_EQ(model.load_cases.size(), 1U);
}

} // namespace
} // namespace STAAD
