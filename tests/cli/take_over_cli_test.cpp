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

class TakeOver : public testing::Test {
protected:
    void SetUp() override
    {
        tool_.write("new.std", today_deck());
        tool_.write("old.std", earlier_deck());
    }

    const tool_run tool_;
};

TEST_F(TakeOver, WhatWouldBeTakenOver)
{
    const tool_result result = tool_("compare new.std old.std");
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
    EXPECT_EQ(tool_.names(), (std::vector<std::string>{"new.std", "old.std"}));
}

TEST_F(TakeOver, TheSameAsJson)
{
    const json report = json::parse(tool_("compare --json new.std old.std").out)["take_over"];
    ASSERT_EQ(report["groups"].size(), 5U);
    EXPECT_EQ(report["groups"][0], json::parse(R"({"name": "_FEET", "kind": "JOINT", "numbers": 3, "taken": 2,
        "lost": [50], "by_joint_numbers": false, "dropped": false})"));
    EXPECT_EQ(report["groups"][1]["dropped"], true);
    EXPECT_EQ(report["groups"][1]["lost"], json({50, 60}));
    EXPECT_EQ(report["groups"][4]["by_joint_numbers"], true);
    EXPECT_EQ(report["supports"], json::parse(R"([
        {"description": "FIXED", "numbers": 2, "taken": 2, "lost": []},
        {"description": "PINNED", "numbers": 1, "taken": 0, "lost": [50]}])"));
    EXPECT_EQ(report["releases"], json::parse(R"([
        {"description": "END MZ", "numbers": 1, "taken": 0, "lost": [104]},
        {"description": "START MY MZ", "numbers": 2, "taken": 1, "lost": [105]}])"));
    EXPECT_EQ(report["replaced_in_new"],
              json::parse(R"({"groups": ["_ALL"], "supports": ["ROLLER"], "releases": ["START MY MZ"]})"));
}

TEST_F(TakeOver, WritesTheNewModelWithTheOldDefinitions)
{
    const tool_result result = tool_("compare new.std old.std --take-over out.std --yes");
    EXPECT_EQ(result.exit_code, 1) << "the models differ all the same";
    EXPECT_TRUE(contains(result.out, "groups to take over: 5\n")) << result.out;
    const std::string text = read_text(tool_.missing("out.std"));
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
    EXPECT_TRUE(contains(result.err, "out.std:")) << result.err;
    EXPECT_TRUE(contains(result.err, ": note generated: ")) << result.err;
    EXPECT_EQ(tool_.names(), (std::vector<std::string>{"new.std", "old.std", "out.std"}));
    const tool_result streamed = tool_("compare new.std old.std --take-over - --yes");
    EXPECT_EQ(streamed.exit_code, 1);
    EXPECT_EQ(streamed.out, text) << "the model alone";
    EXPECT_TRUE(contains(streamed.err, "<stdout>:")) << streamed.err;
}

TEST_F(TakeOver, JsonBesideAFileThatIsWritten)
{
    const tool_result result = tool_("compare --json new.std new.std --take-over out.std --yes");
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_EQ(json::parse(result.out)["differ"], false);
    EXPECT_EQ(tool_.names(), (std::vector<std::string>{"new.std", "old.std", "out.std"}));
}

const std::vector<call_row> take_over_refusals = {
    {"two that need standard output", "compare --json new.std new.std --take-over - --yes", 2,
     "staadkit: error: --take-over - and --json both need standard output\n"},
    {"no terminal to ask at", "compare new.std new.std --take-over out.std", 4,
     "staadkit: error: out.std: there is no terminal to ask at; --yes takes over and writes without a question\n"},
    {"an earlier model that is none", "compare new.std bad.std --take-over out.std --yes", 3, "bad.std: error "},
    {"a file that is there", "compare new.std old.std --take-over kept.std --yes", 4,
     "staadkit: error: kept.std: is there already; --force overwrites it\n"},
    {"the model of today", "compare new.std old.std --take-over new.std --yes", 4,
     "staadkit: error: new.std: is an input; --force overwrites it\n"},
    {"the earlier one", "compare new.std old.std --take-over old.std --yes", 4,
     "staadkit: error: old.std: is an input; --force overwrites it\n"},
};

TEST_F(TakeOver, RefusalsLeaveAllFilesAsTheyAre)
{
    tool_.write("bad.std", "nothing\n");
    const std::string kept = tool_.write("kept.std", "precious");
    expect_answers(tool_, take_over_refusals);
    EXPECT_EQ(tool_.names(), (std::vector<std::string>{"bad.std", "kept.std", "new.std", "old.std"}));
    EXPECT_EQ(read_file(kept), "precious");
    EXPECT_EQ(read_file(tool_.missing("new.std")), today_deck());
    EXPECT_EQ(read_file(tool_.missing("old.std")), earlier_deck());
    EXPECT_EQ(tool_("compare new.std old.std --take-over kept.std --yes --force").exit_code, 1);
    EXPECT_TRUE(contains(read_text(kept), "\n_FEET 1 TO 2\n"));
}

#ifndef _WIN32
TEST_F(TakeOver, AsksAtATerminal)
{
    const std::string out = tool_.missing("out.std");
    const std::vector<std::string> call = {"compare", tool_.missing("new.std"), tool_.missing("old.std"), "--take-over",
                                           out};
    const tool_result no = at_terminal(tool_, call, "n\n");
    EXPECT_EQ(no.exit_code, 4);
    EXPECT_TRUE(contains(no.err, "Take groups, supports and releases over, and write " + out + "? [y/N] ")) << no.err;
    EXPECT_TRUE(contains(no.err, "staadkit: error: " + out + ": not written: the answer was no")) << no.err;
    EXPECT_TRUE(contains(no.out, "groups to take over: 5\n")) << "the report comes before the question";
    EXPECT_FALSE(fs::exists(out));

    const tool_result yes = at_terminal(tool_, call, "y\n");
    EXPECT_EQ(yes.exit_code, 1) << yes.err;
    EXPECT_TRUE(contains(read_text(out), "\n_FEET 1 TO 2\n"));
}
#endif

} // namespace
} // namespace cli_test
