// Messages: form, place, and what stands on which stream.

#include "tool_run.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace cli_test {
namespace {

struct message_row {
    const char* why;
    std::string text;
    int exit_code;
    const char* message; ///< after the name of the file
};

const message_row messages[] = {
    {"no UNIT line", "STAAD SPACE\nJOINT COORDINATES\n1 0 0 0\nMEMBER INCIDENCES\n1 1 1\n", 3, ": error "},
    {"nothing after the UNIT line", "STAAD SPACE\nUNIT METER KN\n", 3, ": error "},
    {"no joints", "UNIT METER KN\nMEMBER INCIDENCES\n1 1 1\nFINISH\n", 3, ": error "},
    {"no members", "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0\nFINISH\n", 3, ": error "},
    {"a keyword that is nearly right, on line 5",
     "STAAD SPACE\nUNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 3 0\nMEMB INCI\n1 1 2\nFINISH\n", 3,
     ":5: error keyword-near: 'MEMB INCI' is not 'MEMBER INCIDENCES'\n"},
    {"a list beyond the limit, on line 8", small_deck("SUPPORTS\n1 TO 2000000000 FIXED\n"), 3,
     ":8: error limit: a list of more than 16777216 numbers\n"},
    {"a warning leaves the exit code at done",
     "STAAD SPACE\nUNIT METERS KN\nJOINT COORDINATES\n1 0 0 0; 2 0 3 0\nMEMBER INCIDENCES\n1 1 2\nFINISH\n", 0,
     ":2: warning unit-word: "},
};

TEST(Messages, NameFileLineAndReason)
{
    const tool_run tool;
    for (const char* verb : {"info", "dump"}) {
        for (const message_row& each : messages) {
            tool.write("a.std", each.text);
            const tool_result result = tool({verb, "--reading", "host", "a.std"});
            EXPECT_EQ(result.exit_code, each.exit_code) << each.why;
            EXPECT_EQ(result.out.empty(), each.exit_code != 0) << each.why;
            EXPECT_TRUE(contains('\n' + result.err, std::string("\na.std") + each.message)) << each.why << result.err;
        }
        EXPECT_EQ(tool({verb, "nowhere.std"}).err, "nowhere.std: error file-missing: the file does not exist\n");
    }
}

TEST(Messages, ManyOfAKindAreCounted)
{
    const tool_run tool;
    std::string deck = "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0\nMEMBER INCIDENCES\n";
    // Sixty members that end at a joint that is not defined: fifty are reported one by one, ten together.
    for (int member = 1; member <= 60; ++member)
        deck += std::to_string(member) + " 1 " + std::to_string(1000 + member) + "\n";
    const std::string err = tool("info --reading host -", deck + "FINISH\n").err;
    // Member 51 stands on line 55, the last on line 64.
    const std::size_t begin = err.find("<stdin>:55: warning ");
    ASSERT_NE(begin, std::string::npos) << err;
    const std::string line = err.substr(begin, err.find('\n', begin) - begin);
    EXPECT_TRUE(contains(line, " (and 9 more of this kind, up to line 64)")) << line;
}

TEST(Messages, InTheOrderOfTheLines)
{
    const tool_run tool;
    // The second UNIT line is met before the members are read, one of which has no joint at its end.
    const std::string err =
        tool("info --reading host -", "STAAD SPACE\nUNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 3 0\n"
                                      "MEMBER INCIDENCES\n1 1 2\n2 1 99\nUNIT KIP FEET\nFINISH\n")
            .err;
    std::vector<int> lines;
    for (std::size_t at = err.find("<stdin>:"); at != std::string::npos; at = err.find("<stdin>:", at + 1))
        lines.push_back(std::stoi(err.substr(at + 8)));
    EXPECT_GE(lines.size(), 2U) << err;
    EXPECT_TRUE(std::is_sorted(lines.begin(), lines.end())) << err;
}

#ifndef _WIN32
TEST(Messages, NamesOfFilesKeepTheirBytesButDriveNoTerminal)
{
    const tool_run tool;
    // Not UTF-8, but GBK: the name is not decoded, or it could not be copied.
    const std::string path = tool.missing("a\x1B[31m\xB8\xD6.std");
    const tool_result result = tool({"info", path});
    EXPECT_TRUE(contains(result.err, "/a\\x1B[31m\xB8\xD6.std: error file-missing: ")) << result.err;
    EXPECT_FALSE(contains(result.err, "\x1B"));
    const std::string one = tool.write("b\x1B.std", small_deck());
    EXPECT_TRUE(contains(tool({"info", one}).out, "/b\\x1B.std\n"));
    EXPECT_TRUE(contains(tool({"info", one, one}).out, "/b\\x1B.std: 2 joints"));
    EXPECT_FALSE(contains(tool("in\x1B"
                               "fo")
                              .err,
                          "\x1B"));
}
#endif

TEST(Messages, NotesOnRequestOnly)
{
    const tool_run tool;
    tool.write("tower.std", tower_deck());
    // Line 62 is the header of the combination, the first of its two lines.
    EXPECT_TRUE(has_line(tool("dump --notes tower.std").err, "tower.std:62: note skipped: LOAD COMB (2 lines)"));
    EXPECT_FALSE(contains(tool("dump tower.std").err, ": note "));
    EXPECT_FALSE(contains(tool("info --reading host --notes tower.std").err, "skipped")) << "the report has it already";
}

TEST(Messages, QuietLeavesErrorsOnly)
{
    const tool_run tool;
    tool.write("words.std", std::end(messages)[-1].text);
    const tool_result loud = tool("info --reading host words.std");
    EXPECT_TRUE(contains(loud.err, "warning"));
    for (const char* line : {"info --reading host -q words.std", "--quiet info --reading host --notes words.std"}) {
        const tool_result quiet = tool(line);
        EXPECT_EQ(quiet.exit_code, 0);
        EXPECT_EQ(quiet.err, "");
        EXPECT_EQ(quiet.out, loud.out);
    }
    EXPECT_EQ(tool("convert -q words.std -").err, "");
    EXPECT_TRUE(contains(tool("info -q nowhere.std").err, ": error file-missing: "));
}

TEST(Messages, ColorsGoIntoFilesOnRequestOnly)
{
    const tool_run tool;
    EXPECT_FALSE(contains(tool("info nowhere.std").err, "\x1B"));
    EXPECT_TRUE(contains(tool("info nowhere.std --color always").err, ": \x1B[1;31merror\x1B[0m file-missing: "));
    EXPECT_FALSE(contains(tool("info --color=always --json nowhere.std").out, "\x1B"));
}

TEST(Messages, BytesOfTheFileCannotDriveTheTerminal)
{
    const tool_run tool;
    tool.write("esc.std", small_deck("LOAD 1 LOADTYPE Dead TITLE \x1B[31mred\nSELFWEIGHT Y -1\n"));
    const tool_result result = tool("info esc.std");
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_TRUE(contains(result.out, "\\x1B[31mred")) << result.out;
    EXPECT_FALSE(contains(result.out, "\x1B"));
}

} // namespace
} // namespace cli_test
