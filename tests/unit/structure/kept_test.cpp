#include "tests/unit/structure/described_loads.h"

#include <gtest/gtest.h>

namespace STAAD::test {
namespace {

struct kept_row {
    const char* form;
    std::vector<std::string> lines; // after "LOAD 1"
    std::vector<std::string> kept;  // commands, of loads with a "+" before them
    const char* warnings;
    const char* why;
};

std::vector<std::string> described_kept(const Structure& structure)
{
    std::vector<std::string> kept;
    for (const Structure::Kept& each : structure.kept)
        kept.push_back((each.is_load ? "+" : "") + each.command);
    return kept;
}

/// Codes and texts of the notes.
std::string notes(const ReadReport& report)
{
    std::string text;
    for (const Finding& finding : report.findings)
        if (finding.severity == Finding::Note)
            text += finding.code + ": " + finding.text + " (" + std::to_string(finding.count) + ")\n";
    return text;
}

} // namespace

TEST(kept, each_statement_that_is_no_record)
{
    const std::vector<kept_row> rows = {
        {"wind-load", {"WIND LOAD X 1 TYPE 1 XR 0 1", "WIND LOAD -Z 1 TYPE 1"}, {"+WIND LOAD", "+WIND LOAD"}, "", ""},
        {"code-load", {"1893 LOAD X 1"}, {"+1893 LOAD"}, "", "no list of members"},
        {"code-load", {"UBC LOAD X 1 DEC 1 ACC 0.05", "IBC LOAD Z 1"}, {"+UBC LOAD", "+IBC LOAD"}, "", ""},
        {"spectrum", {"SPECTRUM CQC X 1 ACC", "1 6.082; 2 3", "2 2.649;"}, {"+SPECTRUM"}, "", "with its pairs"},
        {"other-load", {"NOTIONAL LOAD", "1 X 0.002"}, {"+NOTIONAL LOAD"}, "form-kept", "a form not understood"},
        {"other-load", {"SUPPORT DISPLACEMENT", "1 FY -5"}, {"+SUPPORT DISPLACEMENT"}, "form-kept", "no supports"},
        {"other-load", {"MODAL CALCULATION REQUESTED"}, {"+MODAL CALCULATION"}, "form-kept", ""},
        {"rayleigh", {"CALCULATE RAYLEIGH FREQUENCY"}, {}, "", "passed over with a note"},
        {"define-wind",
         {"DEFINE WIND LOAD", "TYPE 1 WIND", "<! STAAD PRO GENERATED DATA -", "5 5;", "!> END GENERATED DATA BLOCK",
          "INT 0.5 0.6 HEIG 0 5", "EXP 1 JOINT 1 TO 4"},
         {"DEFINE WIND LOAD"},
         "",
         ""},
        {"define-seismic",
         {"DEFINE 1893 LOAD", "ZONE 0.16 I 1", "SELFWEIGHT 1", "MEMBER WEIGHT", "1 UNI -12.88", "FLOOR WEIGHT",
          "YRANGE 0 3 FLOAD 5"},
         {"DEFINE 1893 LOAD"},
         "",
         "weights, no loads"},
        {"define-ubc",
         {"DEFINE UBC LOAD", "ZONE 0.4 I 1", "REFERENCE LOAD Y", "R1 1.0"},
         {"DEFINE UBC LOAD"},
         "",
         "no sum of a case"},
        {"define-ibc", {"DEFINE IBC 2015", "SS 0.2 S1 0.1 PZ -", "1.1"}, {"DEFINE IBC"}, "", ""},
        {"define-moving",
         {"DEFINE MOVING LOAD", "TYPE 3 LOAD 20 20", "DIST 10 WID 10"},
         {"DEFINE MOVING LOAD"},
         "",
         ""},
        {"define-envelope",
         {"DEFINE ENVELOPE", "1 TO 8 ENVELOPE 1 TYPE STRENGTH", "END DEFINE ENVELOPE"},
         {"DEFINE ENVELOPE"},
         "",
         "lists of cases"},
        {"perform", {"PERFORM ANALYSIS PRINT ALL", "FINISH"}, {"PERFORM ANALYSIS", "FINISH"}, "", ""},
        {"print", {"PRINT MEMBER FORCES ALL", "DRAW ISOM", "SECTION 0.5 ALL"}, {"PRINT", "DRAW", "SECTION"}, "", ""},
        {"parameter",
         {"PARAMETER 1", "CODE AISC", "KY 1.2 MEMB 1 TO 4", "CHECK CODE ALL"},
         {"PARAMETER", "CHECK CODE"},
         "",
         ""},
        {"design",
         {"START CONCRETE DESIGN", "MEMBER PROPERTY", "DESIGN BEAM 1", "END CONCRETE DESIGN"},
         {"START CONCRETE DESIGN"},
         "",
         "its words are no commands"},
        {"irregularity",
         {"CHECK SOFT STORY ASCE7", "CHECK IRREGULARITIES CODE ASCE7"},
         {"CHECK SOFT STORY", "CHECK IRREGULARITIES"},
         "",
         ""},
        {"diaphragm", {"FLOOR DIAPHRAGM", "DIA 1 TYPE RIG HEI 3 JOINT 2 3"}, {"FLOOR DIAPHRAGM"}, "", "no floor load"},
        {"diaphragm", {"SLAVE RIGID MASTER 1 JOINT 2 3"}, {"SLAVE"}, "", ""},
        {"cut-off", {"CUT OFF MODE SHAPE 12"}, {"CUT"}, "", ""},
        {"mesh",
         {"DEFINE MESH", "A JOINT 1", "GENERATE ELEMENT", "MESH ABCD 4 4"},
         {"DEFINE MESH", "GENERATE ELEMENT"},
         "hidden-content hidden-content",
         "elements that the text does not hold"},
        {"substitute", {"SUBST JOINT B WITH 3000"}, {"SUBSTITUTE"}, "hidden-content", ""},
        {"delete", {"INACTIVE MEMBERS 1 2", "CHANGE"}, {"INACTIVE", "CHANGE"}, "hidden-content", ""},
        {"unknown-command",
         {"FROBNICATE 12 34", "5 6 7 8", "PERFORM ANALYSIS"},
         {"FROBNICATE", "PERFORM ANALYSIS"},
         "command-unknown",
         "with its lines"},
        {"load-list", {"LOAD LIST 1"}, {"LOAD LIST"}, "", ""},
        {"set-nl", {"SET NL 100", "SET Z UP"}, {"SET"}, "", "the upward axis is read"},
    };
    for (kept_row row : rows) {
        SCOPED_TRACE(std::string(row.form) + ": " + row.why);
        row.lines.insert(row.lines.begin(), "LOAD 1");
        const deck_reading reading = read_in_frame(row.lines);
        EXPECT_EQ(described_kept(reading.structure), row.kept);
        EXPECT_EQ(warnings(reading.report), row.warnings);
        for (const Structure::Load& load : reading.structure.load_cases.at(0).loads)
            EXPECT_TRUE(reading.structure.kept.at(static_cast<std::size_t>(load.kept)).is_load);
    }
}

TEST(kept, text_lines_and_units)
{
    const deck_reading reading =
        read_in_frame({"UNIT MMS NEWTON", "SPEC X", "LOAD 1", "WIND LOAD X 1 -", "* among its lines", "TYPE 1", "",
                       "* after it", "UNIT METER KN", "CHECK CODE", "TRACK 2"});
    const std::vector<Structure::Kept>& kept = reading.structure.kept;
    ASSERT_EQ(kept.size(), 4U);
    EXPECT_EQ(kept[0].command, "SPECTRUM") << "outside a case a statement of its own";
    EXPECT_EQ(kept[1].text, "WIND LOAD X 1 -\n* among its lines\nTYPE 1\n") << "as written, up to its last row";
    EXPECT_EQ(kept[1].length_unit + kept[1].force_unit + kept[2].force_unit, "MMSNEWTONKN");
    EXPECT_EQ(case_line(reading.structure, kept[1].source), 4U);
    EXPECT_EQ(origin(reading.structure, kept[1].source).last, frame_line_count + 6);
    const Structure::Load& load = reading.structure.load_cases.at(0).loads.at(0);
    EXPECT_EQ(load.kept, 1);
    EXPECT_EQ(load.source, kept[1].source);
    EXPECT_EQ(warnings(reading.report), "outside-case");
}

TEST(kept, one_note_for_a_command)
{
    std::vector<std::string> lines = {"PARAMETER 1", "KY 1", "CHECK CODE ALL", "CALCULATE RAYLEIGH"};
    for (int i = 0; i < 7; ++i)
        lines.push_back("PERFORM ANALYSIS");
    // The frame has 10 lines, that of SET included.
    EXPECT_EQ(notes(read_in_frame({"LOAD 1", lines[3], lines[4], lines[4], lines[4], lines[4], lines[4], lines[4],
                                   lines[0], lines[1], lines[2]})
                        .report),
              "command-passed-over: CALCULATE is passed over: line 12 (1)\n"
              "command-kept: PERFORM ANALYSIS is kept as text: lines 13, 14, 15, 16, 17 and 1 more (6)\n"
              "command-kept: PARAMETER is kept as text: lines 19, 21 (2)\n");
}

} // namespace STAAD::test
