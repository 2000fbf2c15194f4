/// The density of the concrete, from DEFINE MATERIAL blocks.
///
/// The line that counts is the first one after "ISOTROPIC CONCRETE" that does NOT begin with DENSITY, without
/// its first seven characters. Programs down the line rely on the numbers that this gives.

#include "staad/model/sd_reader.h"
#include "tests/support/deck.h"

#include <gtest/gtest.h>

#include <vector>

namespace STAAD {
namespace {

constexpr double usual_density = 23.5615;

struct density {
    const char* why;
    decks::lines lines;
    double want;
};

void expect_densities(const std::vector<density>& rows)
{
    for (const density& row : rows)
        EXPECT_EQ(decks::read_frame(row.lines).concrete_density, row.want) << row.why;
}

decks::lines concrete(const decks::lines& properties)
{
    decks::lines block = {"DEFINE MATERIAL START", "ISOTROPIC CONCRETE"};
    block.insert(block.end(), properties.begin(), properties.end());
    block.emplace_back("END DEFINE MATERIAL");
    return block;
}

TEST(ReadMaterial, TakesTheFirstLineThatDoesNotBeginWithDensity)
{
    expect_densities({
        {"an ordinary block: the rest of the E line", concrete({"E 2.17185e+007", "POISSON 0.17", "DENSITY 23.5616"}),
         85e7},
        {"DENSITY lines are passed over", concrete({"DENSITY 25", "DENSITY 26", "POISSON 0.17"}), 0.17},
        {"a blank before DENSITY makes it another line", concrete({" DENSITY 25"}), 0.0},
        {"six letters and a blank leave the number", concrete({"LAMBDA 12.5", "DENSITY 25"}), 12.5},
        {"a line of eight characters leaves one", concrete({"E 2.17e7"}), 7.0},
        {"a shorter line counts as 0", concrete({"E 22000"}), 0.0},
        {"DENSITY lines alone: the usual density", concrete({"DENSITY 25", "DENSITY 26"}), usual_density},
        {"the same if a word follows at once", concrete({"DENSITYX 25"}), usual_density},
        {"nothing after the name", concrete({}), usual_density},
        {"the next material does not count as such: its name line is read", concrete({"DENSITY 25", "ISOTROPIC 31 X"}),
         0.0},
    });
}

TEST(ReadMaterial, FindsTheBlock)
{
    const char* start = "DEFINE MATERIAL START";
    const char* name = "ISOTROPIC CONCRETE";
    const char* end = "END DEFINE MATERIAL";
    const char* twenty = "LAMBDA 20";
    const char* thirty = "LAMBDA 30";
    expect_densities({
        {"no block", {}, usual_density},
        {"no concrete", {start, "ISOTROPIC STEEL", twenty, end}, usual_density},
        {"no start", {name, twenty, end}, usual_density},
        {"no end", {start, name, twenty}, usual_density},
        {"the end before the start", {end, start, name, twenty}, usual_density},
        {"concrete before the start", {name, twenty, start, "ISOTROPIC STEEL", thirty, end}, usual_density},
        {"concrete after the end", {start, end, name, twenty}, usual_density},
        {"other materials before it", {start, "ISOTROPIC STEEL", twenty, name, thirty, end}, 30.0},
        {"the first concrete counts", {start, name, twenty, name, thirty, end}, 20.0},
        {"keywords stand anywhere in their lines",
         {"* DEFINE MATERIAL STARTS", "X ISOTROPIC CONCRETE C30", twenty, "X END DEFINE MATERIAL X"},
         20.0},
        {"the name may stand on the line of the start",
         {"DEFINE MATERIAL START ISOTROPIC CONCRETE", twenty, end},
         20.0},
        {"but not on that of the end", {start, "END DEFINE MATERIAL ISOTROPIC CONCRETE", twenty}, usual_density},
        {"the last start counts", {start, name, twenty, start, name, thirty, end}, 30.0},
        {"the last end counts", {start, name, end, thirty, end}, 0.0},
        {"of two blocks the last", {start, name, twenty, end, start, name, thirty, end}, 30.0},
        {"even if it has no concrete",
         {start, name, twenty, end, start, "ISOTROPIC STEEL", thirty, end},
         usual_density},
        {"a start after the last end hides the block", {start, name, twenty, end, start}, usual_density},
        {"small letters are no keyword", {"define material start", name, twenty, end}, usual_density},
    });
}

TEST(ReadMaterial, IsReadInEveryReadingWhateverTheUnitsAndThePlace)
{
    const decks::lines block = concrete({"LAMBDA 20"});
    EXPECT_EQ(decks::read(decks::joined(block) + decks::frame_deck({})).concrete_density, 20.0) << "before the members";
    SdReader model = decks::read_frame(block, {"UNIT FEET KIP", 2});
    EXPECT_EQ(model.concrete_density, 20.0) << "not scaled by the units";
    ASSERT_TRUE(model.ReadSDDataFromText(decks::frame_deck({})));
    EXPECT_EQ(model.concrete_density, usual_density) << "each reading starts from it";
}

} // namespace
} // namespace STAAD
