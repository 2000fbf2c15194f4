// The verb "forces": JSON and CSV.

#include "force_decks.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace cli_test {
namespace {

using nlohmann::json;

json json_of(const force_files& forces, std::vector<std::string> options)
{
    options.insert(options.begin(), "--json");
    const tool_result result = forces(options);
    EXPECT_EQ(result.exit_code, 0) << result.err;
    return json::parse(result.out);
}

std::vector<std::string> codes(const json& findings)
{
    std::vector<std::string> list;
    for (const json& finding : findings)
        list.push_back(finding["code"]);
    return list;
}

TEST(ForcesJson, CountsAndFindings)
{
    const force_files forces;
    const json report = json_of(forces, {});
    EXPECT_EQ(report["model"], forces.model);
    EXPECT_EQ(report["listing"], forces.listing);
    EXPECT_EQ(report["was_read"], true);
    EXPECT_EQ(report["sections"], 1);
    EXPECT_EQ(report["members"], 3);
    EXPECT_EQ(report["members_in_model"], 3);
    EXPECT_EQ(report["unknown_member_lines"], 1);
    EXPECT_EQ(report["stations"], 14);
    EXPECT_EQ(report["load_cases"], json::parse(R"([
        {"number": 1, "type": "dead", "title": "SELF WEIGHT", "members": 3},
        {"number": 2, "type": "live", "title": "CROWD", "members": 1},
        {"number": 3, "type": "dead", "title": "FINISHES", "members": 1},
        {"number": 4, "type": "wind", "title": "WIND +X", "members": 1},
        {"number": 9, "type": null, "title": null, "members": 1}])"));
    EXPECT_EQ(codes(report["listing_findings"]),
              (std::vector<std::string>{"force-unknown-member", "force-last-case", "force-section"}));
    EXPECT_EQ(report["listing_findings"][0]["first_line"], 18);
    EXPECT_TRUE(report["model_findings"].is_array());
}

TEST(ForcesJson, Stations)
{
    const json report = json_of(force_files(), {"--member", "12", "--case", "3"});
    EXPECT_EQ(report["forces"], json::parse(R"([{"member": 12, "load_case": 3, "stations": [
        {"position_mm": 0, "f1_kN": 0.5, "f2_kN": 0, "f3_kN": 0, "m1_kNmm": 0, "m2_kNmm": 0, "m3_kNmm": -250},
        {"position_mm": 6000, "f1_kN": 0.5, "f2_kN": 0, "f3_kN": 0, "m1_kNmm": 0, "m2_kNmm": 0, "m3_kNmm": 250}]}])"));
    EXPECT_EQ(report["stations"], 14) << "of all that was read";
    EXPECT_FALSE(report.contains("extremes"));
    EXPECT_FALSE(report.contains("lists"));
}

TEST(ForcesJson, NumbersAreExact)
{
    // A third, and what its product with 1000 is in doubles.
    const force_files forces(force_section({"11 1:A 0 0.3333333333333333 0 0 0 0 0.1", "2:B 0 1 1 1 1 1 1"}));
    const json station = json_of(forces, {})["forces"][0]["stations"][0];
    EXPECT_EQ(station["f1_kN"].get<double>(), 0.3333333333333333);
    EXPECT_EQ(station["m3_kNmm"].get<double>(), 0.1 * 1000.0);
}

TEST(ForcesJson, Extremes)
{
    const json extremes = json_of(force_files(), {"--extremes"})["extremes"];
    ASSERT_EQ(extremes.size(), 12U);
    EXPECT_EQ(extremes[0], json::parse(R"({"component": "F1", "unit": "kN", "extreme": "largest", "value": 100,
        "member": 12, "load_case": 9, "position_mm": 0})"));
    EXPECT_EQ(extremes[11], json::parse(R"({"component": "M3", "unit": "kN*mm", "extreme": "smallest", "value": -6000,
        "member": 12, "load_case": 1, "position_mm": 6000})"));
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

TEST(ForcesJson, WhatCannotBeReadIsToldInTheObject)
{
    const force_files forces("no title here\n");
    const tool_result result = forces({"--json"});
    EXPECT_EQ(result.exit_code, 3);
    const json report = json::parse(result.out);
    EXPECT_EQ(report["was_read"], false);
    EXPECT_EQ(report["listing_findings"][0]["code"], "force-no-title");
    EXPECT_FALSE(report.contains("forces"));
    const std::string missing = forces.tool.missing("nowhere.std");
    const tool_result no_model = forces.tool({"forces", missing, forces.listing, "--json"});
    EXPECT_EQ(no_model.exit_code, 3);
    EXPECT_EQ(json::parse(no_model.out)["model_findings"][0]["code"], "file-missing");
    EXPECT_EQ(json::parse(no_model.out)["listing_findings"], json::array());
}

TEST(ForcesCsv, Stations)
{
    EXPECT_EQ(force_files()({"--csv"}).out,
              "member,load_case,load_type,position_mm,f1_kN,f2_kN,f3_kN,m1_kNmm,m2_kNmm,m3_kNmm\n"
              "11,1,dead,0,-7,0,0,0,0,0\n"
              "11,1,dead,4000,-7.5,0,0,0,0,1500\n"
              "11,4,wind,0,0,0,0,0,0,2000\n"
              "11,4,wind,4000,0,0,0,0,0,-2000\n"
              "12,1,dead,0,1,2,3,4000,5000,6000\n"
              "12,1,dead,6000,-1,-2,-3,-4000,-5000,-6000\n"
              "12,2,live,0,10,20,30,0,0,0\n"
              "12,2,live,6000,10,-20,30,0,0,0\n"
              "12,3,dead,0,0.5,0,0,0,0,-250\n"
              "12,3,dead,6000,0.5,0,0,0,0,250\n"
              "12,9,,0,100,0,0,0,0,0\n"
              "12,9,,6000,100,0,0,0,0,0\n"
              "13,1,dead,0,3,0,0,0,0,0\n"
              "13,1,dead,4000,2,0,0,0,0,0\n");
}

TEST(ForcesCsv, Extremes)
{
    EXPECT_EQ(force_files()({"--csv", "--extremes", "--member", "11"}).out,
              "component,unit,extreme,value,member,load_case,position_mm\n"
              "F1,kN,largest,0,11,4,0\n"
              "F1,kN,smallest,-7.5,11,1,4000\n"
              "F2,kN,largest,0,11,1,0\n"
              "F2,kN,smallest,0,11,1,0\n"
              "F3,kN,largest,0,11,1,0\n"
              "F3,kN,smallest,0,11,1,0\n"
              "M1,kN*mm,largest,0,11,1,0\n"
              "M1,kN*mm,smallest,0,11,1,0\n"
              "M2,kN*mm,largest,0,11,1,0\n"
              "M2,kN*mm,smallest,0,11,1,0\n"
              "M3,kN*mm,largest,2000,11,4,0\n"
              "M3,kN*mm,smallest,-2000,11,4,4000\n");
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

TEST(ForcesCsv, NothingWhereNothingWasRead)
{
    const tool_result result = force_files("no title here\n")({"--csv"});
    EXPECT_EQ(result.exit_code, 3);
    EXPECT_EQ(result.out, "");
}

} // namespace
} // namespace cli_test
