/// What a reading reports beside the model: codes, places, counts. That the model is the same without a report is shown
/// by the random and the hostile decks.

#include "staad/model/sd_reader.h"
#include "staad/report/finding_sink.h"
#include "tests/support/findings.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace {

using STAAD::Finding;
using STAAD::ReadReport;
using STAAD::SdReader;

ReadReport report_of(const std::string& text)
{
    SdReader model;
    ReadReport report;
    model.ReadSDDataFromText(text, report);
    return report;
}

const std::string head = "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 3 0\nMEMBER INCIDENCES\n1 1 2\n";

const struct {
    const char* why;
    std::string text;
    const char* code;
    std::size_t first_line;
    const char* quoted;                                       ///< must stand in the text
    std::size_t last_line = 0;                                ///< 0: the first
    std::optional<Finding::Severity> severity = std::nullopt; ///< where it is not that of the code
} place_cases[] = {
    {"no UNIT line at all", "JOINT COORDINATES\n1 0 0 0\n", "no-unit", 0, "UNIT"},
    {"a UNIT line without a line after it", "STAAD SPACE\nUNIT METER KN\n", "no-unit", 0, "UNIT"},
    {"UTF-16, low byte first", std::string("\xFF\xFEU\0N\0I\0T\0\n\0", 12), "no-unit", 0, "UTF-16"},
    {"UTF-16, high byte first", std::string("\xFE\xFF\0U\0N\0I\0T\0\n", 12), "no-unit", 0, "UTF-16"},
    {"lines that end with carriage returns alone", "UNIT METER KN\rJOINT COORDINATES\r1 0 0 0\r", "no-unit", 0,
     "carriage returns"},
    {"a carriage return inside a line of several", "X\rY\nJOINT COORDINATES\n", "no-unit", 0, "begins with 'UNIT'"},
    {"no joint block", "UNIT METER KN\nMEMBER INCIDENCES\n", "no-joints", 0, "JOINT COORDINATES"},
    {"no member keyword", "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0\n", "no-members", 0, "MEMBER INCIDENCES"},
    {"the line that was meant for the missing one is an error",
     "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0\nMEMB INCI\n", "keyword-near", 4,
     "'MEMB INCI' is not 'MEMBER INCIDENCES'", 4, Finding::Error},
    {"a line that was meant for another keyword is a warning", head + "\nMEMBER RELEASES\n", "keyword-near", 7,
     "'MEMBER RELEASES' is not 'MEMBER RELEASE'"},
    {"a length word that the tables do not have", "UNIT METERS KN\n" + head.substr(14), "unit-word", 1, "'METERS'"},
    {"a force word", "UNIT METER KIPS\n" + head.substr(14), "unit-word", 1, "'KIPS'"},
    {"a moment word", "UNIT METER KN KN-FT\n" + head.substr(14), "unit-word", 1, "'KN-FT'"},
    {"no force word", "UNIT METER\n" + head.substr(14), "unit-short", 1, "UNIT METER"},
    {"a later UNIT line with other words", head + "UNIT MMS KN\n", "unit-later", 6, "'UNIT MMS KN' changes nothing"},
    {"a joint of three words", "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 3\nMEMBER INCIDENCES\n1 1 2\n",
     "item-short", 3, "joint '2 0 3' has 3 of at least 4 words"},
    {"a member of two words", head + "2 1\n", "item-short", 6, "member '2 1'"},
    {"an element of two corners", head + "ELEMENT INCIDENCES SHELL\n5 1 2\n", "item-short", 7, "element '5 1 2'"},
    {"a surface of three words", head + "SURFACE INCIDENCE\n1 2 SUR\n", "item-short", 7, "surface '1 2 SUR'"},
    {"a command among the joints", "UNIT METER KN\nJOINT COORDINATES\nSET NL 100 1\nMEMBER INCIDENCES\n1 1 2\n",
     "item-number", 3, "joint 'SET NL 100 1' has the number 0"},
    {"a member on a joint that is not there", head + "2 1 99\n", "joint-unknown", 6, "member 2 refers to joint 99"},
    {"an element on a joint that is not there", head + "ELEMENT INCIDENCES SHELL\n5 1 2 98\n", "joint-unknown", 7,
     "element 5 refers to joint 98"},
    {"the place of a joined line is all of its lines: a comment in it joins, too, and takes the next line with it",
     head + "2 1 -\n\n* 5 -\n99\n", "joint-unknown", 6, "member 2 refers to joint 0", 9},
    {"a trailing blank, the commonest reason of all", head + "MEMBER RELEASE \n", "keyword-near", 6,
     "'MEMBER RELEASE ' is not 'MEMBER RELEASE': mind the blanks"},
    {"a surface on a joint that is not there", head + "SURFACE INCIDENCE\n1 2 77 SUR 5\n", "joint-unknown", 7,
     "surface 5 refers to joint 77"},
    {"a support at a joint that is not there", head + "SUPPORTS\n1 77 FIXED\n", "joint-unknown", 7, "names joint 77"},
    {"a release of a member that is not there", head + "MEMBER RELEASE\n1 77 START MZ\n", "member-unknown", 7,
     "names member 77"},
    {"a grade with a hyphen shifts its list", head + "MATERIAL Q345-B MEMB 1\n", "list-no-record", 6, "the material"},
    {"a comment in the middle of the members", head + "* second storey\n2 1 2\n3 1 2\n", "block-ended", 6,
     "2 data lines"},
    {"two comments in a row in the middle of the members", head + "* second storey\n* beams\n2 1 2\n", "block-ended", 6,
     "1 data line "},
    {"a blank before a shell line", head + "ELEMENT INCIDENCES SHELL\n 5 1 2 1\n", "block-ended", 7, "1 data line "},
    {"a comment in the middle of the supports", head + "SUPPORTS\n1 FIXED\n*\n2 PINNED\n", "block-ended", 8,
     "SUPPORTS"},
    {"a release in the middle of a member", head + "MEMBER RELEASE\n1 START MZ\n1 MY\n", "block-ended", 8,
     "MEMBER RELEASE"},
    {"a group list that ends at a word", head + "START GROUP DEFINITION\nMEMBER\n_A 1 BY 2\nEND GROUP DEFINITION\n",
     "list-stopped", 8, "ends at 'BY'"},
    {"a property list that ends at a word", head + "MEMBER PROPERTY\n1 BY 2 TABLE ST W12X26\nCONSTANTS\n",
     "list-stopped", 7, "ends at 'BY'"},
    {"a support list that ends at 0", head + "SUPPORTS\n1 0 FIXED\n", "list-stopped", 7, "ends at '0'"},
    {"a beta angle for ALL", head + "BETA 90 ALL\n", "list-no-record", 6, "BETA 90 ALL"},
    {"a section for members that are not there", head + "MEMBER PROPERTY\n7 TO 9 TABLE ST W12X26\nCONSTANTS\n",
     "list-no-record", 7, "7 TO 9"},
    {"an offset for a member that is not there", head + "MEMBER OFFSET\n7 START 0 0 1\n", "list-no-record", 7,
     "7 START"},
    {"a load on members that are not there", head + "LOAD 1\nMEMBER LOAD\n7 UNI GY -5\nFINISH\n", "list-no-record", 8,
     "7 UNI"},
    {"a brace list without numbers", head + "MEMBER TRUSS\nALL\n", "list-stopped", 7, "ends at 'ALL'"},
    {"a support list with a step", head + "SUPPORTS\n1 BY 3 FIXED\n", "list-stopped", 7, "ends at 'BY'"},
    {"a release list with a step", head + "MEMBER RELEASE\n1 BY 3 START MZ\n", "list-stopped", 7, "ends at 'BY'"},
    {"an offset list that does not end at START or END", head + "MEMBER OFFSET\n1 0 START 0.1 0 0\n", "list-stopped", 7,
     "ends at '0'"},
    {"an offset that lacks a number", head + "MEMBER OFFSET\n1 START 0.1 0\n", "number-word", 7, "a number is missing"},
    {"a beta list with a step", head + "BETA 90 MEMB 1 BY 2\n", "list-stopped", 6, "ends at 'BY'"},
    {"a material for no member", head + "MATERIAL STEEL MEMB 77\n", "list-no-record", 6, "the material"},
    {"a material list that ends at a word", head + "MATERIAL STEEL MEMB 1 BY 2\n", "list-stopped", 6, "ends at 'BY'"},
    {"a thickness for an element that is not there",
     head + "ELEMENT INCIDENCES SHELL\n5 1 2 1\nELEMENT PROPERTY\n5 6 THICKNESS 0.2\n", "element-unknown", 9,
     "element 6"},
    {"a thickness list that ends at a word",
     head + "ELEMENT INCIDENCES SHELL\n5 1 2 1\nELEMENT PROPERTY\n5 BY 2 THICKNESS 0.2\n", "list-stopped", 9,
     "ends at 'BY'"},
    {"a thickness for a surface that is not there",
     head + "SURFACE INCIDENCE\n1 2 1 SUR 9\nSURFACE PROPERTY\n8 THICKNESS 0.2\n", "list-no-record", 9, "8 THICKNESS"},
    {"a load list with a step", head + "LOAD 1\nMEMBER LOAD\n1 BY 3 UNI GY -3\nFINISH\n", "list-stopped", 8,
     "ends at 'BY'"},
    {"a load for ALL, after whose list a single word stands", head + "LOAD 1\nMEMBER LOAD\n1 ALL\nFINISH\n",
     "list-stopped", 8, "ends at 'ALL'"},
    {"a self-weight whose list is a word", head + "LOAD 1\nSELFWEIGHT Y -1 LIST ALL\nFINISH\n", "list-stopped", 7,
     "ends at 'ALL'"},
    {"a load case header without a number", head + "LOAD R1 LOADTYPE Dead TITLE A\nFINISH\n", "load-number", 6,
     "belongs to load case 0"},
    {"two headers of one load case", head + "LOAD 1\nLOAD 1\nFINISH\n", "load-again", 7,
     "load case 1 was there before"},
    {"joint loads under a line with a trailing blank", head + "LOAD 1\nJOINT LOAD \n1 FY -3\nFINISH\n", "keyword-near",
     7, "'JOINT LOAD ' is not 'JOINT LOAD'"},
    {"loads of a block that nothing understands", head + "LOAD 1\nELEMENT LOAD\n1 PR GY -3\nFINISH\n", "load-block", 7,
     "'ELEMENT LOAD' is not understood"},
    {"a member that is not there among others", head + "MEMBER PROPERTY\n1 7 TABLE ST W12X26\nCONSTANTS\n",
     "member-unknown", 7, "member 7"},
    {"an offset in local axes", head + "MEMBER OFFSET\n1 START LOCAL 0.1 0 0\n", "number-word", 7, "'LOCAL'"},
    {"a group block without an end", head + "START GROUP DEFINITION\nMEMBER\n_A 1\n", "block-open", 6,
     "END GROUP DEFINITION"},
    {"a user table block without an end", head + "START USER TABLE\nTABLE 1\n", "block-open", 6, "'END'"},
    {"the density, which does not come from the DENSITY line",
     head + "DEFINE MATERIAL START\nISOTROPIC CONCRETE\nE 2.17185e+007\nDENSITY 24\nEND DEFINE MATERIAL\n", "density",
     8, "'E 2.17185e+007' and becomes 8.5e+08"},
    {"a command that nothing reads", head + "PERFORM ANALYSIS\n", "skipped", 6, "PERFORM ANALYSIS"},
    {"the end of properties that have not begun", head + "CONSTANTS\n", "skipped", 6, "CONSTANTS"},
};

