// The verb "storeys": what stands in which storey, in words and as JSON.

#include "terminal_run.h"
#include "tool_run.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <vector>

namespace cli_test {
namespace {

using nlohmann::json;

/// Levels 0, 4 and 7.5 m, and something of everything that is in no storey.
std::string storeys_deck()
{
    return "STAAD SPACE\n"
           "UNIT METER KN\n"
           "JOINT COORDINATES\n"
           "1 0 0 0; 2 6 0 0; 3 0 4 0; 4 6 4 0; 5 0 7.5 0; 6 6 7.5 0; 7 3 9 0; 8 3 0 0;\n"
           "MEMBER INCIDENCES\n"
           "1 1 3; 2 2 4; 3 3 5; 4 4 6; 5 3 4; 6 5 6; 7 1 4; 8 5 7; 9 1 8; 10 1 99;\n"
           "11 3 99; 12 3 4;\n"
           "ELEMENT INCIDENCES SHELL\n"
           "101 3 4 6 5; 102 1 2 8; 103 5 6 7;\n"
           "SURFACE INCIDENCE\n"
           "1 2 4 3 SUR 5\n"
           "MEMBER PROPERTY CHINESE\n"
           "1 TO 4 PRIS YD 0.5 ZD 0.5\n"
           "5 6 9 PRIS YD 0.6 ZD 0.3\n"
           "7 12 TABLE ST L100X10\n"
           "8 PRIS YD 0.4\n"
           "CONSTANTS\n"
           "MATERIAL C30 ALL\n"
           "MATERIAL C40 MEMB 1\n"
           "MEMBER TRUSS\n"
           "7 12\n"
           "FINISH\n";
}

TEST(Storeys, TableFromTheTopDown)
{
    const tool_run tool;
    const std::string path = tool.write("in.std", storeys_deck());
    const tool_result result = tool({"storeys", path});
    EXPECT_EQ(result.exit_code, 0) << result.err;
    // Storey 1: columns 1 and 2, beams 5 and 11, brace 7, horizontal brace 12, surface 5; no section, 1 of 4, for 11.
    // Joint 7 and member 8 rise above the top; 9 lies at the bottom, 10 has no joint to rise to.
    EXPECT_EQ(
        result.out,
        path + "\n"
               "storeys: 2 (4.00 + 3.50 m), base at 0.00 m, from the top down\n"
               "   storey  base (m)  height (m)  joints  columns  beams  braces  horizontal braces  shells  sections\n"
               "        2     4.000       3.500       2        2      1       0                  0       1         2\n"
               "        1     0.000       4.000       2        2      2       1                  1       1         4\n"
               "  in none                             4        0      3       0                  0       2         3\n"
               "    total                             8        4      6       1                  1       4         5\n"
               "members and shells in no storey:\n"
               "  at the lowest level  1 member   9\n"
               "  at the lowest level  1 element  102\n"
               "  above the top level  1 member   8\n"
               "  above the top level  1 element  103\n"
               "  unknown joints       1 member   10\n"
               "sections: 5\n"
               "  1  PRIS500X500       C40  4 members  storeys 1 TO 2\n"
               "  2  PRIS600X300       C30  3 members  storeys 1 TO 2, 1 in none\n"
               "  3  TABLE ST L100X10  C30  2 members  storey 1\n"
               "  4  PRIS400           C30  1 member   in no storey\n"
               "  5  (empty)           C30  2 members  storey 1, 1 in none\n");
}

TEST(Storeys, JsonHasEveryNumber)
{
    const tool_run tool;
    const std::string path = tool.write("in.std", storeys_deck());
    const tool_result result = tool({"storeys", "--json", path});
    EXPECT_EQ(result.exit_code, 0) << result.err;
    const json report = json::parse(result.out);
    EXPECT_EQ(report["file"], path);
    EXPECT_EQ(report["was_read"], true);
    EXPECT_EQ(report["levels_mm"], json({0, 4000, 7500}));
    ASSERT_EQ(report["storeys"].size(), 2U);
    EXPECT_EQ(report["storeys"][0], json({{"number", 1},
                                          {"base_mm", 0},
                                          {"height_mm", 4000},
                                          {"sections", {1, 2, 3, 5}},
                                          {"joints", 2},
                                          {"columns", 2},
                                          {"beams", 2},
                                          {"braces", 1},
                                          {"horizontal_braces", 1},
                                          {"shells", 1},
                                          {"members_with_forces", 0},
                                          {"joint_numbers", {3, 4}},
                                          {"member_numbers", {1, 2, 5, 7, 11, 12}},
                                          {"element_numbers", json::array()},
                                          {"surface_numbers", {5}}}));
    EXPECT_EQ(report["storeys"][1]["base_mm"], 4000);
    EXPECT_EQ(report["storeys"][1]["height_mm"], 3500);
    EXPECT_EQ(report["storeys"][1]["member_numbers"], json({3, 4, 6}));
    EXPECT_EQ(report["storeys"][1]["element_numbers"], json({101}));

    const json& in_none = report["in_no_storey"];
    ASSERT_EQ(in_none.size(), 4U);
    EXPECT_EQ(in_none[0]["reason"], "at the lowest level");
    EXPECT_EQ(in_none[0]["joint_numbers"], json({1, 2, 8}));
    EXPECT_EQ(in_none[0]["member_numbers"], json({9}));
    EXPECT_EQ(in_none[0]["element_numbers"], json({102}));
    EXPECT_EQ(in_none[1]["reason"], "above the top level");
    EXPECT_EQ(in_none[1]["joint_numbers"], json({7}));
    EXPECT_EQ(in_none[1]["member_numbers"], json({8}));
    EXPECT_EQ(in_none[2]["reason"], "unknown joints");
    EXPECT_EQ(in_none[2]["member_numbers"], json({10}));
    EXPECT_EQ(in_none[3]["reason"], "no levels");
    EXPECT_EQ(in_none[3]["member_numbers"], json::array());

    ASSERT_EQ(report["sections"].size(), 5U);
    EXPECT_EQ(report["sections"][1], json({{"number", 2},
                                           {"property", "PRIS600X300"},
                                           {"material", "C30"},
                                           {"members", 2},
                                           {"members_in_no_storey", 1},
                                           {"storeys", {1, 2}}}));
    EXPECT_TRUE(report["forces"].is_null());
    EXPECT_EQ(report["findings"][0]["code"], "joint-unknown");
    EXPECT_EQ(report["findings"][0]["severity"], "warning");
}

TEST(Storeys, OneLevelIsAStorey)
{
    const tool_run tool;
    const std::string path = tool.write("in.std", "UNIT METER KN\nJOINT COORDINATES\n1 0 4.5 0; 2 6 4.5 0; 3 3 6 0\n"
                                                  "MEMBER INCIDENCES\n1 1 2; 2 1 3; 3 99 98\nFINISH\n");
    const tool_result result = tool({"storeys", path});
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_TRUE(has_line(result.out, "storeys: 1 (one level, at 4.500 m: height by convention)")) << result.out;
    // The member without joints counts as one of the lowest level, which is that of a storey here.
    EXPECT_TRUE(has_line(
        result.out,
        "        1     4.500       3.000       2        0      2       0                  0       0         1"))
        << result.out;
    EXPECT_TRUE(has_line(result.out, "  above the top level  1 member  2")) << result.out;
    EXPECT_FALSE(contains(result.out, "unknown joints")) << result.out;
}

TEST(Storeys, NoLevelIsReportedAndIsAnExitCode)
{
    const tool_run tool;
    const std::string path = tool.write("in.std", "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 6 1 0\n"
                                                  "MEMBER INCIDENCES\n7 1 2; 9 1 99\nFINISH\n");
    const tool_result result = tool({"storeys", path});
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_EQ(result.out, path + "\n"
                                 "storeys: none (no upright and no level member)\n"
                                 "members and shells in no storey:\n"
                                 "  unknown joints  1 member  9\n"
                                 "  no levels       1 member  7\n");
    EXPECT_TRUE(
        has_line(result.err, "staadkit: error: " + path + ": no storeys: no upright and no level member gives a level"))
        << result.err;

    const tool_result as_json = tool({"storeys", "--json", path});
    EXPECT_EQ(as_json.exit_code, 1);
    const json report = json::parse(as_json.out);
    EXPECT_EQ(report["storeys"], json::array());
    EXPECT_EQ(report["levels_mm"], json::array());
    EXPECT_EQ(report["in_no_storey"][3]["member_numbers"], json({7}));
}

TEST(Storeys, LongListsAreCutInWordsAndWholeInJson)
{
    const tool_run tool;
    std::string deck = "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 4 0; 3 5 0 0\nMEMBER INCIDENCES\n1 1 2\n";
    // Every other number, from 10 to 32: twelve runs, of which ten are printed.
    json numbers = json::array();
    for (int member = 10; member <= 32; member += 2) {
        deck += std::to_string(member) + " 1 3\n";
        numbers.push_back(member);
    }
    const std::string path = tool.write("in.std", deck + "FINISH\n");
    const std::string text = tool({"storeys", path}).out;
    EXPECT_TRUE(has_line(text, "  at the lowest level  12 members  10 12 14 16 18 20 22 24 26 28 ...")) << text;
    EXPECT_EQ(json::parse(tool({"storeys", "--json", path}).out)["in_no_storey"][0]["member_numbers"], numbers);
}

TEST(Storeys, StandardInput)
{
    const tool_run tool;
    const tool_result result = tool({"storeys", "-"}, storeys_deck());
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_EQ(result.out.rfind("<stdin>\nstoreys: 2 (", 0), 0U) << result.out;
}

TEST(Storeys, NotesOnRequestOnly)
{
    const tool_run tool;
    const std::string path = tool.write("in.std", storeys_deck());
    // The first line is no command that a block understands.
    const std::string note = path + ":1: note skipped: STAAD SPACE (1 line)";
    EXPECT_FALSE(contains(tool({"storeys", path}).err, ": note "));
    EXPECT_TRUE(has_line(tool({"storeys", "--notes", path}).err, note));
    EXPECT_TRUE(contains(tool({"storeys", path}).err, path + ":6: warning joint-unknown: "));
}

TEST(Storeys, NoModel)
{
    const tool_run tool;
    const std::string path = tool.write("in.std", "nothing\n");
    const tool_result result = tool({"storeys", path});
    EXPECT_EQ(result.exit_code, 3);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(contains(result.err, path + ": error ")) << result.err;
    const tool_result as_json = tool({"storeys", "--json", path});
    EXPECT_EQ(as_json.exit_code, 3);
    const json report = json::parse(as_json.out);
    EXPECT_EQ(report["was_read"], false);
    EXPECT_FALSE(report.contains("storeys"));
    EXPECT_EQ(report["findings"][0]["severity"], "error");
}

TEST(Storeys, TextsCannotDriveTheTerminal)
{
    const tool_run tool;
    const std::string path =
        tool.write("in.std", small_deck("MEMBER PROPERTY CHINESE\n1 TABLE ST \x1B[31mRED\nCONSTANTS\n"));
    const tool_result result = tool({"storeys", path});
    EXPECT_TRUE(contains(result.out, "  1  TABLE ST \\x1B[31MRED")) << result.out;
    EXPECT_FALSE(contains(result.out + result.err, "\x1B"));
}

/// The listing of the bundled frame: columns 1, 2, 5 and beams 201, 202, 203, 205, 208 of the first storey,
/// beams 401 and 402 of the third.
const std::string frame = STAADKIT_SOURCE_DIR "/examples/concrete-frame.std";
const std::string frame_listing = STAADKIT_SOURCE_DIR "/examples/concrete-frame.txt";

void expect_forces_of_the_frame(const tool_result& result)
{
    EXPECT_EQ(result.exit_code, 0) << result.err;
    EXPECT_TRUE(has_line(result.out,
                         "   storey  base (m)  height (m)  joints  columns  beams  braces  horizontal braces  "
                         "shells  sections  with forces"))
        << result.out;
    const auto row = [&](const char* begin, const char* end) {
        const std::size_t at = result.out.find(begin);
        ASSERT_NE(at, std::string::npos) << begin;
        const std::string line = result.out.substr(at, result.out.find('\n', at) - at);
        EXPECT_TRUE(line.ends_with(end)) << line;
    };
    row("        3     7.300", "  2");
    row("        2     4.000", "  0");
    row("        1     0.000", "  8");
    row("  in none", "  0");
    row("    total", "  10");
}

TEST(Storeys, ForcesOfTheListingBesideTheModel)
{
    const tool_run tool;
    const tool_result result = tool({"storeys", frame, "--forces"});
    expect_forces_of_the_frame(result);
    EXPECT_TRUE(has_line(result.out, "forces: " + frame_listing)) << result.out;
    EXPECT_TRUE(contains(result.err, frame_listing + ":315: warning force-last-case: ")) << result.err;
}

TEST(Storeys, ForcesOfAnotherListing)
{
    const tool_run tool;
    const std::string model = tool.write("frame.std", read_file(frame));
    const std::string listing = tool.write("forces.lst", read_file(frame_listing));
    for (const auto& call :
         {std::vector<std::string>{"storeys", model, "--forces", listing}, {"storeys", "--forces=" + listing, model}}) {
        const tool_result result = tool(call);
        expect_forces_of_the_frame(result);
        EXPECT_TRUE(has_line(result.out, "forces: " + listing)) << result.out;
    }
    const tool_result piped = tool({"storeys", model, "--forces", "-"}, read_file(frame_listing));
    expect_forces_of_the_frame(piped);
    EXPECT_TRUE(has_line(piped.out, "forces: <stdin>")) << piped.out;

    const json report = json::parse(tool({"storeys", model, "--json", "--forces", listing}).out);
    EXPECT_EQ(report["storeys"][0]["members_with_forces"], 8);
    EXPECT_EQ(report["forces"]["file"], listing);
    EXPECT_EQ(report["forces"]["was_read"], true);
    EXPECT_TRUE(std::any_of(report["forces"]["findings"].begin(), report["forces"]["findings"].end(),
                            [](const json& finding) { return finding["code"] == "force-last-case"; }));
    EXPECT_TRUE(std::none_of(report["findings"].begin(), report["findings"].end(),
                             [](const json& finding) { return finding["code"] == "force-last-case"; }));
}

TEST(Storeys, NoListingAnywhere)
{
    const tool_run tool;
    const std::string path = tool.write("in.std", storeys_deck());
    const tool_result beside = tool({"storeys", path, "--forces"});
    EXPECT_EQ(beside.exit_code, 3);
    EXPECT_EQ(beside.out, "");
    EXPECT_TRUE(has_line(beside.err, "staadkit: error: " + path + ": no listing beside it, " + tool.missing("in.txt") +
                                         "; --forces LISTING names another"))
        << beside.err;

    const std::string nowhere = tool.missing("nowhere.txt");
    const tool_result named = tool({"storeys", path, "--forces", nowhere, "--json"});
    EXPECT_EQ(named.exit_code, 3);
    EXPECT_TRUE(contains(named.err, nowhere + ": error file-missing: ")) << named.err;
    const json report = json::parse(named.out);
    EXPECT_EQ(report["was_read"], true);
    EXPECT_EQ(report["forces"]["was_read"], false);
    EXPECT_FALSE(report.contains("storeys"));
}

TEST(Storeys, AListingWithoutForces)
{
    const tool_run tool;
    const std::string path = tool.write("in.std", storeys_deck());
    const std::string listing = tool.write("in.txt", "no title here\n");
    const tool_result result = tool({"storeys", path, "--forces"});
    EXPECT_EQ(result.exit_code, 3);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(contains(result.err, listing + ": error force-no-title: ")) << result.err;
}

TEST(Storeys, StandardInputHasNoListingBesideIt)
{
    const tool_run tool;
    const tool_result beside = tool({"storeys", "-", "--forces"}, storeys_deck());
    EXPECT_EQ(beside.exit_code, 2);
    EXPECT_EQ(beside.err, "staadkit: error: standard input has no listing beside it; --forces LISTING names one\n");
    const tool_result twice = tool({"storeys", "-", "--forces", "-"}, storeys_deck());
    EXPECT_EQ(twice.exit_code, 2);
    EXPECT_EQ(twice.err, "staadkit: error: standard input is the model already\n");
}

#ifndef _WIN32
TEST(Storeys, AsksForTheListingAtATerminal)
{
    const tool_run tool;
    const std::string model = tool.write("frame.std", read_file(frame));
    const std::string listing = tool.write("forces.lst", read_file(frame_listing));
    const tool_result result = at_terminal(tool, {"storeys", model, "--forces"}, listing + '\n');
    expect_forces_of_the_frame(result);
    EXPECT_TRUE(contains(result.err, "File to open, ")) << result.err;
    const tool_result cancelled = at_terminal(tool, {"storeys", model, "--forces"}, "\n");
    EXPECT_EQ(cancelled.exit_code, 3);
    EXPECT_TRUE(contains(cancelled.err, ": no listing beside it, ")) << cancelled.err;
}
#endif

TEST(Storeys, APlaceWithoutEndIsNoCrash)
{
    const tool_run tool;
    // Past the largest double once it is in mm.
    const std::string path = tool.write(
        "far.std", "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 1e308 0\nMEMBER INCIDENCES\n1 1 2\nFINISH\n");
    const tool_result result = tool({"storeys", path});
    EXPECT_EQ(result.exit_code, 0) << result.err;
    EXPECT_TRUE(has_line(result.out, "storeys: not finite, from the top down")) << result.out;
    EXPECT_EQ(json::parse(tool({"storeys", "--json", path}).out)["levels_mm"], json({0, "Infinity"}));
    EXPECT_EQ(tool({"compare", path, path}).exit_code, 0);
}

} // namespace
} // namespace cli_test
