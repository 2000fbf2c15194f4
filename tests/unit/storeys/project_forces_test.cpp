/// What the members of a project hold of the forces.

#include "tests/support/deck.h"
#include "tests/support/force_listing.h"
#include "tests/support/layered.h"
#include "tests/support/model_equal.h"
#include "tests/support/project_folder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

using layered::forces;
using layered::member;
using texts = std::vector<std::string>;

/// Columns 101 and 102, a beam 103 on top of them, a beam 104 between their feet, which is in no storey.
const std::string deck = "UNIT MMS KN\nJOINT COORDINATES\n1 0 0 0; 2 6000 0 0; 3 0 3000 0; 4 6000 3000 0;\n"
                         "MEMBER INCIDENCES\n101 1 3; 102 2 4; 103 3 4; 104 1 2;\nFINISH\n";

/// Of member 103 the last load case is left out, as always.
const std::string listing = listings::section(
    {"101 1:DEAD @0", "@3000", "2:LIVE @0", "@1500", "@3000", "104 1:DEAD @0", "103 1:DEAD @0", "@6000", "2:LIVE @0"});

StaadProProject_layered project_with(const std::string& text)
{
    const project_folder folder(deck);
    folder.write("deck.txt", text);
    StaadProProject_layered project;
    EXPECT_TRUE(project.BuidFromFile(folder.model(), 1));
    return project;
}

TEST(LayerMemberForces, AreThoseImported)
{
    const StaadProProject_layered project = project_with(listing);
    SdReader model = decks::read(deck);
    model.ReadForceMomentFromText(listing);
    const BeamForceAndMOM column = member(project, 101).forces;
    EXPECT_EQ(record_differences(column, model.beam_forces.at(1)), texts());
    EXPECT_EQ(column.beam, 1);
    ASSERT_EQ(column.records.count(2), 1U);
    ASSERT_EQ(column.records.at(2).points.size(), 3U);
    EXPECT_EQ(listings::values_of(column.records.at(2).points[1]), (listings::values{1500, 1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(column.records.at(2).pkpm_points.size(), 9U);
    EXPECT_EQ(record_differences(member(project, 102).forces, BeamForceAndMOM()), texts()) << "none in the listing";
    EXPECT_EQ(member(project, 103).forces.beam, 3);
}

TEST(LayerMemberForces, LeaveTheStoreysInTheUnitsOfTheModel)
{
    const StaadProProject_layered project =
        project_with(listings::section({"101 1:DEAD @0", "@3", "2:LIVE @0"}, "(m) (MN) (kN-m)"));
    EXPECT_EQ(layered::storeys(project), "0+3000: 101 102 103");
    EXPECT_EQ(project.node_levels.back().ry, 6000);
    EXPECT_EQ(listings::values_of(member(project, 101).forces.records.at(1).points.at(1)),
              (listings::values{3000, 1000, 2000, 3000, 4000, 5000, 6000}));
}

/// The forces of one load case, of its number.
BeamForceAndMOM forces_of(int position, int load_case)
{
    BeamForceAndMOM made;
    made.beam = position;
    made.records[load_case].load_case = load_case;
    made.records[load_case].points = {{0, 1, 2, 3, 4, 5, 6}};
    return made;
}

TEST(LayerMemberForces, GoByThePositionOfTheMember)
{
    SdReader model = decks::read(deck);
    for (SdBeam& beam : model.beams)
        beam.id = 2;
    model.beam_forces = {{1, forces_of(1, 11)}, {3, forces_of(3, 13)}, {4, forces_of(4, 14)}, {9, forces_of(9, 19)}};
    EXPECT_EQ(forces(layered::project_of(model)), "2: 11; 2: 13") << "position 4 is in no storey, 9 no member";
}

} // namespace
} // namespace STAAD