TEST(ReadReport, NamesCodePlaceAndReason)
{
    for (const auto& c : place_cases) {
        SCOPED_TRACE(c.why);
        const std::vector<Finding> found = findings_of(report_of(c.text), c.code);
        ASSERT_EQ(found.size(), 1U) << c.text;
        EXPECT_EQ(found[0].severity, c.severity.value_or(STAAD::find_finding_code(c.code)->severity));
        EXPECT_EQ(found[0].first_line, c.first_line);
        EXPECT_EQ(found[0].last_line, c.last_line == 0 ? c.first_line : c.last_line);
        EXPECT_NE(found[0].text.find(c.quoted), std::string::npos) << found[0].text;
        EXPECT_EQ(found[0].count, 1U);
    }
}

TEST(ReadReport, APlainDeckHasNoFindings)
{
    EXPECT_TRUE(report_of(head).findings.empty());
    EXPECT_EQ(report_of(head).worst(), Finding::Note);
}

TEST(ReadReport, TheSameUnitWordsInAnotherOrderAreNoFinding)
{
    EXPECT_TRUE(report_of(head + "UNIT KN METER\nUNIT meter\n").findings.empty());
    const std::string with_moment = "UNIT METER KN KN-M\n" + head.substr(14);
    EXPECT_TRUE(report_of(with_moment + "UNIT METER KN KNM\n").findings.empty()) << "the hyphen makes no other word";
}

