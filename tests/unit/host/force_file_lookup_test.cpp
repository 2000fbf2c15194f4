/// Where a project looks for the listing of its forces.

#include "staad/host/force_file.h"
#include "tests/support/force_listing.h"
#include "tests/support/layered.h"
#include "tests/support/project_folder.h"
#include "tests/support/scripted_services.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <string>

namespace STAAD {
namespace {

using layered::forces;

/// Columns 101 and 102, a beam 103 on top of them, a beam 104 between their feet, which is in no storey.
const std::string deck = "UNIT MMS KN\nJOINT COORDINATES\n1 0 0 0; 2 6000 0 0; 3 0 3000 0; 4 6000 3000 0;\n"
                         "MEMBER INCIDENCES\n101 1 3; 102 2 4; 103 3 4; 104 1 2;\nFINISH\n";

/// Of member 103 the last load case is left out, as always.
const std::string listing = listings::section(
    {"101 1:DEAD @0", "@3000", "2:LIVE @0", "@1500", "@3000", "104 1:DEAD @0", "103 1:DEAD @0", "@6000", "2:LIVE @0"});
/// A single case of member 102.
const std::string other_listing = listings::section({"102 7:WIND @0", "@3000", "8:NEVER @0"});

TEST(ForceFileBeside, HasTheNameOfTheModelLessFourCharacters)
{
    struct row {
        const char* model;
        const char* listing;
    };
    const row rows[] = {
        {"tower.std", "tower.txt"},
        {"tower.STD", "tower.txt"},
        {"C:\\jobs\\2026\\tower.std", "C:\\jobs\\2026\\tower.txt"},
        {"../a.b/tower.std", "../a.b/tower.txt"},
        {"tower.v2.std", "tower.v2.txt"},
        {"\xc2\xa5\xd3\xee.std", "\xc2\xa5\xd3\xee.txt"},
        {"tower.text", "tower..txt"}, // five with the dot: one of them stays
        {"tower", "t.txt"},
        {"a.b/c", "a.txt"},
        {".std", ".txt"},
        {"abcd", ".txt"},
        {"abc", "abc.txt"}, // nothing to drop
        {"a", "a.txt"},
        {"", ".txt"},
    };
    for (const row& one : rows)
        EXPECT_EQ(force_file_beside(one.model), one.listing) << one.model;
}

enum what_is_beside { nothing, a_listing, an_empty_file, a_folder };

struct lookup_case {
    const char* why;
    what_is_beside beside;
    const char* chosen; ///< in the dialog; empty: cancelled
    int with_forces;
    const char* want;
    std::size_t questions;
};

const lookup_case lookup_cases[] = {
    {"the file beside the model", a_listing, "other.txt", 1, "101: 1 2; 103: 1", 0},
    {"for any number but 0", a_listing, "other.txt", -1, "101: 1 2; 103: 1", 0},
    {"an empty file beside it: no other is looked for", an_empty_file, "other.txt", 1, "", 0},
    {"without forces nothing is looked for", nothing, "other.txt", 0, "", 0},
    {"nor read", a_listing, "other.txt", 0, "", 0},
    {"none beside it: the one chosen", nothing, "other.txt", 1, "102: 7", 1},
    {"a folder is no file", a_folder, "other.txt", 1, "102: 7", 1},
    {"cancelled", nothing, "", 1, "", 1},
    {"one chosen that is not there: the question is not repeated", nothing, "gone.txt", 1, "", 1},
};

/// Internal-force output files, then all files.
const std::u16string filter = u"\u5185\u529B\u8F93\u51FA\u6587\u4EF6(*.txt)|*.txt|"
                              u"\u6240\u6709\u6587\u4EF6(*.*)|*.*||";

TEST(ProjectForces, AreReadFromTheFileBesideTheModelOrTheOneChosen)
{
    for (const lookup_case& c : lookup_cases) {
        const project_folder folder(deck);
        folder.write("other.txt", other_listing);
        if (c.beside == a_folder)
            std::filesystem::create_directory(folder.path("deck.txt"));
        else if (c.beside != nothing)
            folder.write("deck.txt", c.beside == a_listing ? listing : "");
        scripted_services desktop;
        desktop.readable = false; // whether it can be read is seen by opening it
        desktop.chosen_file = *c.chosen == '\0' ? "" : folder.path(c.chosen);
        StaadProProject_layered project;
        EXPECT_TRUE(project.BuidFromFile(folder.model(), c.with_forces)) << c.why;
        EXPECT_EQ(layered::storeys(project), "0+3000: 101 102 103") << c.why;
        EXPECT_EQ(forces(project), c.want) << c.why;
        ASSERT_EQ(desktop.questions.size(), c.questions) << c.why;
        EXPECT_TRUE(desktop.messages.empty()) << c.why;
        if (c.questions != 0) {
            EXPECT_TRUE(desktop.questions[0].filter == filter);
            EXPECT_EQ(desktop.questions[0].flags, 0x1004U) << "the file must exist, no read-only box";
        }
    }
}

TEST(ForceFileDialog, GivesAnyPathAsItIs)
{
    scripted_services desktop;
    desktop.chosen_file = "D:\\\xc4\xda\xc1\xa6 1.out";
    EXPECT_EQ(find_force_file("no such folder/tower.std"), desktop.chosen_file);
    desktop.chosen_file.clear();
    EXPECT_EQ(find_force_file("no such folder/tower.std"), "");
    EXPECT_EQ(desktop.questions.size(), 2U);
}

struct dialog_case {
    const char* why;
    const char* deck;
    int with_forces;
    std::size_t questions;
    std::size_t messages;
};

const dialog_case dialog_cases[] = {
    {"no model: no question", "UNIT METER KN\n", 1, 0, 0},
    {"a model without levels",
     "UNIT MMS KN\nJOINT COORDINATES\n1 0 0 0; 2 3000 2000 0;\nMEMBER INCIDENCES\n1 1 2;\nFINISH\n", 1, 1, 0},
    {"without members: the question, then the word that there are none",
     "UNIT MMS KN\nJOINT COORDINATES\n1 0 0 0;\nMEMBER INCIDENCES\nFINISH\n", 1, 1, 1},
    {"nothing to say without forces", "UNIT MMS KN\nJOINT COORDINATES\n1 0 0 0;\nMEMBER INCIDENCES\nFINISH\n", 0, 0, 0},
};

TEST(ForceFileDialog, IsShownForAnyModelThatIsRead)
{
    for (const dialog_case& c : dialog_cases) {
        const project_folder folder(c.deck);
        scripted_services desktop;
        StaadProProject_layered project;
        EXPECT_FALSE(project.BuidFromFile(folder.model(), c.with_forces)) << c.why;
        EXPECT_EQ(desktop.questions.size(), c.questions) << c.why;
        EXPECT_EQ(desktop.messages.size(), c.messages) << c.why;
        EXPECT_FALSE(project.BuidFromFile("no such folder/tower.std", c.with_forces));
        EXPECT_EQ(desktop.questions.size(), c.questions) << "no file: no question";
    }
}

} // namespace
} // namespace STAAD
