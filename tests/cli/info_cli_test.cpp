// The verb "info": what it shows of decks whose answers are worked out by hand.

#include "tool_run.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace cli_test {
namespace {

using nlohmann::json;

const char* const tower_lines[] = {
    "units: UNIT METER KN",
    "factors: length x 1000 (mm), force x 1 (kN), moment x 1 (kN*mm)",
    "joints: 9",
    "members: 12 (6 columns, 4 beams, 1 brace, 1 horizontal brace)",
    "elements: 1",
    "surfaces: 1",
    "extents: plan 6.0 m x 8.25 m, height 11.4 m",
    "storeys: 3 (4.20 + 2 x 3.60 m), base at -0.50 m",
    "concrete density: 23.5615 (default)",
    "offsets: 1 member",
    "beta angles: 2 members",
    "groups: 2",
    "  _BASE     JOINT   3 joints",
    "  _COLUMNS  MEMBER  6 members",
    "supports: 2",
    "  FIXED   2 joints",
    "  PINNED  1 joint   and 1 number without a joint",
    "releases: 1",
    "  START MY MZ  2 members",
    "sections: 6",
    "  AMERICAN  PRIS10X0                 1 member",
    "  AMERICAN  PRIS500X300              3 members  500 x 300 mm",
    "  AMERICAN  TABLE ST HN400X200X8X13  1 member",
    "  AMERICAN  UPTABLE 1 H300           2 members  wide flange 300 x 150 x 6 x 9 mm",
    "without section: 1 member",
    "user tables: 1",
    "  1  WIDE FLANGE  2 rows  UNIT METER KN",
    "load cases: 2",
    "  2  wind  WIND X  0 members, 2 joints  2 JOINT LOAD",
    "  LOAD COMB         2 lines",
};

TEST(Info, FullReport)
{
    const tool_run tool;
    tool.write("tower.std", tower_deck());
    const tool_result result = tool("info --reading host tower.std");
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_FALSE(contains(result.err, "error")) << result.err;
    EXPECT_EQ(result.out.rfind("tower.std\n", 0), 0U);
    for (const char* line : tower_lines)
        EXPECT_TRUE(has_line(result.out, line)) << line << "\nis not in\n" << result.out;
    const std::string from_input = tool("info --reading host -", tower_deck()).out;
    EXPECT_EQ(from_input, "<stdin>" + result.out.substr(result.out.find('\n')));
}

json info_json(const std::string& deck)
{
    const tool_result result = tool_run()("info --reading host --json -", deck);
    EXPECT_EQ(result.exit_code, 0) << result.err;
    return json::parse(result.out);
}

struct json_case {
    const char* why;
    const char* pointer;
    const char* want;
};

const json_case tower_values[] = {
    {"", "/was_read", "true"},
    {"", "/units", R"({"text": "UNIT METER KN", "length_factor": 1000, "force_factor": 1, "force_length_factor": 1})"},
    {"", "/joints", "9"},
    {"", "/members", R"({"total": 12, "columns": 6, "beams": 4, "braces": 1, "horizontal_braces": 1, "with_offsets": 1,
        "with_beta": 2, "without_section": 1})"},
    {"", "/elements", "1"},
    {"", "/surfaces", "1"},
    {"the file's axes", "/extents_mm", R"({"file_x": [0, 6000], "file_z": [0, 8250], "height": [-500, 10900]})"},
    {"", "/storeys", R"({"levels_mm": [-500, 3700, 7300, 10900], "heights_mm": [4200, 3600, 3600]})"},
    {"", "/concrete_density", "23.5615"},
    {"", "/concrete_density_is_default", "true"},
    {"", "/groups/1", R"({"name": "_COLUMNS", "kind": "MEMBER", "members": 6, "unknown_numbers": 0})"},
    {"joint 2 is listed twice", "/supports", R"([{"description": "FIXED", "joints": 2, "unknown_numbers": 0},
        {"description": "PINNED", "joints": 1, "unknown_numbers": 1}])"},
    {"", "/releases", R"([{"description": "START MY MZ", "members": 2, "unknown_numbers": 0}])"},
    {"", "/user_tables", R"([{"number": 1, "family": "WIDE FLANGE", "unit": "UNIT METER KN", "rows": 2}])"},
    {"member 7 counts once, and so does joint 7", "/load_cases", R"([
        {"number": 1, "type": "dead", "type_text": "Dead", "title": "DL", "members_loaded": 3, "joints_loaded": 2,
         "definitions": [{"kind": "JOINT LOAD", "count": 1}, {"kind": "MEMBER LOAD CON", "count": 1},
                         {"kind": "MEMBER LOAD UNI", "count": 1}, {"kind": "SELFWEIGHT", "count": 1}]},
        {"number": 2, "type": "wind", "type_text": "Wind", "title": "WIND X", "members_loaded": 0, "joints_loaded": 2,
         "definitions": [{"kind": "JOINT LOAD", "count": 2}]}])"},
    {"areas and inertias are no dimensions", "/sections/0", R"({"code": "AMERICAN", "text": "PRIS10X0", "members": 1,
        "family": "", "dimensions_mm": [], "trouble": ""})"},
    {"depth and width", "/sections/1/dimensions_mm", "[500, 300]"},
    {"a rolled section of a table that is not in the file", "/sections/2/dimensions_mm", "[]"},
    {"outer diameter and wall", "/sections/3/dimensions_mm", "[200, 10]"},
    {"all five numbers", "/sections/4/dimensions_mm", "[600, 8, 600, 250, 12]"},
    {"looked up in the user table, cut to whole mm", "/sections/5/dimensions_mm", "[300, 150, 6, 9]"},
    {"the header and the factors of the combination", "/not_in_the_model/1", R"({"words": "LOAD COMB", "lines": 2})"},
};

