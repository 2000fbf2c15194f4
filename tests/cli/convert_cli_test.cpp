// The verb "convert": what is written where, and when it is refused.

#include "tool_run.h"

#include <gtest/gtest.h>

namespace cli_test {
namespace {

namespace fs = std::filesystem;

class Convert : public testing::Test {
protected:
    Convert()
    {
        tool_.write("in.std", small_deck());
        tool_.write("tower.std", tower_deck());
    }

    const tool_run tool_;
    const std::string out_ = tool_.missing("out.std");
};

TEST_F(Convert, WritesTheNormalisedFileAndNothingElse)
{
    const tool_result result = tool_("convert in.std out.std");
    EXPECT_EQ(result.exit_code, 0) << result.err;
    EXPECT_EQ(result.out, "");
    const std::string text = read_text(out_);
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
    EXPECT_EQ(tool_.names(), (std::vector<std::string>{"in.std", "out.std", "tower.std"}));
}

TEST_F(Convert, LoadsAreTheModels)
{
    const tool_result result = tool_("convert tower.std -");
    EXPECT_EQ(result.exit_code, 0) << result.err;
    // -5 kN/m along GY, and -10 kN at 3 m.
    EXPECT_TRUE(has_line(result.out, "7 TO 9 UNI GZ -0.005000")) << result.out;
    EXPECT_TRUE(has_line(result.out, "7 CON GZ -10.000000 3000.000000")) << result.out;
}

TEST_F(Convert, WritesTheSameToStreamsAndOverFiles)
{
    ASSERT_EQ(tool_("convert tower.std out.std").exit_code, 0);
    const std::string text = read_text(out_);
    ASSERT_FALSE(text.empty());
    EXPECT_EQ(tool_("convert tower.std -").out, text);
    EXPECT_EQ(tool_("convert - -", tower_deck()).out, text);
    tool_.write("out.std", std::string(100000, 'x'));
    EXPECT_EQ(tool_("convert tower.std out.std --force").exit_code, 0);
    EXPECT_EQ(read_text(out_), text);
    EXPECT_EQ(tool_("convert --force tower.std tower.std").exit_code, 0) << "the input itself";
    EXPECT_EQ(read_text(tool_.missing("tower.std")), text);
    // It is a model again: the surface is an element now, and the wind and seismic cases have come.
    EXPECT_TRUE(has_line(tool_("info out.std out.std").out,
                         "out.std: 9 joints, 12 members, 2 elements, 0 surfaces, 4 load cases"));
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

TEST_F(Convert, ATargetThatCannotBeWrittenIsReportedBeforeAnythingElse)
{
    tool_.write("old.std", "precious");
    fs::create_directory(tool_.missing("folder"));
#ifndef _WIN32
    fs::create_symlink("in.std", tool_.missing("link.std"));
    fs::create_hard_link(tool_.missing("in.std"), tool_.missing("twin.std"));
    fs::create_symlink("two.std", tool_.missing("one.std"));
    fs::create_symlink("one.std", tool_.missing("two.std"));
#endif
    const std::vector<std::string> names = tool_.names();
    for (const refusal& each : refusals) {
        const std::string line = std::string("convert in.std ") + each.out;
        const std::string message = std::string("staadkit: error: ") + each.out + ": " + each.reason + '\n';
        for (const std::string& call : {line, each.with_force ? line + " --force" : line}) {
            const tool_result result = tool_(call.c_str());
            EXPECT_EQ(result.exit_code, 4) << each.why;
            EXPECT_EQ(result.err, message) << each.why;
        }
        EXPECT_EQ(read_file(tool_.missing("in.std")), small_deck()) << each.why;
        EXPECT_EQ(read_file(tool_.missing("old.std")), "precious") << each.why;
        EXPECT_EQ(tool_.names(), names) << each.why;
    }
}

TEST_F(Convert, WithoutAModelNothingIsWritten)
{
    tool_.write("in.std", "STAAD SPACE\n");
    const std::string old = tool_.write("old.std", "precious");
    const std::vector<std::string> names = tool_.names();
    expect_answers(tool_, {{"over a file", "convert --force in.std old.std", 3, "in.std: error no-unit: "},
                           {"a new file", "convert in.std new.std", 3, "in.std: error no-unit: "},
                           {"no input", "convert nowhere.std new.std", 3, "nowhere.std: error file-missing: "}});
    EXPECT_EQ(read_file(old), "precious");
    EXPECT_EQ(tool_.names(), names);
}

TEST_F(Convert, FindingsOfTheReadingFollowTheNotes)
{
    tool_.write("in.std", small_deck("UNIT FEET KIP\nPERFORM ANALYSIS\n"));
    const std::string err = tool_("convert in.std -").err;
    const std::size_t warning = err.find("in.std:7: warning unit-later: ");
    ASSERT_NE(warning, std::string::npos) << err;
    EXPECT_EQ(err.find("<stdout>:", warning), std::string::npos) << err;
    EXPECT_EQ(err.rfind("<stdout>:", 0), 0U) << err;
    EXPECT_FALSE(contains(err, "note skipped"));
    EXPECT_TRUE(has_line(tool_("convert --notes in.std -").err, "in.std:8: note skipped: PERFORM ANALYSIS (1 line)"));
}

} // namespace
} // namespace cli_test
