// The verb "forces": what it shows, as text, JSON and CSV, of a listing whose answers are worked out by hand.

#include "force_decks.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace cli_test {
namespace {

using nlohmann::json;
using options = std::vector<std::string>;

/// The report less its first lines: from the first empty line on.
std::string tables(const std::string& report)
{
    return report.substr(std::min(report.size(), report.find("\n\n") + 1));
}

TEST(Forces, BeginsWithWhatWasRead)
{
    const force_files forces;
    const tool_result result = forces();
    EXPECT_EQ(result.exit_code, 0) << result.err;
    const std::string first =
        forces.listing + ", forces of " + forces.model +
        "\nsections: 1\n"
        "  line 1  forces of 3 members in 'UNIT m kN kN-m'\n"
        "members: 3 of the 3 in the model; 1 in the listing only, skipped\n"
        "load cases: 5\n"
        "  1  dead  SELF WEIGHT       3 members\n"
        "  2  live  CROWD             1 member\n"
        "  3  dead  FINISHES          1 member\n"
        "  4  wind  WIND +X           1 member\n"
        "  9  -     not in the model  1 member\n"
        "stations: 14\n"
        "units: mm from the member's start, kN, kN*mm\n"
        "columns: forces F1 F2 F3, moments M1 M2 M3 in the order of the listing; axes are not turned\n";
    EXPECT_EQ(result.out.substr(0, first.size()), first);
}

struct tables_case {
    const char* why;
    std::string listing;
    const char* asked; ///< options
    const char* tables;
};

const tables_case tables_cases[] = {
    {"a table for each load case", force_listing(), "--member 11",
     "\nMember 11, load case 1: dead, SELF WEIGHT\n"
     "  position      F1     F2     F3     M1     M2      M3\n"
     "        mm      kN     kN     kN  kN*mm  kN*mm   kN*mm\n"
     "       0.0  -7.000  0.000  0.000    0.0    0.0     0.0\n"
     "    4000.0  -7.500  0.000  0.000    0.0    0.0  1500.0\n"
     "\nMember 11, load case 4: wind, WIND +X\n"
     "  position     F1     F2     F3     M1     M2       M3\n"
     "        mm     kN     kN     kN  kN*mm  kN*mm    kN*mm\n"
     "       0.0  0.000  0.000  0.000    0.0    0.0   2000.0\n"
     "    4000.0  0.000  0.000  0.000    0.0    0.0  -2000.0\n"},
    {"a member of which nothing is kept", force_section({"11 1:SELF 0 1 1 1 1 1 1", "1 1 1 1 1 1 1"}), "",
     "\nMember 11: no load case\n"},
    {"large numbers get a power of ten",
     force_section({"11 1:SELF 0 999999999 2.5E +12 0 0 0 -1E+300", "2:END 0 1 1 1 1 1 1"}), "",
     "\nMember 11, load case 1: dead, SELF WEIGHT\n"
     "  position             F1       F2     F3     M1     M2       M3\n"
     "        mm             kN       kN     kN  kN*mm  kN*mm    kN*mm\n"
     "       0.0  999999999.000  2.5e+12  0.000    0.0    0.0  -1e+303\n"},
    {"extremes of everything", force_listing(), "--extremes",
     "\nExtremes\n"
     "                  value  unit   member  load case  position, mm\n"
     "  F1  largest   100.000  kN         12          9           0.0\n"
     "  F1  smallest   -7.500  kN         11          1        4000.0\n"
     "  F2  largest    20.000  kN         12          2           0.0\n"
     "  F2  smallest  -20.000  kN         12          2        6000.0\n"
     "  F3  largest    30.000  kN         12          2           0.0\n"
     "  F3  smallest   -3.000  kN         12          1        6000.0\n"
     "  M1  largest    4000.0  kN*mm      12          1           0.0\n"
     "  M1  smallest  -4000.0  kN*mm      12          1        6000.0\n"
     "  M2  largest    5000.0  kN*mm      12          1           0.0\n"
     "  M2  smallest  -5000.0  kN*mm      12          1        6000.0\n"
     "  M3  largest    6000.0  kN*mm      12          1           0.0\n"
     "  M3  smallest  -6000.0  kN*mm      12          1        6000.0\n"},
    {"extremes of nothing", force_section({"11 1:SELF 0 1 1 1 1 1 1"}), "--extremes", "\nExtremes: none\n"},
    {"seven stations at eighths of 6 m between the printed two", force_listing(), "--pkpm --member 12 --case 2",
     "\nMember 12, dead: none, all zeros\n"
     "\nMember 12, live: load case 2, CROWD\n"
     "  position      F1       F2      F3     M1     M2     M3\n"
     "        mm      kN       kN      kN  kN*mm  kN*mm  kN*mm\n"
     "       0.0  10.000   20.000  30.000    0.0    0.0    0.0\n"
     "     750.0  10.000   15.000  30.000    0.0    0.0    0.0\n"
     "    1500.0  10.000   10.000  30.000    0.0    0.0    0.0\n"
     "    2250.0  10.000    5.000  30.000    0.0    0.0    0.0\n"
     "    3000.0  10.000    0.000  30.000    0.0    0.0    0.0\n"
     "    3750.0  10.000   -5.000  30.000    0.0    0.0    0.0\n"
     "    4500.0  10.000  -10.000  30.000    0.0    0.0    0.0\n"
     "    5250.0  10.000  -15.000  30.000    0.0    0.0    0.0\n"
     "    6000.0  10.000  -20.000  30.000    0.0    0.0    0.0\n"
     "\nMember 12, wind: none, all zeros\n"
     "\nMember 12, seismic: none, all zeros\n"},
    {"a list of a combination", force_listing(), "--pkpm --case 9",
     "\nMember 12: no list, as no dead, live, wind or seismic load case has two stations\n"},
};

TEST(Forces, Tables)
{
    for (const tables_case& each : tables_cases)
        EXPECT_EQ(tables(force_files(each.listing)(words_of(each.asked)).out), each.tables) << each.why;
}

struct lines_case {
    const char* why;
    std::string listing;
    const char* asked;             ///< options
    const char* lines;             ///< of the report
    const char* absent = "\n\n\n"; ///< no such text
};

const lines_case lines_cases[] = {
    {"load cases without type, without title, of a type of their own",
     force_section({"11 5:CRANE 0 1 1 1 1 1 1", "6:HOT 0 1 1 1 1 1 1", "1:END 0 1 1 1 1 1 1"}), "",
     "Member 11, load case 5\n"
     "Member 11, load case 6: Temperature, HOT\n"
     "  5  -            -    1 member\n"
     "  6  Temperature  HOT  1 member"},
    {"nothing is kept, and counted", force_section({"11 1:SELF 0 1 1 1 1 1 1", "1 1 1 1 1 1 1"}), "",
     "members: 1 of the 3 in the model\n"
     "load cases: 0"},
    {"options given twice; all that was read is counted", force_listing(), "--member 12 --member 13 --case 1 --case 9",
     "stations: 14\n"
     "shown: 2 members, 2 load cases, 6 stations\n"
     "Member 12, load case 1: dead, SELF WEIGHT\n"
     "Member 12, load case 9 (not in the model)\n"
     "Member 13, load case 1: dead, SELF WEIGHT",
     "\nMember 11"},
    {"lists with ranges, their gaps passed over", force_listing(), "--member '1 TO 11 13' --case '3 to 1000'",
     "shown: 1 member, 1 load case, 2 stations\n"
     "Member 11, load case 4: wind, WIND +X",
     "\nMember 12"},
    {"of equal extremes the first", force_listing(), "--extremes --member 12 --case 3",
     "shown: 1 member, 1 load case, 2 stations\n"
     "  F1  largest    0.500  kN         12          3           0.0\n"
     "  F1  smallest   0.500  kN         12          3           0.0\n"
     "  M3  smallest  -250.0  kN*mm      12          3           0.0"},
    {"of the dead cases 1 and 3 the higher one counts", force_listing(), "--pkpm --member 12",
     "Member 12, dead: load case 3, FINISHES\n"
     "Member 12, live: load case 2, CROWD"},
    {"unless it is not asked for", force_listing(), "--pkpm --member 12 --case 1",
     "Member 12, dead: load case 1, SELF WEIGHT\n"
     "Member 12, live: none, all zeros"},
    {"case 3 would count before case 1, and has one station only",
     force_section({"11 1:SELF 0 1 1 1 1 1 1", "4 1 1 1 1 1 1", "2:CROWD 0 1 1 1 1 1 1", "4 1 1 1 1 1 1",
                    "3:FINISHES 0 1 1 1 1 1 1", "4:END 0 1 1 1 1 1 1"}),
     "--pkpm",
     "Member 11, dead: none, all zeros\n"
     "Member 11, live: load case 2, CROWD"},
};

TEST(Forces, Lines)
{
    for (const lines_case& each : lines_cases) {
        const std::string out = force_files(each.listing)(words_of(each.asked)).out;
        for (const std::string& line : lines_of(each.lines))
            EXPECT_TRUE(has_line(out, line)) << each.why << '\n' << out;
        EXPECT_FALSE(contains(out, each.absent)) << each.why << '\n' << out;
    }
}

TEST(Forces, OptionsMayStandBeforeTheFilesOneOfWhichIsStandardInput)
{
    const force_files forces;
    EXPECT_EQ(forces.tool("forces --member 11 frame.std frame.txt").out,
              forces.tool("forces frame.std frame.txt --member 11").out);
    const std::string from_files = forces().out;
    const std::string after_names = from_files.substr(from_files.find('\n'));
    EXPECT_EQ(forces.tool("forces frame.std -", force_listing()).out, "<stdin>, forces of frame.std" + after_names);
    EXPECT_EQ(forces.tool("forces - frame.txt", force_model()).out, "frame.txt, forces of <stdin>" + after_names);
}

TEST(Forces, ExampleInMixedUnits)
{
    const std::string frame = std::string(STAADKIT_SOURCE_DIR) + "/examples/concrete-frame";
    const tool_result result = tool_run()({"forces", frame + ".std", frame + ".txt", "--member", "1 201"});
    EXPECT_EQ(result.exit_code, 0) << result.err;
    EXPECT_TRUE(has_line(result.out, "members: 10 of the 68 in the model")) << result.out;
    EXPECT_TRUE(has_line(result.out, "sections: 3"));
    // 24 kN/m on 6 m between fixed ends.
    EXPECT_TRUE(has_line(result.out, "       0.0  0.000   72.000  0.000    0.0    0.0  -72000.0")) << result.out;
    EXPECT_TRUE(has_line(result.out, "    3000.0  0.000    0.000  0.000    0.0    0.0   36000.0")) << result.out;
    // 64 t at the base of column 1.
    EXPECT_TRUE(has_line(result.out, "       0.0  -627.200  0.000  0.000    0.0    0.0    0.0")) << result.out;
}

json json_of(const force_files& forces, options asked)
{
    asked.insert(asked.begin(), "--json");
    const tool_result result = forces(asked);
    EXPECT_EQ(result.exit_code, 0) << result.err;
    return json::parse(result.out);
}

TEST(ForcesJson, CountsAndFindings)
{
    const force_files forces;
    json report = json_of(forces, {});
    EXPECT_EQ(report["model"], forces.model);
    EXPECT_EQ(report["listing"], forces.listing);
    const json findings = report["listing_findings"];
    ASSERT_EQ(findings.size(), 3U);
    EXPECT_EQ(findings[0]["code"], "force-unknown-member");
    EXPECT_EQ(findings[0]["first_line"], 18);
    EXPECT_EQ(findings[1]["code"], "force-last-case");
    EXPECT_EQ(findings[2]["code"], "force-section");
    EXPECT_TRUE(report["model_findings"].is_array());
    for (const char* checked : {"model", "listing", "forces", "listing_findings", "model_findings"})
        report.erase(checked);
    EXPECT_EQ(report, json::parse(R"({"was_read": true, "sections": 1, "members": 3, "members_in_model": 3,
        "unknown_member_lines": 1, "stations": 14, "load_cases": [
        {"number": 1, "type": "dead", "title": "SELF WEIGHT", "members": 3},
        {"number": 2, "type": "live", "title": "CROWD", "members": 1},
        {"number": 3, "type": "dead", "title": "FINISHES", "members": 1},
        {"number": 4, "type": "wind", "title": "WIND +X", "members": 1},
        {"number": 9, "type": null, "title": null, "members": 1}]})"));
}

TEST(ForcesJson, Stations)
{
    const json report = json_of(force_files(), {"--member", "12", "--case", "3"});
    EXPECT_EQ(report["forces"], json::parse(R"([{"member": 12, "load_case": 3, "stations": [
        {"position_mm": 0, "f1_kN": 0.5, "f2_kN": 0, "f3_kN": 0, "m1_kNmm": 0, "m2_kNmm": 0, "m3_kNmm": -250},
        {"position_mm": 6000, "f1_kN": 0.5, "f2_kN": 0, "f3_kN": 0, "m1_kNmm": 0, "m2_kNmm": 0, "m3_kNmm": 250}]}])"));
    EXPECT_EQ(report["stations"], 14) << "of all that was read";
    // A third, and what its product with 1000 is in doubles.
    const force_files forces(force_section({"11 1:A 0 0.3333333333333333 0 0 0 0 0.1", "2:B 0 1 1 1 1 1 1"}));
    const json station = json_of(forces, {})["forces"][0]["stations"][0];
    EXPECT_EQ(station["f1_kN"].get<double>(), 0.3333333333333333);
    EXPECT_EQ(station["m3_kNmm"].get<double>(), 0.1 * 1000.0);
}

