/// When a text is a model and when not, what is left in the object, and the ways in.

#include "staad/report/read_report.h"
#include "tests/support/deck.h"
#include "tests/support/filled_records.h"
#include "tests/support/model_equal.h"
#include "tests/support/shown.h"
#include "tests/support/temporary_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#ifndef _WIN32
#    include <sys/stat.h>
#    include <unistd.h>
#endif

namespace STAAD {
namespace {

using texts = std::vector<std::string>;

const char* const small_frame = "STAAD SPACE\n"
                                "UNIT METER KN\n"
                                "JOINT COORDINATES\n"
                                "1 0 0 0; 2 5 0 0; 3 5 3 0; 4 0 3 0\n"
                                "MEMBER INCIDENCES\n"
                                "1 1 2; 2 2 3; 9 3 77\n"
                                "ELEMENT INCIDENCES SHELL\n"
                                "20 1 2 3 4\n"
                                "ELEMENT PROPERTY\n"
                                "20 21 THICKNESS 0.12\n"
                                "CONSTANTS\n"
                                "MATERIAL STEEL MEMB 1 TO 2\n"
                                "FINISH\n";

const struct {
    const char* why;
    const char* text;
    bool want;
} verdicts[] = {
    {"the least of all models", "UNIT METER KN\nJOINT COORDINATES\nMEMBER INCIDENCES", true},
    {"no text", "", false},
    {"blank lines only", "\n \n\t\n", false},
    {"no unit line", "JOINT COORDINATES\n1 0 0 0\nMEMBER INCIDENCES\n1 1 1\n", false},
    {"the unit line is the last", "STAAD SPACE\nUNIT METER KN", false},
    {"blank lines after it do not count", "UNIT METER KN\n\n \t\n", false},
    {"nor do generated comments", "UNIT METER KN\n*{ TYPE AUTO\n", false},
    {"nor does a line that continues it", "UNIT METER -\nKN\n", false},
    {"no joint keyword", "UNIT METER KN\nMEMBER INCIDENCES\n1 1 2\n", false},
    {"the joint keyword before the unit line", "JOINT COORDINATES\n1 0 0 0\nUNIT METER KN\nMEMBER INCIDENCES\n", false},
    {"no member keyword", "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0\nFINISH\n", false},
    {"the member keyword before the joints", "UNIT METER KN\nMEMBER INCIDENCES\nJOINT COORDINATES\n1 0 0 0\n", false},
    {"the member keyword with more after it", "UNIT METER KN\nJOINT COORDINATES\nMEMBER INCIDENCES 1\n", false},
    {"the member keyword with a blank after it", "UNIT METER KN\nJOINT COORDINATES\nMEMBER INCIDENCES \n", false},
    {"the member keyword with a blank before it", "UNIT METER KN\nJOINT COORDINATES\n MEMBER INCIDENCES\n", false},
    {"two blanks inside the member keyword", "UNIT METER KN\nJOINT COORDINATES\nMEMBER  INCIDENCES\n", false},
    {"the member keyword swallowed by a continuation",
     "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0 -\nMEMBER INCIDENCES\n1 1 1\n", false},
    {"lower-case keywords", "unit meter kn\njoint coordinates\nmember incidences\n", false},
    {"the unit word with a blank before it", " UNIT METER KN\nJOINT COORDINATES\nMEMBER INCIDENCES\n", false},
    {"four letters are enough for the unit word", "UNITS METER KN\nJOINT COORDINATES\nMEMBER INCIDENCES\n", true},
    {"the unit word alone", "UNIT\nJOINT COORDINATES\nMEMBER INCIDENCES\n", true},
    {"more after the joint keyword", "UNIT METER KN\nJOINT COORDINATES CARTESIAN\nMEMBER INCIDENCES\n", true},
    {"joint keyword in a longer word", "UNIT METER KN\nJOINT COORDINATESX\nMEMBER INCIDENCES\n", true},
    {"a shortened joint keyword", "UNIT METER KN\nJOINT COORD\n1 0 0 0\nMEMBER INCIDENCES\n", false},
    {"a joint keyword inside a line", "UNIT METER KN\n* JOINT COORDINATES\nMEMBER INCIDENCES\n", false},
    {"CR LF, byte order mark and end-of-file mark",
     "\xEF\xBB\xBFUNIT METER KN\r\nJOINT COORDINATES\r\nMEMBER INCIDENCES\r\n\x1A", true},
    {"a ruler before a keyword swallows nothing",
     "* ---\nUNIT METER KN\n*--\nJOINT COORDINATES\n1 0 0 0\n* ------\nMEMBER INCIDENCES\n", true},
};

TEST(ReadText, ReturnsWhetherItFoundAModel)
{
    for (const auto& c : verdicts)
        EXPECT_EQ(SdReader().ReadSDDataFromText(c.text), c.want) << c.why;
}

TEST(ReadText, LeavesUnitAndFactorsAloneWhenThereIsNoUnitLine)
{
    SdReader model;
    ASSERT_TRUE(
        model.ReadSDDataFromText("UNIT FEET KIP KIP-IN\nJOINT COORDINATES\n1 1 1 1\nMEMBER INCIDENCES\n1 1 1\n"));
    for (const char* text : {"", "JOINT COORDINATES\n2 0 0 0\nMEMBER INCIDENCES\n", "FOO\nUNIT CM MTON"}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(model.ReadSDDataFromText(text));
        EXPECT_EQ(model.unit_text, "UNIT FEET KIP KIP-IN");
        EXPECT_EQ(model.length_factor, 12 * 25.4);
        EXPECT_EQ(model.force_factor, 4.445206);
        EXPECT_EQ(model.force_length_factor, 4.445206 * 25.4);
        EXPECT_EQ(filled_containers(model), texts{"unit_text"});
    }
}

TEST(ReadText, HasUnitAndFactorsButNoJointsWhenTheJointBlockIsIncomplete)
{
    for (const char* text : {"UNIT CM MTON KN-M\nJOINT COORDINATES\n1 0 0 0; 2 5 0 0\nFINISH\n",
                             "UNIT CM MTON KN-M\nMEMBER INCIDENCES\n1 1 2\nFINISH\n"}) {
        SCOPED_TRACE(text);
        SdReader model;
        EXPECT_FALSE(model.ReadSDDataFromText(text));
        EXPECT_EQ(model.unit_text, "UNIT CM MTON KN-M");
        EXPECT_EQ(model.length_factor, 10.0);
        EXPECT_EQ(model.force_factor, 9.8);
        EXPECT_EQ(model.force_length_factor, 1000.0);
        EXPECT_EQ(filled_containers(model), texts{"unit_text"});
    }
}

const struct {
    const char* why;
    const char* head;
    const char* unit_text;
    double length;
} unit_lines[] = {
    {"the line as it stands", "UNIT   CM  MTON \n", "UNIT   CM  MTON ", 10.0},
    {"the first one counts", "UNIT CM MTON\nUNIT METER KN\n", "UNIT CM MTON", 10.0},
    {"even one inside a user table",
     "START USER TABLE\nTABLE 1\nUNIT INCHES KIP\nWIDE FLANGE\nW1\n1 2 3 4\nEND\nUNIT METER KN\n", "UNIT INCHES KIP",
     25.4},
    {"even one that begins another word", "UNITY 1\nUNIT METER KN\n", "UNITY 1", 1.0},
    {"a comment is none", "* UNIT FEET KIP\nUNIT METER KN\n", "UNIT METER KN", 1000.0},
    {"a continued one is one line", "UNIT -\nMETER -\nKN\n", "UNIT  METER  KN", 1000.0},
    {"without its byte order mark and CR", "\xEF\xBB\xBFUNIT METER KN\r\n", "UNIT METER KN", 1000.0},
};

TEST(ReadText, TakesTheFirstUnitLine)
{
    for (const auto& c : unit_lines) {
        SCOPED_TRACE(c.why);
        SdReader model;
        EXPECT_TRUE(model.ReadSDDataFromText(std::string(c.head) + "JOINT COORDINATES\nMEMBER INCIDENCES\nFINISH\n"));
        EXPECT_EQ(model.unit_text, c.unit_text);
        EXPECT_EQ(model.length_factor, c.length);
    }
}

TEST(ReadText, ChangesNothingForLaterUnitLines)
{
    SdReader model;
    ASSERT_TRUE(model.ReadSDDataFromText("UNIT MMS KN\nJOINT COORDINATES\n1 1 2 3\nUNIT METER KN\nMEMBER INCIDENCES\n"
                                         "UNIT FEET KIP\n"));
    EXPECT_EQ(model.unit_text, "UNIT MMS KN");
    EXPECT_EQ(model.nodes.at(0).y, 1.0);
}

TEST(Init, EmptiesWhatAReadingReplacesAndKeepsTheRest)
{
    SdReader model = filled<SdReader>();
    model.init();

    SdReader want = filled<SdReader>();
    want.nodes.clear();
    want.beams.clear();
    want.shells.clear();
    want.load_cases.clear();
    want.load_defs.clear();
    want.usr_tables.clear();
    want.beam_forces.clear();
    want.raw_load_defs.clear();
    want.node_index.clear();
    want.beam_index.clear();
    want.shell_index.clear();
    EXPECT_EQ(model_differences(model, want), texts());
}

TEST(ReadText, KeepsInASecondReadingWhatInitKeeps)
{
    SdReader before = filled<SdReader>();
    before.surfaces[0].node_ids = {1, 2, 3, 4}; // joints of the frame, each at the position of its number
    SdReader model = before;
    ASSERT_TRUE(model.ReadSDDataFromText(small_frame));

    SdReader want;
    ASSERT_TRUE(want.ReadSDDataFromText(small_frame));
    want.wl_param = before.wl_param;
    want.eq_param = before.eq_param;
    want.surfaces = before.surfaces;
    want.groups = before.groups;
    want.supports = before.supports;
    want.releases = before.releases;
    want.surface_index = before.surface_index;
    want.old_proj_maps = before.old_proj_maps;
    want.brace_ids = before.brace_ids;
    want.shells.push_back(before.surfaces[0]);
    EXPECT_EQ(model_differences(model, want), texts());
}

TEST(ReadText, ReadsTheSameModelTwice)
{
    SdReader model;
    ASSERT_TRUE(model.ReadSDDataFromText(small_frame));
    const SdReader once = model;
    ASSERT_TRUE(model.ReadSDDataFromText(small_frame));
    EXPECT_EQ(model_differences(model, once), texts());
}

TEST(ReadFile, ReadsWhatTheTextHolds)
{
    const std::string plain = small_frame;
    const std::string dos = "\xEF\xBB\xBF" + decks::with_cr(plain) + "\x1A";
    for (const std::string& text :
         {plain, dos, std::string(), std::string("UNIT METER KN\nJOINT COORDINATES\n1 0 0 0")}) {
        SCOPED_TRACE(text);
        const temporary_file file(text);
        SdReader from_text;
        ReadReport text_report;
        const bool found = from_text.ReadSDDataFromText(text, text_report);
        SdReader from_file;
        EXPECT_EQ(from_file.ReadSDDataFromStdFile(file.path()), found);
        EXPECT_EQ(model_differences(from_file, from_text), texts());

        ReadReport file_report;
        file_report.findings.resize(3); // of another reading: emptied
        SdReader reported;
        EXPECT_EQ(reported.ReadSDDataFromStdFile(file.path(), file_report), found);
        EXPECT_EQ(model_differences(reported, from_text), texts());
        ASSERT_EQ(file_report.findings.size(), text_report.findings.size());
        for (std::size_t i = 0; i < file_report.findings.size(); ++i) {
            EXPECT_EQ(file_report.findings[i].text, text_report.findings[i].text);
            EXPECT_EQ(file_report.findings[i].first_line, text_report.findings[i].first_line);
        }
        EXPECT_EQ(file.content(), text) << "reading writes nothing";
    }
}

TEST(ReadText, MayReadATextThatTheModelItselfHolds)
{
    SdReader model;
    model.raw_load_defs[1].text = small_frame;
    ASSERT_TRUE(model.ReadSDDataFromText(model.raw_load_defs[1].text));
    SdReader other;
    ASSERT_TRUE(other.ReadSDDataFromText(small_frame));
    EXPECT_EQ(model_differences(model, other), texts());
}

/// Codes of what is reported of a file that gives no model.
std::string codes_of(const char* path)
{
    SdReader model;
    ReadReport report;
    EXPECT_FALSE(model.ReadSDDataFromStdFile(path, report));
    EXPECT_EQ(report.worst(), Finding::Error);
    return shown_fields(report.findings, &Finding::code);
}

#ifndef _WIN32
TEST(ReadFile, RefusesAPipeThatWouldNeverEnd)
{
    const temporary_file file("");
    const std::string pipe = std::string(file.path()) + ".pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(codes_of(pipe.c_str()), "file-access");
    std::filesystem::remove(pipe);
}

TEST(ReadFile, RefusesAWriteProtectedFile)
{
    const temporary_file file(small_frame);
    std::filesystem::permissions(file.path(), std::filesystem::perms::owner_read);
    if (access(file.path(), W_OK) == 0)
        GTEST_SKIP() << "this user may write to everything";
    EXPECT_EQ(codes_of(file.path()), "file-access");
}
#endif

TEST(ReadFile, FindsNoModelInWhatCannotBeOpened)
{
    const temporary_file file("");
    const std::string folder = std::filesystem::path(file.path()).parent_path().string();
    const std::string missing = folder + "/missing.std";
    for (const char* path : {missing.c_str(), folder.c_str(), "", static_cast<const char*>(nullptr)}) {
        SCOPED_TRACE(path == nullptr ? "null" : path);
        SdReader model;
        ASSERT_TRUE(model.ReadSDDataFromText(small_frame));
        EXPECT_FALSE(model.ReadSDDataFromStdFile(path));
        EXPECT_TRUE(model.nodes.empty() && model.beams.empty() && model.shells.empty());
        EXPECT_EQ(model.unit_text, "UNIT METER KN");
        EXPECT_EQ(codes_of(path), path == folder.c_str() ? "file-access" : "file-missing");
    }
    EXPECT_FALSE(std::filesystem::exists(missing)) << "nothing is made";
}

} // namespace
} // namespace STAAD
