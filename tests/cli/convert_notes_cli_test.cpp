// What "convert" reports about the file it writes: each note once, only where it applies, with a line of
// that file.

#include "tool_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <sstream>

namespace cli_test {
namespace {

/// One note: "NAME:LINE: note CODE: TEXT" and the example after it.
struct printed_note {
    std::size_t line = 0;
    std::string code;
    std::string text;
    std::string example;
};

std::vector<printed_note> notes_in(const std::string& err)
{
    const std::string head = "<stdout>:";
    const std::string word = ": note ";
    std::vector<printed_note> notes;
    std::istringstream lines(err);
    for (std::string line; std::getline(lines, line);) {
        if (line.rfind(head, 0) != 0)
            continue;
        const std::size_t code = line.find(word) + word.size();
        const std::size_t colon = line.find(": ", code);
        printed_note note{
            std::stoul(line.substr(head.size())), line.substr(code, colon - code), line.substr(colon + 2), {}};
        std::getline(lines, note.example);
        notes.push_back(note);
    }
    return notes;
}

tool_result convert(const std::string& deck)
{
    const tool_result result = tool_run()("convert - -", deck);
    EXPECT_EQ(result.exit_code, 0) << result.err;
    return result;
}

/// The note of that code; an empty one if there is none.
printed_note note_of(const std::string& deck, const std::string& code)
{
    printed_note found;
    for (const printed_note& note : notes_in(convert(deck).err)) {
        if (note.code == code)
            found = note;
    }
    return found;
}

/// A member with a section and a material that the written file says as well as the input did.
const std::string sound = "MEMBER PROPERTY CHINESE\n1 TABLE ST HN400X200X8X13\nCONSTANTS\nMATERIAL STEEL ALL\n";

/// The number, from 1, of the line in which the text has the sole case "WL AUTO WIND LOAD".
std::string line_of_wind_case(const std::string& text)
{
    const std::size_t at = text.find(" WL AUTO WIND LOAD\n");
    EXPECT_NE(at, std::string::npos) << text;
    return std::to_string(std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n') + 1);
}

TEST(ConvertNotes, WhereNothingIsLostOnlyTheGeneratedLoadsAreNoted)
{
    const tool_run tool;
    const std::string err = tool("convert - out.std", small_deck(sound)).err;
    EXPECT_EQ(err, "out.std:" + line_of_wind_case(read_text(tool.missing("out.std"))) +
                       ": note generated: four wind cases of one number and a seismic case are always written; "
                       "without --wind and --seismic they hold no values\n"
                       "    LOAD 4 WL AUTO WIND LOAD\n");
}

struct expected_note {
    const char* code;
    const char* text;
    const char* example;
};

/// Of the tower: members 1 to 12, element 101 and a surface after them.
const expected_note tower_notes[] = {
    {"loads",
     "under UNIT METER KN loads are in kN and mm (1 kN/m is 0.001000) and in the model's axes (GY is written as GZ)",
     "    7 TO 9 UNI GZ -0.005000"},
    {"loads-left-out",
     "not written: 3 joint loads, 1 self-weight load, load combinations (2 lines) and 2 titles of load cases",
     "    LOAD 1 LOADTYPE Dead TITLE LOAD CASE 1"},
    {"numbers", "elements have new numbers (element 101 is 13)", "    13 3 4 6 5; 14 5 6 8 7;"},
    {"offsets", "the offsets of 1 member are not written",
     "    1 1 3; 2 2 4; 3 3 5; 4 4 6; 5 5 7; 6 6 8; 7 3 4; 8 5 6; 9 7 8; 10 1 4; 11 3 4;"},
    {"trusses", "written as plain members: 2 truss, tension-only or compression-only members",
     "    1 1 3; 2 2 4; 3 3 5; 4 4 6; 5 5 7; 6 6 8; 7 3 4; 8 5 6; 9 7 8; 10 1 4; 11 3 4;"},
    {"surfaces", "written as elements from 14 on: 1 surface", "    13 3 4 6 5; 14 5 6 8 7;"},
    {"sections", "sections of 8 members are bare mm, which the analysis program cannot read",
     "    3 TO 4 TABLE ST PIP200X10"},
    {"no-section", "the list of 1 member without a section has nothing after it", "    12 "},
    {"user-tables", "user tables cannot be read: rows are sorted, lines of numbers stand among their names",
     "    0.3 0.15 0.0065 0.009"},
    {"generated",
     "four wind cases of one number and a seismic case are always written; without --wind and --seismic they hold no "
     "values",
     "    LOAD 6 WL AUTO WIND LOAD"},
};

TEST(ConvertNotes, AllThatHappensToTheTowerEachWhereItSays)
{
    const tool_result result = convert(tower_deck());
    const std::vector<std::string> lines = lines_of(result.out);
    const std::vector<printed_note> notes = notes_in(result.err);
    ASSERT_EQ(notes.size(), std::size(tower_notes));
    for (std::size_t i = 0; i < notes.size(); ++i) {
        EXPECT_EQ(notes[i].code, tower_notes[i].code);
        EXPECT_EQ(notes[i].text, tower_notes[i].text);
        EXPECT_EQ(notes[i].example, tower_notes[i].example) << notes[i].code;
        ASSERT_LE(notes[i].line, lines.size()) << notes[i].code;
        EXPECT_EQ(notes[i].example, "    " + lines.at(notes[i].line - 1)) << notes[i].code;
    }
}

std::string frame(const char* joints, const char* members, const std::string& more)
{
    return std::string("UNIT METER KN\nJOINT COORDINATES\n") + joints + "\nMEMBER INCIDENCES\n" + members + '\n' +
           more + "FINISH\n";
}

std::string in_units(const char* unit, const std::string& more)
{
    return unit + std::string("\nJOINT COORDINATES\n1 0 0 0; 2 0 3 0\nMEMBER INCIDENCES\n1 1 2\n") + more + "FINISH\n";
}

const std::string two_loads = "LOAD 1 LOADTYPE Dead TITLE DL\nMEMBER LOAD\n1 CON GY -7 1\n1 UNI GX 2\n";
const char* const loads_text =
    "under UNIT METER KN loads are in kN and mm (1 kN/m is 0.001000) and in the model's axes (GY is written as GZ)";
const std::string spring = "SUPPORTS\n1 FIXED BUT MZ\n2 FIXED BUT KFY 100\n";
const char* const feet_text = "numbers in sections, supports and releases keep the units of the input, UNIT FEET KIP";
const std::string rolled = "MEMBER PROPERTY\n1 TABLE ST H400\nCONSTANTS\n";

struct note_case {
    const char* why;
    std::string deck;
    const char* code;
    const char* text; ///< empty: there is no such note
    const char* example;
};

const note_case note_cases[] = {
    {"joints 10 20 30, nothing that lists them", frame("10 0 0 0; 20 0 3 0; 30 4 3 0", "1 10 20; 2 20 30", {}),
     "numbers", "joints have new numbers (joint 10 is 1)", "    1 0 0 0; 2 0 3 0; 3 4 3 0;"},
    {"joint 3 stands before joint 2: the example is the first list that misleads",
     frame("1 0 0 0; 3 0 3 0; 2 4 3 0", "1 1 3; 2 3 2", "SUPPORTS\n1 FIXED\n2 PINNED\n"), "numbers",
     "joints have new numbers (joint 3 is 2); supports still name the old ones", "    2 PINNED"},
    {"a number that nothing had and something has now", frame("10 0 0 0; 20 0 3 0", "1 10 20", "SUPPORTS\n2 FIXED\n"),
     "numbers", "joints have new numbers (joint 10 is 1); supports still name the old ones", "    2 FIXED"},
    {"a number that nothing had and nothing has", frame("10 0 0 0; 20 0 3 0", "1 10 20", "SUPPORTS\n3 FIXED\n"),
     "numbers", "joints have new numbers (joint 10 is 1)", "    1 0 0 0; 2 0 3 0;"},
    {"members: releases and groups, supports are right as they are",
     frame("1 0 0 0; 2 0 3 0; 3 4 3 0", "7 1 2; 8 2 3",
           "START GROUP DEFINITION\nJOINT\n_TOP 2 3\nMEMBER\n_BEAM 8\nEND GROUP DEFINITION\n"
           "SUPPORTS\n1 FIXED\nMEMBER RELEASE\n8 START MY MZ\n"),
     "numbers", "members have new numbers (member 7 is 1); releases and groups still name the old ones",
     "    8 START MY MZ"},
    {"elements: a group of elements",
     frame("1 0 0 0; 2 0 3 0; 3 4 3 0", "1 1 2",
           "ELEMENT INCIDENCES SHELL\n1 1 2 3\nSTART GROUP DEFINITION\nELEMENT\n_WALL 1\nEND GROUP DEFINITION\n"),
     "numbers", "elements have new numbers (element 1 is 2); groups still name the old ones", "    _WALL 1"},
    {"all three", frame("2 0 0 0; 3 0 3 0; 4 4 3 0", "2 2 3; 3 3 4", "ELEMENT INCIDENCES SHELL\n9 2 3 4\n"), "numbers",
     "joints, members and elements have new numbers (joint 2 is 1, member 2 is 1 and element 9 is 3)",
     "    1 0 0 0; 2 0 3 0; 3 4 3 0;"},
    {"nothing changes", frame("1 0 0 0; 2 0 3 0", "1 1 2", "SUPPORTS\n1 FIXED\n"), "numbers", "", ""},

    {"loads of every kind that is lost",
     small_deck("LOAD 4 LOADTYPE Dead TITLE DL\nMEMBER LOAD\n1 UNI GY -5\n"
                "LOAD 5 LOADTYPE Live\nAREA LOAD\n1 ALOAD -0.5\n1 ALOAD -0.7\nFLOOR LOAD\nYRANGE 3 3 FLOAD -2\n"
                "LOAD 6 LOADTYPE Live\nELEMENT LOAD\n1 PR GY -2\nPERFORM ANALYSIS\n"),
     "loads-left-out",
     "not written: 2 area loads, 1 other load, floor loads by range (1 line) and 1 title of load cases",
     "    LOAD 5 LOADTYPE  TITLE LOAD CASE 5"},
    {"cases without loads", small_deck("LOAD 1 LOADTYPE Dead TITLE DL\nLOAD 2\nPERFORM ANALYSIS\n"), "loads-left-out",
     "not written: 1 title of load cases and 2 load cases without loads", "    LOAD 4 WL AUTO WIND LOAD"},
    {"the first load in the order of the bytes", small_deck(two_loads + "PERFORM ANALYSIS\n"), "loads", loads_text,
     "    1 CON GZ -7.000000 1000.000000"},
    {"a line load down is the better example", small_deck(two_loads + "1 UNI GY -3\nPERFORM ANALYSIS\n"), "loads",
     loads_text, "    1 UNI GZ -0.003000"},

    {"user tables that change family or lose their unit",
     small_deck("START USER TABLE\n"
                "TABLE 1\nUNIT METER KN\nWIDE FLANGE\nH300\n0.3 0.15 0.0065 0.009\n"
                "TABLE 2\nUNIT FEET KIP\nPIPE\nP1\n0.5 0.4\n"
                "TABLE 12\nUNIT METER KN\nPIPE\nP2\n0.5 0.4\nEND\n"),
     "user-tables",
     "user tables cannot be read: rows are sorted, lines of numbers stand among their names; TABLE 2 is CHANNEL and "
     "was "
     "PIPE; TABLE 2 has lost its UNIT FEET KIP",
     "    0.3 0.15 0.0065 0.009"},
    {"a material that the written library lacks", small_deck(rolled + "MATERIAL C30 ALL\n"), "materials",
     "not in the material library that is written: C30", "    MATERIAL C30 ALL"},
    {"no material", small_deck(), "materials", "not in the material library that is written: (no name)",
     "    MATERIAL  ALL"},
    {"known", small_deck(rolled + "MATERIAL STEEL ALL\n"), "materials", "", ""},
    {"known", small_deck(rolled + "MATERIAL C1 ALL\n"), "materials", "", ""},
    {"known", small_deck(rolled + "MATERIAL CONCRETE ALL\n"), "materials", "", ""},
    {"known", small_deck(rolled + "MATERIAL STAINLESSSTEEL ALL\n"), "materials", "", ""},
    {"known", small_deck(rolled + "MATERIAL ALUMINUM ALL\n"), "materials", "", ""},

    {"a spring", in_units("UNIT FEET KIP", spring), "kept-units", feet_text, "    2 FIXED BUT KFY 100"},
    {"of metres and kN it is what the file says", in_units("UNIT METER KN", spring), "kept-units", "", ""},
    {"of metres alone it is not", in_units("UNIT METER KIP", spring), "kept-units",
     "numbers in sections, supports and releases keep the units of the input, UNIT METER KIP",
     "    2 FIXED BUT KFY 100"},
    {"a release", in_units("UNIT FEET KIP", "MEMBER RELEASE\n1 START MZ 0.5\n"), "kept-units", feet_text,
     "    1 START MZ 0.5"},
    {"a gap between angles", in_units("UNIT FEET KIP", "MEMBER PROPERTY\n1 TABLE LD L303 SP 0.25\nCONSTANTS\n"),
     "kept-units", feet_text, "    1 TABLE LD L303 SP 0.25"},
    {"names with digits are no numbers",
     in_units("UNIT FEET KIP", "MEMBER PROPERTY\n1 TABLE ST W14X22\nCONSTANTS\nSUPPORTS\n1 FIXED BUT MZ\n"),
     "kept-units", "", ""},

    {"texts of the file cannot drive the terminal", small_deck(rolled + "MATERIAL \x1B[31m ALL\n"), "materials",
     "not in the material library that is written: \\x1B[31m", "    MATERIAL \\x1B[31m ALL"},
};

TEST(ConvertNotes, EachWhereItApplies)
{
    for (const note_case& each : note_cases) {
        const printed_note note = note_of(each.deck, each.code);
        EXPECT_EQ(note.text, each.text) << each.why;
        EXPECT_EQ(note.example, each.example) << each.why;
    }
}

TEST(ConvertNotes, TheDocumentationShowsThemAsTheyAre)
{
    const tool_run tool;
    const std::string source = STAADKIT_SOURCE_DIR;
    const std::string err = tool({"convert", source + "/examples/steel-portal.std", "portal.std"}).err;
    EXPECT_TRUE(contains(read_file(source + "/docs/tool.md"),
                         "```text\n$ staadkit convert examples/steel-portal.std portal.std\n" + err + "```\n"))
        << err;
    std::string first = tool({"convert", source + "/examples/concrete-frame.std", "out.std"}).err;
    first = first.substr(0, first.rfind('\n', first.find("note loads-left-out")) + 1);
    EXPECT_TRUE(contains(read_file(source + "/README.md"), "```text\n" + first + "```\n")) << first;
}

} // namespace
} // namespace cli_test