TEST(Info, Json)
{
    const json report = info_json(tower_deck());
    for (const json_case& each : tower_values)
        EXPECT_EQ(report.at(json::json_pointer(each.pointer)), json::parse(each.want)) << each.pointer << each.why;
}

std::string table_deck(const std::string& family, const std::string& rows, const std::string& section)
{
    return small_deck("START USER TABLE\nTABLE 1\nUNIT METER KN\n" + family + '\n' + rows +
                      "END\nMEMBER PROPERTY AMERICAN\n1 UPTABLE 1 " + section + '\n');
}

std::string two_member_deck(const std::string& properties)
{
    return "STAAD SPACE\nUNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 3 0; 3 4 3 0;\n"
           "MEMBER INCIDENCES\n1 1 2; 2 2 3;\nMEMBER PROPERTY AMERICAN\n" +
           properties + "FINISH\n";
}

/// A line of columns through joints at these heights, m.
std::string column_deck(const std::vector<double>& heights)
{
    std::string joints;
    std::string members;
    for (std::size_t i = 0; i < heights.size(); ++i) {
        joints += std::to_string(i + 1) + " 0 " + std::to_string(heights[i]) + " 0\n";
        if (i > 0)
            members += std::to_string(i) + ' ' + std::to_string(i) + ' ' + std::to_string(i + 1) + '\n';
    }
    return "UNIT METER KN\nJOINT COORDINATES\n" + joints + "MEMBER INCIDENCES\n" + members + "FINISH\n";
}

struct line_case {
    const char* why;
    std::string deck;
    std::string lines;             ///< of the report
    const char* absent = "\n\n\n"; ///< no such text
};

const std::string dead = "LOAD 1 LOADTYPE Dead TITLE DL\n";
const char* const load_case_0 = "load case 0: loads under headers without a number (LOAD R1) or with 0";
const char* const area_rows = "G1\n0.01 0.2 0.3\nG2\n0.02 0.2 0.3 0.00002\n0.0001\n0.004 0.003\n";