TEST(ReadReport, CountsWhatNothingReadsByItsWords)
{
    const ReadReport report = report_of(head + "PERFORM ANALYSIS\n* a comment counts as nothing\nDEFINE WIND LOAD\n"
                                               "1 2\nTYPE 1\nPERFORM ANALYSIS\n");
    const std::vector<Finding> skipped = findings_of(report, "skipped");
    ASSERT_EQ(skipped.size(), 3U);
    EXPECT_EQ(skipped[0].text, "PERFORM ANALYSIS");
    EXPECT_EQ(skipped[0].count, 2U);
    EXPECT_EQ(skipped[1].text, "DEFINE WIND") << "data lines count with the command above them";
    EXPECT_EQ(skipped[1].count, 2U);
    EXPECT_EQ(skipped[2].text, "TYPE");
}

TEST(ReadReport, ListsEveryCommandThatNothingReads)
{
    std::string commands;
    for (char first = 'A'; first <= 'Z'; ++first)
        for (char second = 'A'; second <= 'C'; ++second)
            commands += std::string("Q") + first + second + " 1\n";
    const std::vector<Finding> skipped = findings_of(report_of(head + commands + "FINISH\n"), "skipped");
    ASSERT_EQ(skipped.size(), 79U) << "26 x 3 commands and FINISH";
    for (const Finding& finding : skipped)
        EXPECT_EQ(finding.count, 1U) << finding.text;
    EXPECT_EQ(skipped.back().text, "FINISH");
}

