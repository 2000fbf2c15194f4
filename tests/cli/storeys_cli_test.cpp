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

class Storeys : public testing::Test {
protected:
    void SetUp() override { tool_.write("in.std", storeys_deck()); }

    json report(const std::string& arguments, int exit_code = 0) const
    {
        const tool_result result = tool_(words_of("storeys --json " + arguments));
        EXPECT_EQ(result.exit_code, exit_code) << result.err;
        return json::parse(result.out);
    }

    const tool_run tool_;
};

TEST_F(Storeys, TableFromTheTopDown)
{
    const tool_result result = tool_("storeys in.std");
    EXPECT_EQ(result.exit_code, 0) << result.err;
    // Storey 1: columns 1 and 2, beams 5 and 11, brace 7, horizontal brace 12, surface 5; no section, 1 of 4, for 11.
    // Joint 7 and member 8 rise above the top; 9 lies at the bottom, 10 has no joint to rise to.
    EXPECT_EQ(result.out,
              "in.std\n"
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

TEST_F(Storeys, JsonHasEveryNumber)
{
    const json report = this->report("in.std");
    EXPECT_EQ(report["file"], "in.std");
    EXPECT_EQ(report["was_read"], true);
    EXPECT_EQ(report["levels_mm"], json({0, 4000, 7500}));
    ASSERT_EQ(report["storeys"].size(), 2U);
    EXPECT_EQ(report["storeys"][0], json::parse(R"({"number": 1, "base_mm": 0, "height_mm": 4000,
        "sections": [1, 2, 3, 5], "joints": 2, "columns": 2, "beams": 2, "braces": 1, "horizontal_braces": 1,
        "shells": 1, "members_with_forces": 0, "joint_numbers": [3, 4], "member_numbers": [1, 2, 5, 7, 11, 12],
        "element_numbers": [], "surface_numbers": [5]})"));
    EXPECT_EQ(report["storeys"][1]["base_mm"], 4000);
    EXPECT_EQ(report["storeys"][1]["height_mm"], 3500);
    EXPECT_EQ(report["storeys"][1]["member_numbers"], json({3, 4, 6}));
    EXPECT_EQ(report["storeys"][1]["element_numbers"], json({101}));

    json in_none;
    for (const json& each : report["in_no_storey"])
        in_none.push_back({each["reason"], each["joint_numbers"], each["member_numbers"], each["element_numbers"]});
    EXPECT_EQ(in_none, json::parse(R"([["at the lowest level", [1, 2, 8], [9], [102]],
        ["above the top level", [7], [8], [103]], ["unknown joints", [], [10], []], ["no levels", [], [], []]])"));
    ASSERT_EQ(report["sections"].size(), 5U);
    EXPECT_EQ(report["sections"][1], json::parse(R"({"number": 2, "property": "PRIS600X300", "material": "C30",
        "members": 2, "members_in_no_storey": 1, "storeys": [1, 2]})"));
    EXPECT_TRUE(report["forces"].is_null());
    EXPECT_EQ(report["findings"][0]["code"], "joint-unknown");
    EXPECT_EQ(report["findings"][0]["severity"], "warning");
}

TEST_F(Storeys, OneLevelIsAStorey)
{
    tool_.write("in.std", "UNIT METER KN\nJOINT COORDINATES\n1 0 4.5 0; 2 6 4.5 0; 3 3 6 0\n"
                          "MEMBER INCIDENCES\n1 1 2; 2 1 3; 3 99 98\nFINISH\n");
    const std::string out = tool_("storeys in.std").out;
    EXPECT_TRUE(has_line(out, "storeys: 1 (one level, at 4.500 m: height by convention)")) << out;
    // The member without joints counts as one of the lowest level, which is that of a storey here.
    EXPECT_TRUE(has_line(
        out, "        1     4.500       3.000       2        0      2       0                  0       0         1"))
        << out;
    EXPECT_TRUE(has_line(out, "  above the top level  1 member  2")) << out;
    EXPECT_FALSE(contains(out, "unknown joints")) << out;
}

TEST_F(Storeys, NoLevelIsReportedAndIsAnExitCode)
{
    tool_.write("in.std", "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 6 1 0\n"
                          "MEMBER INCIDENCES\n7 1 2; 9 1 99\nFINISH\n");
    const tool_result result = tool_("storeys in.std");
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_EQ(result.out, "in.std\n"
                          "storeys: none (no upright and no level member)\n"
                          "members and shells in no storey:\n"
                          "  unknown joints  1 member  9\n"
                          "  no levels       1 member  7\n");
    EXPECT_TRUE(
        has_line(result.err, "staadkit: error: in.std: no storeys: no upright and no level member gives a level"));
    const json report = this->report("in.std", 1);
    EXPECT_EQ(report["storeys"], json::array());
    EXPECT_EQ(report["levels_mm"], json::array());
    EXPECT_EQ(report["in_no_storey"][3]["member_numbers"], json({7}));
}

TEST_F(Storeys, LongListsAreCutInWordsAndWholeInJson)
{
    std::string deck = "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 4 0; 3 5 0 0\nMEMBER INCIDENCES\n1 1 2\n";
    // Every other number, from 10 to 32: twelve runs, of which ten are printed.
    json numbers = json::array();
    for (int member = 10; member <= 32; member += 2) {
        deck += std::to_string(member) + " 1 3\n";
        numbers.push_back(member);
    }
    tool_.write("in.std", deck + "FINISH\n");
    const std::string text = tool_("storeys in.std").out;
    EXPECT_TRUE(has_line(text, "  at the lowest level  12 members  10 12 14 16 18 20 22 24 26 28 ...")) << text;
    EXPECT_EQ(report("in.std")["in_no_storey"][0]["member_numbers"], numbers);
}

const std::vector<call_row> storeys_calls = {
    // The first line is no command that a block understands.
    {"notes on request", "storeys --notes in.std", 0, "in.std:1: note skipped: STAAD SPACE (1 line)\n", "storeys: 2 ("},
    {"warnings always", "storeys in.std", 0, "in.std:6: warning joint-unknown: ", "storeys: 2 ("},
    {"texts cannot drive the terminal", "storeys red.std", 0, "", "  1  TABLE ST \\x1B[31MRED"},
    {"no model", "storeys bad.std", 3, "bad.std: error "},
    {"no listing beside the model", "storeys in.std --forces", 3,
     "staadkit: error: in.std: no listing beside it, in.txt; --forces LISTING names another\n"},
    {"nor where it is said to be", "storeys in.std --forces nowhere.txt", 3, "nowhere.txt: error file-missing: "},
    {"a listing without forces", "storeys red.std --forces", 3, "red.txt: error force-no-title: "},
    {"nothing is beside standard input", "storeys - --forces", 2,
     "staadkit: error: standard input has no listing beside it; --forces LISTING names one\n"},
    {"which is one file", "storeys - --forces -", 2, "staadkit: error: standard input is the model already\n"},
};

TEST_F(Storeys, AnswerCalls)
{
    tool_.write("bad.std", "nothing\n");
    tool_.write("red.std", small_deck("MEMBER PROPERTY CHINESE\n1 TABLE ST \x1B[31mRED\nCONSTANTS\n"));
    tool_.write("red.txt", "no title here\n");
    expect_answers(tool_, storeys_calls);
    EXPECT_FALSE(contains(tool_("storeys in.std").err, ": note "));
    EXPECT_EQ(tool_("storeys -", storeys_deck()).out.rfind("<stdin>\nstoreys: 2 (", 0), 0U);
    const json no_model = report("bad.std", 3);
    EXPECT_EQ(no_model["was_read"], false);
    EXPECT_FALSE(no_model.contains("storeys"));
    EXPECT_EQ(no_model["findings"][0]["severity"], "error");
    const json no_listing = report("in.std --forces nowhere.txt", 3);
    EXPECT_EQ(no_listing["was_read"], true);
    EXPECT_EQ(no_listing["forces"]["was_read"], false);
    EXPECT_FALSE(no_listing.contains("storeys"));
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

TEST_F(Storeys, ForcesOfTheListingBesideTheModel)
{
    const tool_result result = tool_({"storeys", frame, "--forces"});
    expect_forces_of_the_frame(result);
    EXPECT_TRUE(has_line(result.out, "forces: " + frame_listing)) << result.out;
    EXPECT_TRUE(contains(result.err, frame_listing + ":315: warning force-last-case: ")) << result.err;
}

TEST_F(Storeys, ForcesOfAnotherListing)
{
    tool_.write("frame.std", read_file(frame));
    tool_.write("forces.lst", read_file(frame_listing));
    for (const char* call : {"storeys frame.std --forces forces.lst", "storeys --forces=forces.lst frame.std"}) {
        const tool_result result = tool_(call);
        expect_forces_of_the_frame(result);
        EXPECT_TRUE(has_line(result.out, "forces: forces.lst")) << result.out;
    }
    const tool_result piped = tool_("storeys frame.std --forces -", read_file(frame_listing));
    expect_forces_of_the_frame(piped);
    EXPECT_TRUE(has_line(piped.out, "forces: <stdin>")) << piped.out;

    const json report = this->report("frame.std --forces forces.lst");
    EXPECT_EQ(report["storeys"][0]["members_with_forces"], 8);
    EXPECT_EQ(report["forces"]["file"], "forces.lst");
    EXPECT_EQ(report["forces"]["was_read"], true);
    EXPECT_TRUE(std::any_of(report["forces"]["findings"].begin(), report["forces"]["findings"].end(),
                            [](const json& finding) { return finding["code"] == "force-last-case"; }));
    EXPECT_TRUE(std::none_of(report["findings"].begin(), report["findings"].end(),
                             [](const json& finding) { return finding["code"] == "force-last-case"; }));
}

#ifndef _WIN32
TEST_F(Storeys, AsksForTheListingAtATerminal)
{
    const std::string model = tool_.write("frame.std", read_file(frame));
    const std::string listing = tool_.write("forces.lst", read_file(frame_listing));
    const tool_result result = at_terminal(tool_, {"storeys", model, "--forces"}, listing + '\n');
    expect_forces_of_the_frame(result);
    EXPECT_TRUE(contains(result.err, "File to open, ")) << result.err;
    const tool_result cancelled = at_terminal(tool_, {"storeys", model, "--forces"}, "\n");
    EXPECT_EQ(cancelled.exit_code, 3);
    EXPECT_TRUE(contains(cancelled.err, ": no listing beside it, ")) << cancelled.err;
}
#endif

TEST_F(Storeys, APlaceWithoutEndIsNoCrash)
{
    // Past the largest double once it is in mm.
    tool_.write("in.std", "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 1e308 0\nMEMBER INCIDENCES\n1 1 2\nFINISH\n");
    expect_answers(tool_, {{"", "storeys in.std -q", 0, "", "storeys: not finite, from the top down\n"}});
    EXPECT_EQ(report("in.std")["levels_mm"], json({0, "Infinity"}));
    EXPECT_EQ(tool_("compare in.std in.std").exit_code, 0);
}

} // namespace
} // namespace cli_test