TEST(ForcesJson, Extremes)
{
    const json report = json_of(force_files(), {"--extremes"});
    const json& extremes = report["extremes"];
    ASSERT_EQ(extremes.size(), 12U);
    EXPECT_EQ(extremes[0], json::parse(R"({"component": "F1", "unit": "kN", "extreme": "largest", "value": 100,
        "member": 12, "load_case": 9, "position_mm": 0})"));
    EXPECT_EQ(extremes[11], json::parse(R"({"component": "M3", "unit": "kN*mm", "extreme": "smallest", "value": -6000,
        "member": 12, "load_case": 1, "position_mm": 6000})"));
    EXPECT_FALSE(report.contains("forces") || report.contains("lists"));
}

TEST(ForcesJson, Lists)
{
    const json lists = json_of(force_files(), {"--pkpm"})["lists"];
    ASSERT_EQ(lists.size(), 3U);
    EXPECT_EQ(lists[1]["member"], 12);
    EXPECT_EQ(lists[1]["load_cases"], json::parse(R"({"dead": 3, "live": 2, "wind": null, "seismic": null})"));
    ASSERT_EQ(lists[1]["stations"].size(), 9U);
    const json& second = lists[1]["stations"][1];
    EXPECT_EQ(second["dead"], json::parse(R"({"position_mm": 750, "f1_kN": 0.5, "f2_kN": 0, "f3_kN": 0,
        "m1_kNmm": 0, "m2_kNmm": 0, "m3_kNmm": -187.5})"));
    EXPECT_EQ(second["live"]["f2_kN"], 15);
    EXPECT_EQ(second["wind"], json::parse(R"({"position_mm": 0, "f1_kN": 0, "f2_kN": 0, "f3_kN": 0,
        "m1_kNmm": 0, "m2_kNmm": 0, "m3_kNmm": 0})"))
        << "zeros, position included";
}