TEST(ReadReport, PutsAllThatIsPastAThousandCommandsTogether)
{
    std::string commands;
    for (char a = 'A'; a <= 'Z'; ++a)
        for (char b = 'A'; b <= 'Z'; ++b)
            for (char c = 'A'; c <= 'B'; ++c)
                commands += std::string("Q") + a + b + c + " 1\n"; // 26 x 26 x 2 = 1352 commands
    const std::vector<Finding> skipped = findings_of(report_of(head + commands), "skipped");
    ASSERT_EQ(skipped.size(), 1001U);
    EXPECT_EQ(skipped.back().text, "(other commands)");
    EXPECT_EQ(skipped.back().count, 352U);
}

TEST(ReadReport, ALineOfNothingButAContinuationMarkIsNoTrouble)
{
    for (const char* const end : {"-", "  -", "\t-", " - "}) {
        SCOPED_TRACE(end);
        EXPECT_NO_THROW(report_of(head + end)) << "after a model";
        EXPECT_NO_THROW(report_of(std::string("STAAD SPACE\n") + end)) << "where there is no model";
    }
}

TEST(ReadReport, CutsLongQuotesBetweenCharacters)
{
    const std::string ascii(57, '5');
    const std::string utf8 = "\xE6\xA2\x81";    // one character of three bytes
    const std::string gbk = "\xC1\xBA\xC1\xBA"; // two characters of two bytes
    const std::string words = "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 BY 3"; // 64 bytes
    const struct {
        const char* why;
        std::string line;
        std::string quoted;
    } cases[] = {
        {"a text of sixty bytes is quoted whole", ascii + "123", "'" + ascii + "123'"},
        {"a longer one is cut at sixty", ascii + "1234", "'" + ascii + "123...'"},
        {"not inside a character of UTF-8", ascii + utf8 + utf8, "'" + ascii + "...'"},
        {"nor inside one of GBK", ascii + gbk, "'" + ascii + "...'"},
        {"a blank is as good a place as any", words, "'" + words.substr(0, 60) + "...'"},
        {"where there is no good place, at sixty", std::string(61, '\xE6'), "'" + std::string(60, '\xE6') + "...'"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(STAAD::detail::quote(c.line), c.quoted) << c.why;
}

TEST(ReadReport, ListsFiftyOfOneCodeAndCountsTheRest)
{
    std::string members;
    for (int number = 2; number <= 61; ++number) // sixty members with one unknown end each
        members += std::to_string(number) + " 1 99\n";
    const std::vector<Finding> found = findings_of(report_of(head + members), "joint-unknown");
    ASSERT_EQ(found.size(), 51U);
    EXPECT_EQ(found[49].count, 1U);
    EXPECT_EQ(found[50].count, 10U);
    EXPECT_EQ(found[50].first_line, 56U) << "the first of the rest: member 52 on line 56";
    EXPECT_EQ(found[50].last_line, 65U);
}

TEST(ReadReport, ANewReadingEmptiesIt)
{
    SdReader model;
    ReadReport report;
    EXPECT_FALSE(model.ReadSDDataFromText("", report));
    EXPECT_FALSE(report.findings.empty());
    EXPECT_EQ(report.worst(), Finding::Error);
    EXPECT_TRUE(model.ReadSDDataFromText(head, report));
    EXPECT_TRUE(report.findings.empty());
}

TEST(ReadReport, SaysFromWhichLinesTheDensityCame)
{
    const std::string material = "DEFINE MATERIAL START\nISOTROPIC CONCRETE\nE 3 -\n0\nEND DEFINE MATERIAL\n";
    SdReader model;
    ReadReport report;
    model.ReadSDDataFromText(head + material, report); // the head has five lines
    EXPECT_EQ(report.density_from.first, 8U);
    EXPECT_EQ(report.density_from.last, 9U);
    model.ReadSDDataFromText(head, report);
    EXPECT_EQ(report.density_from.first, 0U) << "the default, whatever was read before";
}

TEST(ReadReport, KeepsTheTextOfASkippedCommandShort)
{
    const std::vector<Finding> skipped =
        findings_of(report_of(head + "Q" + std::string(100000, 'Q') + " 1\n2 3\n"), "skipped");
    ASSERT_EQ(skipped.size(), 1U);
    EXPECT_EQ(skipped[0].text, std::string(60, 'Q'));
    EXPECT_EQ(skipped[0].count, 2U);
}

} // namespace
