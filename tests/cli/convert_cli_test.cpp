// The verb "convert": what is written where, and when it is refused.

#include "tool_run.h"

#include <gtest/gtest.h>

namespace cli_test {
namespace {

namespace fs = std::filesystem;

TEST(Convert, WritesTheNormalisedFileAndNothingElse)
{
    const tool_run tool;
    const std::string in = tool.write("in.std", small_deck());
    const std::string out = tool.missing("out.std");
    const tool_result result = tool({"convert", in, out});
    EXPECT_EQ(result.exit_code, 0) << result.err;
    EXPECT_EQ(result.out, "");
    const std::string text = read_text(out);
    EXPECT_EQ(text.rfind("STAAD SPACE\n"
                         "START JOB INFORMATION\n"
                         "ENGINEER DATE 04-Jun-14\n"
                         "END JOB INFORMATION\n"
                         "INPUT WIDTH 79\n"
                         "UNIT METER KN\n"
                         "JOINT COORDINATES\n"
                         "1 0 0 0; 2 0 3 0;\n"
                         "MEMBER INCIDENCES\n"
                         "1 1 2;\n"
                         "ELEMENT INCIDENCES SHELL\n"
                         "DEFINE MATERIAL START\n",
                         0),
              0U)
        << text;
    EXPECT_EQ(text.substr(text.size() - 7), "\nFINISH");
    EXPECT_EQ(tool.names(), (std::vector<std::string>{"in.std", "out.std"}));
}

TEST(Convert, LoadsAreTheModels)
{
    const tool_run tool;
    const tool_result result = tool({"convert", tool.write("in.std", tower_deck()), "-"});
    EXPECT_EQ(result.exit_code, 0) << result.err;
    // -5 kN/m along GY, and -10 kN at 3 m.
    EXPECT_TRUE(has_line(result.out, "7 TO 9 UNI GZ -0.005000")) << result.out;
    EXPECT_TRUE(has_line(result.out, "7 CON GZ -10.000000 3000.000000")) << result.out;
}

TEST(Convert, StreamsGiveTheSameBytes)
{
    const tool_run tool;
    const std::string in = tool.write("in.std", tower_deck());
    const std::string out = tool.missing("out.std");
    ASSERT_EQ(tool({"convert", in, out}).exit_code, 0);
    const std::string text = read_text(out);
    ASSERT_FALSE(text.empty());
    EXPECT_EQ(tool({"convert", in, "-"}).out, text);
    EXPECT_EQ(tool({"convert", "-", "-"}, tower_deck()).out, text);
}

TEST(Convert, WhatItWroteIsAModelAgain)
{
    const tool_run tool;
    const std::string once = tool.missing("once.std");
    ASSERT_EQ(tool({"convert", tool.write("in.std", tower_deck()), once}).exit_code, 0);
    // The surface is an element now, and the wind and seismic cases have come.
    EXPECT_TRUE(has_line(tool({"info", once, once}).out,
                         once + ": 9 joints, 12 members, 2 elements, 0 surfaces, 4 load cases"));
}

/// A target that cannot be written, and what is said of it: that and nothing else, no notes on a file that there
/// will not be.
struct refusal {
    const char* why;
    const char* out;
    const char* reason;
    bool with_force; ///< refused all the same
};

#ifdef _WIN32
constexpr const char* no_folder = "No such file or directory";
#else
constexpr const char* no_folder = "Not a directory";
#endif

const refusal refusals[] = {
    {"a file that is there", "old.std", "is there already; --force overwrites it", false},
    {"the input", "in.std", "is the input; --force overwrites it", false},
    {"a missing folder", "nowhere/out.std", "No such file or directory", true},
    {"a file where a folder is due", "in.std/out.std", no_folder, true},
    {"a folder", "folder", "Is a directory", true},
#ifndef _WIN32
    {"the input under a longer name", "./in.std", "is the input; --force overwrites it", false},
    {"the input by a symbolic link", "link.std", "is the input; --force overwrites it", false},
    {"the input by a hard link", "twin.std", "is the input; --force overwrites it", false},
    {"links in a circle", "one.std", "Too many levels of symbolic links", true},
#endif
};

TEST(Convert, ATargetThatCannotBeWrittenIsReportedBeforeAnythingElse)
{
    const tool_run tool;
    const std::string in = tool.write("in.std", small_deck());
    const std::string old = tool.write("old.std", "precious");
    fs::create_directory(tool.missing("folder"));
#ifndef _WIN32
    fs::create_symlink("in.std", tool.missing("link.std"));
    fs::create_hard_link(in, tool.missing("twin.std"));
    fs::create_symlink("two.std", tool.missing("one.std"));
    fs::create_symlink("one.std", tool.missing("two.std"));
#endif
    const std::vector<std::string> names = tool.names();
    for (const refusal& each : refusals) {
        const std::string out = tool.folder() + '/' + each.out;
        for (const bool force : {false, true}) {
            if (force && !each.with_force)
                continue;
            std::vector<std::string> call = {"convert", in, out};
            if (force)
                call.emplace_back("--force");
            const tool_result result = tool(call);
            EXPECT_EQ(result.exit_code, 4) << each.why;
            EXPECT_EQ(result.err, "staadkit: error: " + out + ": " + each.reason + '\n') << each.why;
        }
        EXPECT_EQ(read_file(in), small_deck()) << each.why;
        EXPECT_EQ(read_file(old), "precious") << each.why;
        EXPECT_EQ(tool.names(), names) << each.why;
    }
}

TEST(Convert, AnExistingFileIsReplacedOnRequest)
{
    const tool_run tool;
    const std::string in = tool.write("in.std", small_deck());
    const std::string out = tool.write("out.std", std::string(100000, 'x'));
    EXPECT_EQ(tool({"convert", in, out, "--force"}).exit_code, 0);
    EXPECT_EQ(read_text(out), tool({"convert", in, "-"}).out);
}

TEST(Convert, TheInputIsReplacedOnRequest)
{
    const tool_run tool;
    const std::string in = tool.write("in.std", tower_deck());
    const std::string want = tool({"convert", in, "-"}).out;
    EXPECT_EQ(tool({"convert", "--force", in, in}).exit_code, 0);
    EXPECT_EQ(read_text(in), want);
}

TEST(Convert, WithoutAModelNothingIsWritten)
{
    const tool_run tool;
    const std::string in = tool.write("in.std", "STAAD SPACE\n");
    const std::string old = tool.write("old.std", "precious");
    const tool_result result = tool({"convert", "--force", in, old});
    EXPECT_EQ(result.exit_code, 3);
    EXPECT_EQ(result.err.rfind(in + ": error no-unit: ", 0), 0U) << result.err;
    EXPECT_EQ(read_file(old), "precious");
    EXPECT_EQ(tool({"convert", in, tool.missing("new.std")}).exit_code, 3);
    EXPECT_EQ(tool({"convert", tool.missing("nowhere.std"), tool.missing("new.std")}).exit_code, 3);
    EXPECT_EQ(tool.names(), (std::vector<std::string>{"in.std", "old.std"}));
}

TEST(Convert, WarningsOfTheReadingFollowTheNotes)
{
    const tool_run tool;
    const std::string in = tool.write("in.std", small_deck("UNIT FEET KIP\n"));
    const tool_result result = tool({"convert", in, "-"});
    EXPECT_EQ(result.exit_code, 0);
    const std::size_t warning = result.err.find(in + ":7: warning unit-later: ");
    ASSERT_NE(warning, std::string::npos) << result.err;
    EXPECT_EQ(result.err.find("<stdout>:", warning), std::string::npos) << result.err;
    EXPECT_EQ(result.err.rfind("<stdout>:", 0), 0U) << result.err;
}

TEST(Convert, NotesOfTheReadingOnRequest)
{
    const tool_run tool;
    const std::string in = tool.write("in.std", small_deck("PERFORM ANALYSIS\n"));
    const std::string note = in + ":7: note skipped: PERFORM ANALYSIS (1 line)";
    EXPECT_TRUE(has_line(tool({"convert", "--notes", in, "-"}).err, note));
    EXPECT_FALSE(contains(tool({"convert", in, "-"}).err, "note skipped"));
}

} // namespace
} // namespace cli_test