TEST(ForcesJson, AnObjectWithoutModelOrForces)
{
    const force_files forces("no title here\n");
    const tool_result result = forces({"--json"});
    EXPECT_EQ(result.exit_code, 3);
    const json report = json::parse(result.out);
    EXPECT_EQ(report["was_read"], false);
    EXPECT_EQ(report["listing_findings"][0]["code"], "force-no-title");
    EXPECT_FALSE(report.contains("forces"));
    const tool_result no_model = forces.tool({"forces", forces.tool.missing("nowhere.std"), forces.listing, "--json"});
    EXPECT_EQ(no_model.exit_code, 3);
    EXPECT_EQ(json::parse(no_model.out)["model_findings"][0]["code"], "file-missing");
    EXPECT_EQ(json::parse(no_model.out)["listing_findings"], json::array());
}

TEST(ForcesCsv, StationsAndExtremes)
{
    const force_files forces;
    EXPECT_EQ(forces({"--csv", "--case", "4 9"}).out,
              "member,load_case,load_type,position_mm,f1_kN,f2_kN,f3_kN,m1_kNmm,m2_kNmm,m3_kNmm\n"
              "11,4,wind,0,0,0,0,0,0,2000\n"
              "11,4,wind,4000,0,0,0,0,0,-2000\n"
              "12,9,,0,100,0,0,0,0,0\n"
              "12,9,,6000,100,0,0,0,0,0\n");
    const std::string extremes = forces({"--csv", "--extremes", "--member", "11"}).out;
    EXPECT_EQ(extremes.rfind("component,unit,extreme,value,member,load_case,position_mm\n"
                             "F1,kN,largest,0,11,4,0\n"
                             "F1,kN,smallest,-7.5,11,1,4000\n",
                             0),
              0U)
        << extremes;
    EXPECT_TRUE(has_line(extremes, "M3,kN*mm,smallest,-2000,11,4,4000")) << extremes;
    EXPECT_EQ(std::count(extremes.begin(), extremes.end(), '\n'), 1 + 12);
}

TEST(ForcesCsv, ListsHaveRowsForTheKindsThereAre)
{
    const std::string rows = force_files()({"--csv", "--pkpm", "--member", "12"}).out;
    EXPECT_EQ(rows.rfind("member,station,load_type,load_case,position_mm,f1_kN,f2_kN,f3_kN,m1_kNmm,m2_kNmm,m3_kNmm\n"
                         "12,1,dead,3,0,0.5,0,0,0,0,-250\n"
                         "12,1,live,2,0,10,20,30,0,0,0\n"
                         "12,2,dead,3,750,0.5,0,0,0,0,-187.5\n"
                         "12,2,live,2,750,10,15,30,0,0,0\n",
                         0),
              0U)
        << rows;
    EXPECT_EQ(std::count(rows.begin(), rows.end(), '\n'), 1 + 9 * 2);
}

} // namespace
} // namespace cli_test
