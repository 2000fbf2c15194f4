/// What stays in a project and what is replaced.

#include "staad/report/read_report.h"
#include "tests/support/deck.h"
#include "tests/support/force_listing.h"
#include "tests/support/layered.h"
#include "tests/support/scripted_services.h"
#include "tests/support/temporary_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using layered::differences;
using layered::project_of;
using layered::storeys;
using texts = std::vector<std::string>;

/// Two storeys with everything that a project keeps.
const std::string office = "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 3 0; 3 0 6.5 0; 4 5 3 0; 5 5 6.5 0;\n"
                           "MEMBER INCIDENCES\n1 1 2; 2 2 3; 3 2 4; 4 3 5;\nELEMENT INCIDENCES SHELL\n11 2 4 5 3\n"
                           "ELEMENT PROPERTY\n11 THICKNESS 0.2\nMEMBER PROPERTY CHINESE\n1 2 PRIS YD 0.5 ZD 0.5\n"
                           "3 4 PRIS YD 0.6 ZD 0.3\nCONSTANTS\nMATERIAL C30 ALL\n"
                           "LOAD 1 LOADTYPE Dead  TITLE SELF AND FLOORS\nMEMBER LOAD\n3 4 UNI GY -12\n"
                           "LOAD 4 LOADTYPE Wind  TITLE WIND X\nMEMBER LOAD\n1 2 UNI GX 1.5\nFINISH\n";
/// One level, other sections, another load case, no elements.
const std::string shed = "UNIT METER KN\nJOINT COORDINATES\n1 0 4.5 0; 2 6 4.5 0;\nMEMBER INCIDENCES\n7 1 2;\n"
                         "MEMBER PROPERTY CHINESE\n7 TABLE ST W12X26\nCONSTANTS\nMATERIAL Q235 ALL\n"
                         "LOAD 9 LOADTYPE Live  TITLE SNOW\nMEMBER LOAD\n7 UNI GY -1\nFINISH\n";
/// A pyramid: no level.
const std::string tent = "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 6 1 0; 3 3 4 0;\nMEMBER INCIDENCES\n"
                         "1 1 3; 2 2 3;\nLOAD 2 LOADTYPE Dead  TITLE TENT\nMEMBER LOAD\n1 UNI GY -1\nFINISH\n";

StaadProProject_layered project_of_text(const std::string& text)
{
    return project_of(decks::read(text));
}

TEST(LayeredProject, HoldsWhatTheFileSays)
{
    const StaadProProject_layered project = project_of_text(office);
    ASSERT_EQ(storeys(project), "0+3000: 1 3; 3000+3500: 2 4 | 11");
    ASSERT_EQ(layered::joint_levels(project), (std::vector<int>{0, 1, 2, 1, 2}));
    EXPECT_EQ(project.node_levels[4].ry, 5000) << "the X of the file";
    ASSERT_EQ(project.sections.size(), 2U);
    EXPECT_EQ(project.sections[1].property, "PRIS600X300");
    const SdShell& wall = project.layers[1].shells[0];
    EXPECT_EQ(wall.thickness, 200);
    EXPECT_EQ(wall.material, "C30");
    EXPECT_EQ(wall.node_ids, (std::vector<int>{2, 4, 5, 3}));
    ASSERT_EQ(project.load_cases.size(), 2U);
    EXPECT_EQ(project.load_cases.at(1).title, "SELF AND FLOORS");
    EXPECT_EQ(project.load_cases.at(4).id, 4);
    EXPECT_EQ(project.load_cases.at(4).load_type(), LoadCase::Wind);
}

TEST(LayeredProject, IsTheSameFromAFileAndFromAModel)
{
    const temporary_file file(office);
    const std::string listing = listings::section({"1 1:DEAD @0", "@3", "4:WIND @0"}, "(m) (kN) (kN-m)");
    std::ofstream(std::filesystem::path(file.path()).replace_extension(".txt"), std::ios::binary) << listing;
    for (const int with_forces : {0, 1}) {
        SdReader model = decks::read(office);
        if (with_forces != 0)
            model.ReadForceMomentFromText(listing);
        const StaadProProject_layered want = project_of(model);
        StaadProProject_layered project;
        EXPECT_TRUE(project.BuidFromFile(file.path(), with_forces));
        EXPECT_EQ(differences(project, want), texts());
        StaadProProject_layered reported;
        ReadReport of_model;
        ReadReport of_forces;
        of_forces.findings.resize(3);
        EXPECT_TRUE(reported.BuidFromFile(file.path(), with_forces, of_model, of_forces));
        EXPECT_EQ(differences(reported, want), texts());
        // The title, and the load case that the section ends with.
        EXPECT_EQ(of_forces.findings.size(), with_forces == 0 ? 0U : 2U);
        StaadProProject_layered moved;
        EXPECT_TRUE(moved.BuildFromModel(std::move(model)));
        EXPECT_EQ(differences(moved, want), texts());
        EXPECT_EQ(layered::member(want, 1).forces.records.size(), with_forces == 0 ? 0U : 1U);
    }
}

