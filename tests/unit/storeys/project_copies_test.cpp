/// A project is a plain value.

#include "tests/support/deck.h"
#include "tests/support/layered.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using layered::differences;
using texts = std::vector<std::string>;

/// Something in every list.
const std::string office = "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 3 0; 3 0 6.5 0; 4 5 3 0; 5 5 6.5 0;\n"
                           "MEMBER INCIDENCES\n1 1 2; 2 2 3; 3 2 4; 4 3 5;\nELEMENT INCIDENCES SHELL\n11 2 4 5 3\n"
                           "MEMBER PROPERTY CHINESE\n1 2 PRIS YD 0.5 ZD 0.5\n3 4 PRIS YD 0.6 ZD 0.3\nCONSTANTS\n"
                           "LOAD 1 LOADTYPE Dead  TITLE FLOORS\nMEMBER LOAD\n3 4 UNI GY -12\nFINISH\n";
/// Other content everywhere.
const std::string shed = "UNIT METER KN\nJOINT COORDINATES\n1 0 4.5 0; 2 6 4.5 0;\nMEMBER INCIDENCES\n7 1 2;\n"
                         "MEMBER PROPERTY CHINESE\n7 TABLE ST W12X26\nCONSTANTS\n"
                         "LOAD 9 LOADTYPE Live  TITLE SNOW\nMEMBER LOAD\n7 UNI GY -1\nFINISH\n";

StaadProProject_layered project_of_text(const std::string& text)
{
    return layered::project_of(decks::read(text));
}

/// Changes one value inside every list, without replacing a list.
void change_in_place(StaadProProject_layered& project)
{
    StoreyLayer& storey = project.layers.at(1);
    storey.base = 1;
    storey.height = 2;
    storey.members.at(0).member.id = 3;
    storey.members.at(0).section.property = "?";
    storey.members.at(0).forces.beam = 4;
    storey.shells.at(0).node_ids.at(0) = 5;
    project.node_levels.at(0).position = 6;
    project.node_levels.at(0).level = 7;
    project.node_levels.at(0).rx = 8;
    project.node_levels.at(0).ry = 9;
    project.node_levels.at(0).rz = 10;
    project.sections.at(0).tag = 11;
    project.load_cases.at(1).title = "?";
}

TEST(ProjectCopies, ShareNothingWithTheirSource)
{
    const StaadProProject_layered source = project_of_text(office);
    StaadProProject_layered copy(source);
    EXPECT_EQ(differences(copy, source), texts());
    change_in_place(copy);
    EXPECT_EQ(differences(source, project_of_text(office)), texts());
    EXPECT_EQ(differences(copy, source).size(), 13U) << "one for each value changed";
}

TEST(ProjectCopies, ReplaceWhatWasThere)
{
    const StaadProProject_layered source = project_of_text(shed);
    StaadProProject_layered copy = project_of_text(office);
    copy = source;
    EXPECT_EQ(differences(copy, source), texts());
    const StaadProProject_layered& itself = copy;
    copy = itself;
    EXPECT_EQ(differences(copy, source), texts());
    copy = StaadProProject_layered();
    EXPECT_EQ(differences(copy, StaadProProject_layered()), texts());
    EXPECT_EQ(differences(source, project_of_text(shed)), texts());
}

TEST(ProjectMoves, TakeEverythingAndLeaveAProjectThatCanBeBuiltAgain)
{
    StaadProProject_layered source = project_of_text(office);
    StaadProProject_layered target(std::move(source));
    EXPECT_EQ(differences(target, project_of_text(office)), texts());
    EXPECT_TRUE(source.BuildFromModel(decks::read(shed))); // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(differences(source, project_of_text(shed)), texts());
    target = std::move(source);
    EXPECT_EQ(differences(target, project_of_text(shed)), texts());
}

} // namespace
} // namespace STAAD
