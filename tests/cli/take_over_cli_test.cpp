// The verb "compare": what is taken over from an earlier model, what is lost, and the file that is written.

#include "compared_decks.h"
#include "terminal_run.h"
#include "tool_run.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>

namespace cli_test {
namespace {

using nlohmann::json;
namespace fs = std::filesystem;

/// The frame as it was, with other numbers and two members and two joints that are gone.
std::string earlier_deck()
{
    frame_parts parts;
    parts.joints = "10 0 0 0; 20 6 0 0; 30 0 4 0; 40 6 4 0; 50 12 0 0; 60 12 4 0;\n";
    parts.members = "101 10 30; 102 20 40; 103 30 40; 104 50 60; 105 40 60;\n";
    parts.elements = "10 10 20 40 30; 501 20 50 60 40;\n";
    parts.groups = "JOINT\n"
                   "_FEET 10 20 50\n"
                   "_AWAY 50 60\n"
                   "MEMBER\n"
                   "_COLUMNS 101 102 104\n"
                   "_OTHERS 104 105\n"
                   "ELEMENT\n"
                   "_WALL 10 501\n";
    parts.sections = "101 102 104 PRIS YD 0.4 ZD 0.4\n103 105 PRIS YD 0.5 ZD 0.3\n";
    parts.supports = "10 20 FIXED\n50 PINNED\n";
    parts.releases = "103 105 START MY MZ\n104 END MZ\n";
    return frame_deck(parts);
}

/// The frame of today, with definitions of its own.
std::string today_deck()
{
    frame_parts parts;
    parts.groups = "MEMBER\n_ALL 1 TO 3\n";
    parts.supports = "1 ROLLER\n";
    parts.releases = "1 START MY MZ\n2 END MY\n";
    return frame_deck(parts);
}

TEST(TakeOver, WhatWouldBeTakenOver)
{
    const tool_run tool;
    const std::string now = tool.write("new.std", today_deck());
    const std::string earlier = tool.write("old.std", earlier_deck());
    const tool_result result = tool({"compare", now, earlier});
    EXPECT_EQ(result.exit_code, 1) << "two joints, two members and an element are gone";
    // Element group _WALL goes by joints: 10 is one that has a counterpart, 501 is none.
    EXPECT_TRUE(contains(result.out, "groups to take over: 5\n"
                                     "  _FEET     JOINT    2 of 3 numbers  lost: 50\n"
                                     "  _AWAY     JOINT    0 of 2 numbers  dropped; lost: 50 60\n"
                                     "  _COLUMNS  MEMBER   2 of 3 numbers  lost: 104\n"
                                     "  _OTHERS   MEMBER   0 of 2 numbers  dropped; lost: 104 TO 105\n"
                                     "  _WALL     ELEMENT  1 of 2 numbers  lost: 501\n"
                                     "  (numbers in ELEMENT and FLOOR groups are taken for those of joints)\n"
                                     "supports to take over: 2\n"
                                     "  FIXED   2 of 2 joints\n"
                                     "  PINNED  0 of 1 joint   an empty list; lost: 50\n"
                                     "releases to take over: 2\n"
                                     "  END MZ       0 of 1 member   an empty list; lost: 104\n"
                                     "  START MY MZ  1 of 2 members  lost: 105\n"
                                     "replaced in NEW: 1 group, 1 support description, 1 release description\n"))
        << result.out;
    EXPECT_EQ(tool.names(), (std::vector<std::string>{"new.std", "old.std"}));
}

TEST(TakeOver, TheSameAsJson)
{
    const tool_run tool;
    const std::string now = tool.write("new.std", today_deck());
    const std::string earlier = tool.write("old.std", earlier_deck());
    const json report = json::parse(tool({"compare", "--json", now, earlier}).out)["take_over"];
    ASSERT_EQ(report["groups"].size(), 5U);
    EXPECT_EQ(report["groups"][0], json({{"name", "_FEET"},
                                         {"kind", "JOINT"},
                                         {"numbers", 3},
                                         {"taken", 2},
                                         {"lost", {50}},
                                         {"by_joint_numbers", false},
                                         {"dropped", false}}));
    EXPECT_EQ(report["groups"][1]["dropped"], true);
    EXPECT_EQ(report["groups"][1]["lost"], json({50, 60}));
    EXPECT_EQ(report["groups"][4]["by_joint_numbers"], true);
    EXPECT_EQ(report["supports"],
              json::array({{{"description", "FIXED"}, {"numbers", 2}, {"taken", 2}, {"lost", json::array()}},
                           {{"description", "PINNED"}, {"numbers", 1}, {"taken", 0}, {"lost", {50}}}}));
    EXPECT_EQ(report["releases"],
              json::array({{{"description", "END MZ"}, {"numbers", 1}, {"taken", 0}, {"lost", {104}}},
                           {{"description", "START MY MZ"}, {"numbers", 2}, {"taken", 1}, {"lost", {105}}}}));
    EXPECT_EQ(report["replaced_in_new"],
              json({{"groups", {"_ALL"}}, {"supports", {"ROLLER"}}, {"releases", {"START MY MZ"}}}));
}

TEST(TakeOver, WritesTheNewModelWithTheOldDefinitions)
{
    const tool_run tool;
    const std::string now = tool.write("new.std", today_deck());
    const std::string earlier = tool.write("old.std", earlier_deck());
    const std::string out = tool.missing("out.std");
    const tool_result result = tool({"compare", now, earlier, "--take-over", out, "--yes"});
    EXPECT_EQ(result.exit_code, 1) << "the models differ all the same";
    EXPECT_TRUE(contains(result.out, "groups to take over: 5\n")) << result.out;
    const std::string text = read_text(out);
    EXPECT_TRUE(contains(text, "\n_FEET 1 TO 2\n")) << text;
    EXPECT_TRUE(contains(text, "\n_COLUMNS 1 TO 2\n")) << text;
    EXPECT_TRUE(contains(text, "\n_WALL 1\n")) << text;
    for (const char* gone : {"_AWAY", "_OTHERS", "_ALL", "ROLLER"})
        EXPECT_FALSE(contains(text, gone)) << gone;
    EXPECT_TRUE(contains(text, "\n1 TO 2 FIXED\n")) << text;
    EXPECT_TRUE(contains(text, "\n3 START MY MZ\n")) << text;
    EXPECT_TRUE(contains(text, "\n2 END MY\n")) << "a release of its own that nothing replaces";
    EXPECT_EQ(text.substr(text.size() - 7), "\nFINISH");
    // What convert says of a written file is said here, too.
    EXPECT_TRUE(contains(result.err, out + ":")) << result.err;
    EXPECT_TRUE(contains(result.err, ": note generated: ")) << result.err;
    EXPECT_EQ(tool.names(), (std::vector<std::string>{"new.std", "old.std", "out.std"}));
}

TEST(TakeOver, ToStandardOutputItIsTheModelAlone)
{
    const tool_run tool;
    const std::string now = tool.write("new.std", today_deck());
    const std::string earlier = tool.write("old.std", earlier_deck());
    const std::string out = tool.missing("out.std");
    ASSERT_EQ(tool({"compare", now, earlier, "--take-over", out, "--yes"}).exit_code, 1);
    const tool_result streamed = tool({"compare", now, earlier, "--take-over", "-", "--yes"});
    EXPECT_EQ(streamed.exit_code, 1);
    EXPECT_EQ(streamed.out, read_text(out));
    EXPECT_TRUE(contains(streamed.err, "<stdout>:")) << streamed.err;
}

TEST(TakeOver, JsonBesideAFileThatIsWritten)
{
    const tool_run tool;
    const std::string now = tool.write("new.std", today_deck());
    const std::string out = tool.missing("out.std");
    const tool_result result = tool({"compare", "--json", now, now, "--take-over", out, "--yes"});
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_EQ(json::parse(result.out)["differ"], false);
    EXPECT_TRUE(fs::exists(out));
    const tool_result both = tool({"compare", "--json", now, now, "--take-over", "-", "--yes"});
    EXPECT_EQ(both.exit_code, 2);
    EXPECT_EQ(both.err, "staadkit: error: --take-over - and --json both need standard output\n");
}

TEST(TakeOver, WithoutATerminalToAskAtItIsRefused)
{
    const tool_run tool;
    const std::string now = tool.write("new.std", today_deck());
    const std::string out = tool.missing("out.std");
    const tool_result result = tool({"compare", now, now, "--take-over", out}, "y\n");
    EXPECT_EQ(result.exit_code, 4);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "staadkit: error: " + out +
                              ": there is no terminal to ask at; --yes takes over and writes without a question\n");
    EXPECT_FALSE(fs::exists(out));
}

#ifndef _WIN32
TEST(TakeOver, AsksAtATerminal)
{
    const tool_run tool;
    const std::string now = tool.write("new.std", today_deck());
    const std::string earlier = tool.write("old.std", earlier_deck());
    const std::string out = tool.missing("out.std");
    const std::vector<std::string> call = {"compare", now, earlier, "--take-over", out};

    const tool_result no = at_terminal(tool, call, "n\n");
    EXPECT_EQ(no.exit_code, 4);
    EXPECT_TRUE(contains(no.err, "Take groups, supports and releases over, and write " + out + "? [y/N] ")) << no.err;
    EXPECT_TRUE(contains(no.err, "staadkit: error: " + out + ": not written: the answer was no")) << no.err;
    EXPECT_TRUE(contains(no.out, "groups to take over: 5\n")) << "the report comes before the question";
    EXPECT_FALSE(fs::exists(out));

    const tool_result yes = at_terminal(tool, call, "y\n");
    EXPECT_EQ(yes.exit_code, 1) << yes.err;
    EXPECT_TRUE(contains(read_text(out), "\n_FEET 1 TO 2\n"));
}
#endif

TEST(TakeOver, AnExistingFileIsKept)
{
    const tool_run tool;
    const std::string now = tool.write("new.std", today_deck());
    const std::string earlier = tool.write("old.std", earlier_deck());
    const std::string out = tool.write("out.std", "precious");
    const tool_result kept = tool({"compare", now, earlier, "--take-over", out, "--yes"});
    EXPECT_EQ(kept.exit_code, 4);
    EXPECT_EQ(kept.err, "staadkit: error: " + out + ": is there already; --force overwrites it\n");
    EXPECT_EQ(kept.out, "");
    EXPECT_EQ(read_file(out), "precious");
    for (const std::string& input : {now, earlier}) {
        const tool_result result = tool({"compare", now, earlier, "--take-over", input, "--yes"});
        EXPECT_EQ(result.exit_code, 4);
        EXPECT_EQ(result.err, "staadkit: error: " + input + ": is an input; --force overwrites it\n");
    }
    EXPECT_EQ(read_file(earlier), earlier_deck());
    EXPECT_EQ(tool({"compare", now, earlier, "--take-over", out, "--yes", "--force"}).exit_code, 1);
    EXPECT_TRUE(contains(read_text(out), "\n_FEET 1 TO 2\n"));
}

TEST(TakeOver, NothingIsWrittenWithoutBothModels)
{
    const tool_run tool;
    const std::string now = tool.write("new.std", today_deck());
    const std::string bad = tool.write("bad.std", "nothing\n");
    const std::string out = tool.missing("out.std");
    EXPECT_EQ(tool({"compare", now, bad, "--take-over", out, "--yes"}).exit_code, 3);
    EXPECT_FALSE(fs::exists(out));
}

} // namespace
} // namespace cli_test