const line_case line_cases[] = {
    {"a floor group numbers elements: the members it lists are none",
     small_deck("ELEMENT INCIDENCES SHELL\n8 1 2 1\nSTART GROUP DEFINITION\nFLOOR\n_F 1 8 TO 11 8\n_G 1\n"
                "MEMBER\n_M 1 1 2 2\nJOINT\n_J 1 2 2\nEND GROUP DEFINITION\n"),
     "  _F  FLOOR   1 element   and 4 numbers without an element\n"
     "  _G  FLOOR   0 elements  and 1 number without an element\n"
     "  _M  MEMBER  1 member    and 1 number without a member\n"
     "  _J  JOINT   2 joints"},
    {"unknown numbers count once", small_deck("SUPPORTS\n1 400 400 401 FIXED\n"),
     "  FIXED  1 joint  and 2 numbers without a joint"},
    {"an area and an inertia are no lengths, in whatever order they come",
     two_member_deck("1 PRIS YD 0.5 ZD 0.3\n2 PRIS AX 0.5 IZ 0.3\n"),
     "sections: 2\n"
     "  AMERICAN  PRIS500X300  1 member  500 x 300 mm\n"
     "  AMERICAN  PRIS500X300  1 member"},
    {"the same with the area first", two_member_deck("1 PRIS AX 0.5 IZ 0.3\n2 PRIS YD 0.5 ZD 0.3\n"),
     "sections: 2\n"
     "  AMERICAN  PRIS500X300  1 member  500 x 300 mm\n"
     "  AMERICAN  PRIS500X300  1 member"},
    {"what a catalogue calls a pipe is not known in mm",
     two_member_deck("1 TABLE ST PIPE OD 0.2 ID 0.18\n2 TABLE ST PIP200X10\n"),
     "sections: 2\n"
     "  AMERICAN  TABLE ST PIP200X10  1 member  200 x 10 mm\n"
     "  AMERICAN  TABLE ST PIP200X10  1 member"},
    {"the same for a name of one number", two_member_deck("1 TABLE ST PIPE OD 0.2 ID 0.18\n2 TABLE ST PIPX40\n"),
     "sections: 2\n"
     "  AMERICAN  TABLE ST PIP200X10  1 member  200 x 10 mm\n"
     "  AMERICAN  TABLE ST PIPX40     1 member"},
    {"a table of areas has no dimensions; its second row goes on over a line of one number",
     table_deck("GENERAL", area_rows, "G1"),
     "  1  GENERAL  2 rows  UNIT METER KN\n"
     "  AMERICAN  UPTABLE 1 G1  1 member  general"},
    {"the same of a table of prisms", table_deck("PRISMATIC", area_rows, "G1"),
     "  1  PRISMATIC  2 rows  UNIT METER KN\n"
     "  AMERICAN  UPTABLE 1 G1  1 member  prismatic"},
    {"dimensions between X make a row", table_deck("TUBE", "B1\n0.1X0.2X0.006\n", "B1"),
     "  1  TUBE  1 row  UNIT METER KN\n"
     "  AMERICAN  UPTABLE 1 B1  1 member  tube 100 x 200 x 6 mm"},
    {"a row that is not there", table_deck("TEE", "T1\n0.1 0.2\n", "T2"),
     "  AMERICAN  UPTABLE 1 T2  1 member  tee: not found in the user tables"},
    {"the number after seven characters of the line after ISOTROPIC CONCRETE, \"E 2.171\"",
     small_deck("DEFINE MATERIAL START\nISOTROPIC CONCRETE\nE 2.17185e+007\nEND DEFINE MATERIAL\n"),
     "concrete density: 8.5e+08 (as written after ISOTROPIC CONCRETE)"},
    {"own weight alone does not load 0 members", small_deck(dead + "SELFWEIGHT Y -1\n"),
     "  1  dead  DL  -  1 SELFWEIGHT", load_case_0},
    {"own weight of a list", small_deck(dead + "SELFWEIGHT Y -1 LIST 1\n"),
     "  1  dead  DL  1 member, 0 joints  1 SELFWEIGHT"},
    {"headers without a number are explained",
     small_deck("LOAD R1 LOADTYPE Dead TITLE REF\nSELFWEIGHT Y -1\n" + dead + "SELFWEIGHT Y -1\n"), load_case_0},
    {"one storey", column_deck({0, 3}), "storeys: 1 (3.00 m), base at 0.00 m"},
    {"millimetres where they matter", column_deck({0, 3.005, 6.01}), "storeys: 2 (2 x 3.005 m), base at 0.00 m"},
    {"levels that round to the same millimetre are one", column_deck({0, 3.0004, 3.0001}),
     "storeys: 1 (3.00 m), base at 0.00 m"},
    {"only equal storeys side by side share a term", column_deck({0, 4, 7, 11}),
     "storeys: 3 (4.00 + 3.00 + 4.00 m), base at 0.00 m"},
    {"twelve terms are shown", column_deck({0, 3, 7, 10, 14, 17, 21, 24, 28, 31, 35, 38, 42}),
     "storeys: 12 (3.00 + 4.00 + 3.00 + 4.00 + 3.00 + 4.00 + 3.00 + 4.00 + 3.00 + 4.00 + 3.00 + 4.00 m), base at 0.00 "
     "m"},
    {"more are not", column_deck({0, 3, 7, 10, 14, 17, 21, 24, 28, 31, 35, 38, 42, 45}),
     "storeys: 13 (3.00 + 4.00 + 3.00 + 4.00 + 3.00 + 4.00 + 3.00 + 4.00 + 3.00 + 4.00 + 3.00 + 4.00 + ... m), "
     "base at 0.00 m"},
    {"a sloping member has no level",
     "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 1 1 0\nMEMBER INCIDENCES\n1 1 2\nEND\n",
     "storeys: none (no upright and no level member)"},
    {"a member whose end is no joint has no height",
     "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0\nMEMBER INCIDENCES\n1 1 2\nEND\n",
     "storeys: none (no upright and no level member)"},
    {"past the largest double once it is in mm",
     "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 1e308 0\nMEMBER INCIDENCES\n1 1 2\nFINISH\n",
     "extents: not finite\n"
     "storeys: not finite"},
};

