/// Sections of members: every form of a line, its members, the code of its block.

#include "tests/unit/structure/read_deck.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using test::deck_reading;
using test::read_in_frame;

/// "tube ST TH=6 WT=100 DT=200, 3456 mm2": shape, group, type, table, name, values, area.
std::string shown_section(const Structure::Section& section)
{
    constexpr const char* shapes[] = {"rectangle", "circle",  "tee",   "trapezoid",  "round_tube", "general", "tube",
                                      "pipe",      "tapered", "table", "user_table", "assigned",   "other"};
    std::string shown = shapes[static_cast<std::size_t>(section.shape)];
    const std::string table = section.table == 0 ? "" : std::to_string(section.table);
    for (const std::string& word : {section.group, section.type, table, section.name})
        shown += word.empty() ? "" : " " + word;
    char number[64];
    for (const Structure::NamedValue& each : section.values) {
        std::snprintf(number, sizeof number, "=%.6g", each.value);
        shown += " " + each.name + number;
    }
    std::snprintf(number, sizeof number, ", %.6g mm2", section.area);
    return shown + (section.area > 0.0 ? number : "");
}

TEST(ReadSections, OfEveryForm)
{
    const struct {
        const char* form;
        const char* line; ///< after the list, in metres
        const char* section;
        const char* findings;
        const char* why;
    } cases[] = {
        {"rectangle", "PRIS YD 0.5 ZD 0.3", "rectangle YD=500 ZD=300, 150000 mm2", "", "depth and width"},
        {"rectangle", "prismatic zd 0.3 yd 0.4005", "rectangle ZD=300 YD=400.5, 120150 mm2", "",
         "any order, any case, spelled out; mm are not cut"},
        {"rectangle", "PRIS YD 0.5 ZD wide", "other YD=500", "line-unread", "no circle for want of a number"},
        {"rectangle", "PRIS YD 0.5 ZD", "other YD=500", "line-unread", "a name without its value"},
        {"circle", "PRIS YD 0.2", "circle YD=200, 31415.9 mm2", "", "the diameter alone: 10000 pi"},
        {"circle", "PRIS ZD 0.2", "other ZD=200", "line-unread", "a width alone is no shape"},
        {"circle", "PRIS YD 0.2 YD 0.3", "other YD=200", "line-unread", "a name twice"},
        {"tee", "PRIS YD 0.4 ZD 0.3 YB 0.3 ZB 0.1", "tee YD=400 ZD=300 YB=300 ZB=100, 60000 mm2", "",
         "flange 300 by 100, stem 100 by 300"},
        {"tee", "PRIS YD 0.4 ZD 0.3 YB 0.3", "other YD=400 ZD=300 YB=300", "line-unread", "a stem without its width"},
        {"trapezoid", "PRIS YD 0.4 ZD 0.4 ZB 0.1", "trapezoid YD=400 ZD=400 ZB=100, 100000 mm2", "",
         "400 by the mean of 400 and 100"},
        {"round-tube", "PRIS ROUND STA 0.2 END 0.2 THI 0.01", "round_tube STA=200 END=200 THI=10, 5969.03 mm2", "",
         "pi / 4 of 200^2 - 180^2"},
        {"round-tube", "PRIS ROUND START 0.3 END 0.2 THICKNESS 0.01", "round_tube STA=300 END=200 THI=10", "",
         "a tapered one has no area of its own"},
        {"round-tube", "PRIS ROUND STA 0.2 END 0.2 THI 0.3", "round_tube STA=200 END=200 THI=300", "",
         "a wall thicker than the tube gives none"},
        {"round-tube", "PRIS ROUND STA 0.2 THI 0.01", "other STA=200 THI=10", "line-unread", "one diameter is missing"},
        {"round-tube", "PRIS OCTAGONAL STA 0.5 END 0.4 THI 0.02", "other STA=500 END=400 THI=20", "form-kept",
         "polygons are kept"},
        {"general", "PRIS AX 0.02 IX 0.0001 IY 2e-4 IZ 3E-4 AY 0.01 AZ 0.015",
         "general AX=20000 IX=1e+08 IY=2e+08 IZ=3e+08 AY=10000 AZ=15000, 20000 mm2", "", "mm2 and mm4; AX is the area"},
        {"general", "PRIS IX 0.0001 YD 0.5 ZD 0.3", "general IX=1e+08 YD=500 ZD=300", "",
         "one property makes it general: depth and width give no area"},
        {"general", "PRIS AX 0.02 AREA 0.03", "other AX=20000", "line-unread", "a name that no value has"},
        {"table", "TABLE ST W12X26", "table ST W12X26", "", "type and row"},
        {"table", "ta st H150x150x7x10", "table ST H150x150x7x10", "", "short; names stay as written"},
        {"table", "TABLE H1", "table H1", "", "no type"},
        {"table", "TABLE ST W12X26 FOO 3", "table ST W12X26", "line-unread", "the row is known, the rest is reported"},
        {"table", "TABLE", "other", "line-unread", "no row"},
        {"double-section", "TABLE LD L20203 SP 0.005", "table LD L20203 SP=5", "", "the gap"},
        {"double-section", "TABLE CM W12X26 CT 0.1 FC 0.02 CW 1.5", "table CM W12X26 CT=100 FC=20 CW=1500", "",
         "numbers of other types"},
        {"double-section", "TABLE LD L20203 SP", "table LD L20203", "line-unread", "a gap of no size"},
        {"tube-and-pipe", "TABLE ST TUBE TH 0.006 WT 0.1 DT 0.2", "tube ST TH=6 WT=100 DT=200, 3456 mm2", "",
         "100 by 200 less 88 by 188"},
        {"tube-and-pipe", "TABLE ST PIPE OD 0.1 ID 0.09", "pipe ST OD=100 ID=90, 1492.26 mm2", "",
         "pi / 4 of 100^2 - 90^2"},
        {"tube-and-pipe", "TABLE ST TUBE TH 0.006 WT 0.1", "other ST TH=6 WT=100", "line-unread", "no depth"},
        {"table-quoted", "TABLE 'IPE' ST 'IPE 300'", "table 'IPE' ST 'IPE 300'", "", "blanks in quotes part nothing"},
        {"table-quoted", "TABLE ST 'IPE 300'", "table ST 'IPE 300'", "", "without a word before the type"},
        {"tapered", "TAPERED 0.35 0.008 0.7 0.22 0.012", "tapered F1=350 F2=8 F3=700 F4=220 F5=12", "", "five"},
        {"tapered", "TAP 2*0.3 0.7 0.22 0.012 0.2 0.01", "tapered F1=300 F2=300 F3=700 F4=220 F5=12 F6=200 F7=10", "",
         "seven; one of them repeated"},
        {"tapered", "TAPERED 0.35 0.008 0.7 0.22", "other F1=350 F2=8 F3=700 F4=220", "line-unread", "four"},
        {"tapered", "TAPERED 9*0.3", "other F1=300 F2=300 F3=300 F4=300 F5=300 F6=300 F7=300", "line-unread", "nine"},
        {"assigned", "ASSIGN COLUMN", "assigned COLUMN", "form-kept", "the size is the program's choice"},
        {"assigned", "ASSIGN", "other", "line-unread", "nothing assigned"},
        {"list-end", "FROBNICATE 5", "other", "line-unread", "a word that begins no section; kept as text"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string(each.form) + ": " + each.line + ": " + each.why);
        const deck_reading read = read_in_frame({"MEMBER PROPERTY", std::string("1 ") + each.line});
        ASSERT_EQ(read.structure.sections.size(), 1U);
        EXPECT_EQ(shown_section(read.structure.sections[0]), each.section);
        EXPECT_EQ(read.structure.sections[0].text, each.line);
        EXPECT_EQ(test::warnings(read.report), each.findings);
    }
}

