// The verb "info": what it tells of a deck whose answers are worked out by hand.

#include "tool_run.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <iterator>

namespace cli_test {
namespace {

using nlohmann::json;

const char* const tower_lines[] = {
    "units: UNIT METER KN",
    "factors: length x 1000 (mm), force x 1 (kN), moment x 1 (kN*mm)",
    "joints: 9",
    "members: 12 (6 columns, 4 beams, 1 brace, 1 horizontal brace)",
    "shells: 1 element",
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
};

TEST(Info, FullReport)
{
    const tool_run tool;
    const std::string path = tool.write("tower.std", tower_deck());
    const tool_result result = tool({"info", path});
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_FALSE(contains(result.err, "error")) << result.err;
    EXPECT_EQ(result.out.rfind(path + '\n', 0), 0U);
    for (const char* line : tower_lines)
        EXPECT_TRUE(has_line(result.out, line)) << line << "\nis not in\n" << result.out;
}

json info_json(const tool_run& tool, const std::string& path)
{
    const tool_result result = tool({"info", "--json", path});
    EXPECT_EQ(result.exit_code, 0) << result.err;
    return json::parse(result.out);
}

TEST(Info, JsonTellsCountsAndPlaces)
{
    const tool_run tool;
    const std::string path = tool.write("tower.std", tower_deck());
    const json report = info_json(tool, path);
    EXPECT_EQ(report["file"], path);
    EXPECT_EQ(report["was_read"], true);
    EXPECT_EQ(report["units"]["text"], "UNIT METER KN");
    EXPECT_EQ(report["units"]["length_factor"], 1000.0);
    EXPECT_EQ(report["joints"], 9);
    EXPECT_EQ(report["members"], json::parse(R"({"total": 12, "columns": 6, "beams": 4, "braces": 1,
        "horizontal_braces": 1, "with_offsets": 1, "with_beta": 2, "without_section": 1})"));
    EXPECT_EQ(report["elements"], 1);
    EXPECT_EQ(report["surfaces"], 1);
    EXPECT_EQ(report["extents_mm"]["file_x"], json::parse("[0.0, 6000.0]"));
    EXPECT_EQ(report["extents_mm"]["file_z"], json::parse("[0.0, 8250.0]"));
    EXPECT_EQ(report["storeys"]["levels_mm"], json::parse("[-500.0, 3700.0, 7300.0, 10900.0]"));
    EXPECT_EQ(report["storeys"]["heights_mm"], json::parse("[4200.0, 3600.0, 3600.0]"));
    EXPECT_EQ(report["groups"][1],
              json::parse(R"({"name": "_COLUMNS", "kind": "MEMBER", "members": 6, "unknown_numbers": 0})"));
}

TEST(Info, JsonTellsSupportsSectionsAndTables)
{
    const tool_run tool;
    const json report = info_json(tool, tool.write("tower.std", tower_deck()));
    EXPECT_EQ(report["supports"], json::parse(R"([{"description": "FIXED", "joints": 2, "unknown_numbers": 0},
        {"description": "PINNED", "joints": 1, "unknown_numbers": 1}])"));
    EXPECT_EQ(report["releases"],
              json::parse(R"([{"description": "START MY MZ", "members": 2, "unknown_numbers": 0}])"));
    EXPECT_EQ(report["user_tables"],
              json::parse(R"([{"number": 1, "family": "WIDE FLANGE", "unit": "UNIT METER KN", "rows": 2}])"));
}

struct section_case {
    const char* why;
    const char* text;
    int members;
    const char* family;
    std::vector<double> dimensions;
};

const section_case sections[] = {
    {"areas and inertias are no dimensions", "PRIS10X0", 1, "", {}},
    {"depth and width", "PRIS500X300", 3, "", {500, 300}},
    {"a rolled section of a table that is not in the file", "TABLE ST HN400X200X8X13", 1, "", {}},
    {"outer diameter and wall", "TABLE ST PIP200X10", 2, "", {200, 10}},
    {"all five numbers", "TAPERED600X8X600X250X12", 2, "", {600, 8, 600, 250, 12}},
    {"looked up in the user table, cut to whole mm", "UPTABLE 1 H300", 2, "wide flange", {300, 150, 6, 9}},
};

TEST(Info, JsonTellsTheDimensionsThatWereUnderstood)
{
    const tool_run tool;
    const json report = info_json(tool, tool.write("tower.std", tower_deck()));
    ASSERT_EQ(report["sections"].size(), std::size(sections));
    for (std::size_t i = 0; i < std::size(sections); ++i) {
        const json& section = report["sections"][i];
        EXPECT_EQ(section["text"], sections[i].text) << sections[i].why;
        EXPECT_EQ(section["code"], "AMERICAN") << sections[i].why;
        EXPECT_EQ(section["members"], sections[i].members) << sections[i].why;
        EXPECT_EQ(section["family"], sections[i].family) << sections[i].why;
        EXPECT_EQ(section["dimensions_mm"].get<std::vector<double>>(), sections[i].dimensions) << sections[i].why;
    }
}

TEST(Info, UserTableRowsThatCannotBeUsed)
{
    const tool_run tool;
    const std::string deck = small_deck("START USER TABLE\nTABLE 1\nUNIT METER KN\nTEE\nT1\n0.1 0.2\nEND\n"
                                        "MEMBER PROPERTY\n1 UPTABLE 1 T2\n");
    const json section = info_json(tool, tool.write("a.std", deck))["sections"][0];
    EXPECT_EQ(section["family"], "tee");
    EXPECT_EQ(section["trouble"], "not found in the user tables");
    EXPECT_TRUE(section["dimensions_mm"].empty());
}

TEST(Info, ConcreteDensityTellsWhereItIsFrom)
{
    const tool_run tool;
    // Of the line behind ISOTROPIC CONCRETE the number stands behind seven characters: "E 2.171".
    const std::string path = tool.write("c.std", small_deck("DEFINE MATERIAL START\nISOTROPIC CONCRETE\n"
                                                            "E 2.17185e+007\nEND DEFINE MATERIAL\n"));
    EXPECT_TRUE(has_line(tool({"info", path}).out, "concrete density: 8.5e+08 (as written behind ISOTROPIC CONCRETE)"));
    EXPECT_EQ(info_json(tool, path)["concrete_density_is_default"], false);
    const json by_default = info_json(tool, tool.write("d.std", small_deck()));
    EXPECT_EQ(by_default["concrete_density"], 23.5615);
    EXPECT_EQ(by_default["concrete_density_is_default"], true);
}

TEST(Info, JsonTellsLoadCases)
{
    const tool_run tool;
    const json report = info_json(tool, tool.write("tower.std", tower_deck()));
    // The uniform and the concentrated load both stand on member 7, which counts once; the same
    // goes for joint 7 in the second case.
    EXPECT_EQ(report["load_cases"], json::parse(R"([
        {"number": 1, "type": "dead", "type_text": "Dead", "title": "DL", "members_loaded": 3, "joints_loaded": 2,
         "definitions": [{"kind": "JOINT LOAD", "count": 1}, {"kind": "MEMBER LOAD CON", "count": 1},
                         {"kind": "MEMBER LOAD UNI", "count": 1}, {"kind": "SELFWEIGHT", "count": 1}]},
        {"number": 2, "type": "wind", "type_text": "Wind", "title": "WIND X", "members_loaded": 0, "joints_loaded": 2,
         "definitions": [{"kind": "JOINT LOAD", "count": 2}]}])"));
}

TEST(Info, TellsWhatIsNotInTheModel)
{
    const tool_run tool;
    const std::string path = tool.write("tower.std", tower_deck());
    // The combination has two lines: its header and its factors.
    const json combination = json::parse(R"({"words": "LOAD COMB", "lines": 2})");
    const json skipped = info_json(tool, path)["not_in_the_model"];
    EXPECT_NE(std::find(skipped.begin(), skipped.end(), combination), skipped.end()) << skipped;
    EXPECT_TRUE(contains(tool({"info", path}).out, "\n  LOAD COMB         2 lines\n"));
}

TEST(Info, OwnWeightLoadsMoreThanNobody)
{
    const tool_run tool;
    const std::string weight = tool.write("a.std", small_deck("LOAD 1 LOADTYPE Dead TITLE DL\nSELFWEIGHT Y -1\n"));
    EXPECT_TRUE(has_line(tool({"info", weight}).out, "  1  dead  DL  -  1 SELFWEIGHT")) << tool({"info", weight}).out;
    const std::string listed =
        tool.write("b.std", small_deck("LOAD 1 LOADTYPE Dead TITLE DL\nSELFWEIGHT Y -1 LIST 1\n"));
    EXPECT_TRUE(has_line(tool({"info", listed}).out, "  1  dead  DL  1 member, 0 joints  1 SELFWEIGHT"));
}

TEST(Info, CaseOfHeadersWithoutANumberIsExplained)
{
    const tool_run tool;
    const char* const explained = "case 0: what stands under headers without a number (LOAD R1) or with 0";
    const std::string numbered = "LOAD 1 LOADTYPE Dead TITLE DL\nSELFWEIGHT Y -1\n";
    const std::string plain = tool.write("a.std", small_deck(numbered));
    EXPECT_FALSE(has_line(tool({"info", plain}).out, explained));
    const std::string reference =
        tool.write("b.std", small_deck("LOAD R1 LOADTYPE Dead TITLE REF\nSELFWEIGHT Y -1\n" + numbered));
    EXPECT_TRUE(has_line(tool({"info", reference}).out, explained)) << tool({"info", reference}).out;
}

TEST(Info, SeveralFilesOneLineEachAndTheWorstExitCode)
{
    const tool_run tool;
    const std::string tower = tool.write("tower.std", tower_deck());
    const std::string missing = tool.missing("nowhere.std");
    const std::string small = tool.write("small.std", small_deck());
    const tool_result result = tool({"info", tower, missing, small});
    EXPECT_EQ(result.exit_code, 3);
    const std::string first = tower + ": 9 joints, 12 members, 1 element, 1 surface, 2 load cases\n";
    const std::string last = small + ": 2 joints, 1 member, 0 elements, 0 surfaces, 0 load cases\n";
    ASSERT_EQ(result.out.rfind(first, 0), 0U) << result.out;
    EXPECT_EQ(result.out.rfind(missing + ": error: ", first.size()), first.size()) << result.out;
    EXPECT_TRUE(has_line(result.out, last.substr(0, last.size() - 1))) << result.out;
    EXPECT_EQ(std::count(result.out.begin(), result.out.end(), '\n'), 3) << result.out;
    EXPECT_EQ(tool({"info", tower, small}).exit_code, 0);
}

TEST(Info, JsonOfSeveralFilesIsAnArray)
{
    const tool_run tool;
    const std::string tower = tool.write("tower.std", tower_deck());
    const std::string bad = tool.write("bad.std", "STAAD SPACE\n");
    const tool_result result = tool({"info", "--json", tower, bad});
    EXPECT_EQ(result.exit_code, 3);
    const json reports = json::parse(result.out);
    ASSERT_EQ(reports.size(), 2U);
    EXPECT_EQ(reports[0]["joints"], 9);
    EXPECT_EQ(reports[1]["was_read"], false);
    EXPECT_EQ(reports[1]["findings"].back()["severity"], "error");
}

TEST(Info, StandardInput)
{
    const tool_run tool;
    const tool_result from_input = tool({"info", "-"}, tower_deck());
    EXPECT_EQ(from_input.exit_code, 0);
    const tool_result from_file = tool({"info", tool.write("tower.std", tower_deck())});
    const auto without_name = [](const std::string& report) { return report.substr(report.find('\n')); };
    EXPECT_EQ(from_input.out.rfind("<stdin>\n", 0), 0U);
    EXPECT_EQ(without_name(from_input.out), without_name(from_file.out));
    const tool_result empty = tool({"info", "-"});
    EXPECT_EQ(empty.exit_code, 3);
    EXPECT_EQ(empty.err.rfind("<stdin>: error ", 0), 0U) << empty.err;
}

} // namespace
} // namespace cli_test