TEST(Info, Lines)
{
    const tool_run tool;
    for (const line_case& each : line_cases) {
        const std::string text = tool("info --reading host -", each.deck).out;
        for (const std::string& line : lines_of(each.lines))
            EXPECT_TRUE(has_line(text, line)) << each.why << '\n' << text;
        EXPECT_FALSE(contains(text, each.absent)) << each.why << '\n' << text;
    }
}

TEST(Info, JsonCountsUnderTheNameOfWhatAGroupLists)
{
    EXPECT_EQ(info_json(line_cases[0].deck)["groups"], json::parse(R"([
        {"name": "_F", "kind": "FLOOR", "elements": 1, "unknown_numbers": 4},
        {"name": "_G", "kind": "FLOOR", "elements": 0, "unknown_numbers": 1},
        {"name": "_M", "kind": "MEMBER", "members": 1, "unknown_numbers": 1},
        {"name": "_J", "kind": "JOINT", "joints": 2, "unknown_numbers": 0}])"));
}

TEST(Info, SeveralFilesOneLineEachAndTheWorstExitCode)
{
    const tool_run tool;
    tool.write("tower.std", tower_deck());
    tool.write("small.std", small_deck());
    const tool_result result = tool("info --reading host tower.std nowhere.std small.std");
    EXPECT_EQ(result.exit_code, 3);
    EXPECT_EQ(result.out, "tower.std: 9 joints, 12 members, 1 element, 1 surface, 2 load cases\n"
                          "nowhere.std: error: the file does not exist\n"
                          "small.std: 2 joints, 1 member, 0 elements, 0 surfaces, 0 load cases\n");
    EXPECT_EQ(tool("info --reading host tower.std small.std").exit_code, 0);
    const json reports = json::parse(tool("info --reading host --json tower.std nowhere.std small.std").out);
    ASSERT_EQ(reports.size(), 3U);
    EXPECT_EQ(reports[0]["file"], "tower.std");
    EXPECT_EQ(reports[1]["was_read"], false);
    EXPECT_EQ(reports[1]["findings"][0]["severity"], "error");
    EXPECT_EQ(reports[2]["joints"], 2);
}