/// "1=AMERICAN: TABLE ST H1@2": members, code and text of their sections, line of the assignment.
std::string shown_member_sections(const Structure& structure)
{
    std::string shown;
    for (const Structure::Member& member : structure.members)
        if (member.section >= 0) {
            const auto& section = structure.sections.at(static_cast<std::size_t>(member.section));
            shown += (shown.empty() ? "" : ", ") + std::to_string(member.number) + "=" +
                     (section.code.empty() ? "" : section.code + ": ") + section.text + "@" +
                     std::to_string(test::case_line(structure, member.section_source));
        }
    return shown;
}

TEST(ReadSections, OfTheirMembers)
{
    const struct {
        const char* form;
        std::vector<std::string> lines;
        const char* members;
        std::size_t sections;
        const char* findings;
        const char* why;
    } cases[] = {
        {"property-bare", {"MEMBER PROPERTY", "1 TABLE H1"}, "1=TABLE H1@2", 1, "", "no code"},
        {"property-code", {"memb prop AMERICAN", "1 TABLE H1"}, "1=AMERICAN: TABLE H1@2", 1, "", "the code"},
        {"property-code",
         {"MEMBER PROPERTIES Indian  steel", "1 TABLE H1"},
         "1=Indian steel: TABLE H1@2",
         1,
         "",
         "all words, as written"},
        {"property-code",
         {"MEMBER PROPERTY INDIAN", "1 2 TABLE H1", "MEMBER PROPERTY", "CONSTANTS", "MEMBER PROPERTY", "2 TABLE H1"},
         "1=INDIAN: TABLE H1@2, 2=TABLE H1@6",
         2,
         "",
         "any number of blocks, each with its own code; a section of another code is another one"},
        {"property-code",
         {"MEMBER PROPERTY INDIAN", "1 PRIS YD 0.5", "UNIT MMS", "2 PRIS YD 0.5", "UNIT METER KG", "3 PRIS YD 0.5"},
         "1=INDIAN: PRIS YD 0.5@2, 2=INDIAN: PRIS YD 0.5@4, 3=INDIAN: PRIS YD 0.5@6",
         2,
         "",
         "a block goes on after UNIT with its code; 0.5 m and 0.5 mm are two sections"},
        {"property-data-base",
         {"MEMBER PROPERTY 'EUROPE (EN 2023).DB3'", "1 TABLE H1"},
         "1='EUROPE (EN 2023).DB3': TABLE H1@2",
         1,
         "",
         "quotes stay"},
        {"list-end",
         {"MEMBER PROPERTY", "1 5 TABLE H1"},
         "1=TABLE H1@2, 5=TABLE H1@2",
         1,
         "",
         "the list ends at the first word that is of none"},
        {"list-end",
         {"MEMBER PROPERTY", "1 TABLE  ST H1; 2 TABLE ST   H1"},
         "1=TABLE ST H1@2, 2=TABLE ST H1@2",
         1,
         "",
         "blanks make no other section; two items on a line"},
        {"list-end",
         {"MEMBER PROPERTY", "1 TO 3 TABLE A", "2 TABLE B", "ALL TABLE C", "5 TABLE A", "3 4 TABLE D"},
         "1=TABLE C@4, 2=TABLE C@4, 3=TABLE D@6, 4=TABLE D@6, 5=TABLE A@5, 6=TABLE C@4",
         3,
         "",
         "the later line counts; sections that no member has in the end are left out"},
        {"list-end", {"MEMBER PROPERTY", "1 99 TABLE A"}, "1=TABLE A@2", 1, "member-unknown", "no member 99"},
        {"list-end", {"MEMBER PROPERTY", "1 2"}, "", 0, "line-unread", "a list without a section"},
        {"list-end", {"MEMBER PROPERTY", "99 TABLE A"}, "", 0, "member-unknown", "a section of no member"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string(each.form) + ": " + each.why);
        const deck_reading read = read_in_frame(each.lines);
        EXPECT_EQ(shown_member_sections(read.structure), each.members);
        EXPECT_EQ(read.structure.sections.size(), each.sections);
        EXPECT_EQ(test::warnings(read.report), each.findings);
    }
}

} // namespace
} // namespace STAAD