TEST(LayeredProjectReport, IsThatOfReadingTheModel)
{
    const std::string deck = office.substr(0, office.size() - 7) + "PERFORM MAGIC\nFINISH\n";
    const temporary_file file(deck);
    SdReader model;
    ReadReport want;
    EXPECT_TRUE(model.ReadSDDataFromText(deck, want));
    ASSERT_FALSE(want.findings.empty());
    ReadReport report;
    ReadReport of_forces;
    report.findings.resize(3);
    StaadProProject_layered project;
    EXPECT_TRUE(project.BuidFromFile(file.path(), 0, report, of_forces));
    ASSERT_EQ(report.findings.size(), want.findings.size());
    for (std::size_t i = 0; i < want.findings.size(); ++i) {
        EXPECT_EQ(report.findings[i].code, want.findings[i].code);
        EXPECT_EQ(report.findings[i].text, want.findings[i].text);
        EXPECT_EQ(report.findings[i].first_line, want.findings[i].first_line);
    }
}

TEST(LayeredProjectReport, SaysWhyThereIsNoModel)
{
    ReadReport report;
    ReadReport of_forces;
    of_forces.findings.resize(3);
    StaadProProject_layered project;
    EXPECT_FALSE(project.BuidFromFile("no such folder/no such file.std", 1, report, of_forces));
    EXPECT_TRUE(of_forces.findings.empty());
    ASSERT_EQ(report.findings.size(), 1U);
    EXPECT_EQ(report.findings[0].code, "file-missing");
}

// ---- what is replaced ----------------------------------------------------------------------------------

TEST(LayeredProject, OfANewFileReplacesTheOldOne)
{
    const temporary_file office_file(office);
    const temporary_file shed_file(shed);
    StaadProProject_layered project;
    EXPECT_TRUE(project.BuidFromFile(office_file.path(), 0));
    EXPECT_TRUE(project.BuidFromFile(shed_file.path(), 0));
    EXPECT_EQ(differences(project, project_of_text(shed)), texts());
    EXPECT_EQ(project.load_cases.count(1), 0U);
    EXPECT_TRUE(project.BuidFromFile(office_file.path(), 0));
    EXPECT_TRUE(project.BuidFromFile(office_file.path(), 0));
    EXPECT_EQ(differences(project, project_of_text(office)), texts()) << "twice the same is once";
}

TEST(LayeredProject, StaysAsItWasIfNoModelIsRead)
{
    const StaadProProject_layered before = project_of_text(office);
    const temporary_file no_unit("JOINT COORDINATES\n1 0 0 0;\n");
    const temporary_file no_members("UNIT METER KN\nJOINT COORDINATES\n1 0 3 0; 2 6 3 0;\nFINISH\n");
    const temporary_file empty("");
    const char* const paths[] = {no_unit.path(), no_members.path(), empty.path(), "no such folder/no such file.std", "",
                                 nullptr};
    for (const char* const path : paths)
        for (const int with_forces : {0, 1}) {
            scripted_services desktop;
            StaadProProject_layered project = before;
            EXPECT_FALSE(project.BuidFromFile(path, with_forces));
            EXPECT_EQ(differences(project, before), texts()) << (path == nullptr ? "(null)" : path);
            ReadReport report;
            ReadReport of_forces;
            EXPECT_FALSE(project.BuidFromFile(path, with_forces, report, of_forces));
            EXPECT_EQ(differences(project, before), texts()) << (path == nullptr ? "(null)" : path);
        }
}

TEST(LayeredProject, HasNewJointLevelsOnlyIfThereIsNoLevel)
{
    const temporary_file file(tent);
    StaadProProject_layered want = project_of_text(office);
    want.node_levels = {{1, 0, 0, 0, 0}, {2, 0, 0, 6000, 1000}, {3, 0, 0, 3000, 4000}};

    StaadProProject_layered project = project_of_text(office);
    EXPECT_FALSE(project.BuidFromFile(file.path(), 0));
    EXPECT_EQ(differences(project, want), texts());

    StaadProProject_layered from_model = project_of_text(office);
    EXPECT_FALSE(from_model.BuildFromModel(decks::read(tent)));
    EXPECT_EQ(differences(from_model, want), texts());
}

} // namespace
} // namespace STAAD