TEST(Info, OneLongTextDoesNotWidenTheOthers)
{
    std::string deck = "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 3 0\nMEMBER INCIDENCES\n1 1 2\nSUPPORTS\n";
    const std::string long_text(1000000, 'Z');
    deck += "1 " + long_text + '\n';
    for (int i = 1000; i < 4000; ++i)
        deck += "1 KIND" + std::to_string(i) + '\n';
    const tool_result result = tool_run()("info --reading host -", deck + "FINISH\n");
    EXPECT_EQ(result.exit_code, 0);
    // "  KIND1000", padded to 42 columns, and "  1 joint".
    EXPECT_TRUE(has_line(result.out, "  KIND1000" + std::string(32, ' ') + "  1 joint"));
    EXPECT_TRUE(has_line(result.out, "  " + std::string(117, 'Z') + "...  1 joint"));
    EXPECT_LT(result.out.size(), 3001U * 60U);
    const json supports = info_json(deck + "FINISH\n")["supports"];
    ASSERT_EQ(supports.size(), 3001U);
    EXPECT_EQ(supports.back()["description"], long_text);
}

TEST(Info, TextsAreCutBetweenCharacters)
{
    const auto title_of = [](std::size_t characters) {
        std::string title;
        while (title.size() < characters * 3)
            title += "\xE9\x92\xA2"; // two cells wide
        return title;
    };
    const auto has_title = [&](const std::string& title, const std::string& shown) {
        const std::string deck = small_deck("LOAD 1 LOADTYPE Dead TITLE " + title + "\nJOINT LOAD\n1 FX 5\n");
        return has_line(tool_run()("info --reading host -", deck).out,
                        "  1  dead  " + shown + "  0 members, 1 joint  1 JOINT LOAD");
    };
    // Of 120 cells 58 characters and the dots fill 119; a 59th has no room. One less fits as it is.
    EXPECT_TRUE(has_title(title_of(61), title_of(58) + "..."));
    EXPECT_TRUE(has_title(title_of(60), title_of(60)));
}

#ifndef _WIN32
/// Support descriptions of a million bytes each. JSON writes each byte as six.
std::string deck_of_control_bytes(int descriptions)
{
    std::string lines = "SUPPORTS\n";
    for (int i = 0; i < descriptions; ++i)
        lines += "1 K" + std::to_string(i) + std::string(1000000, '\x01') + '\n';
    return small_deck(lines);
}

TEST(Info, LittleMemory)
{
    if (tool_has_address_sanitizer)
        GTEST_SKIP() << "takes more address space than any limit";
    const tool_run tool;
    tool.write("small.std", small_deck());
    tool.write("large.std", deck_of_control_bytes(20));
    // Enough to hold it; the 120 MB of JSON need not be held.
    const tool_result enough = tool.within(140, {"info", "--reading", "host", "--json", "large.std"});
    EXPECT_EQ(enough.exit_code, 0) << enough.err;
    EXPECT_GT(enough.out.size(), 120'000'000U);
    const tool_result result = tool.within(30, {"info", "large.std", "small.std"}); // too little to read it
    EXPECT_EQ(result.exit_code, 3);
    EXPECT_TRUE(contains(result.err, "large.std: error memory: ")) << result.err;
    EXPECT_TRUE(contains(result.out, "small.std: 2 joints, 1 member, ")) << result.out;
}
#endif

} // namespace
} // namespace cli_test
