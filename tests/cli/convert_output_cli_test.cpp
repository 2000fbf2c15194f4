// The file that "convert" writes: there whole or not at all, whatever stands in its place.

#include "tool_run.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#    include <fcntl.h>
#    include <sys/stat.h>
#    include <unistd.h>
#endif

namespace cli_test {
namespace {

namespace fs = std::filesystem;

using names = std::vector<std::string>;

fs::perms permissions_of(const std::string& path)
{
    return fs::status(path).permissions();
}

class ConvertOutput : public testing::Test {
protected:
    const tool_run tool_;
    const std::string in_ = tool_.write("in.std", small_deck());
    const std::string want_ = tool_("convert in.std -").out;
};

TEST_F(ConvertOutput, ADeviceIsWrittenToAndStays)
{
    if (!fs::exists("/dev/full"))
        GTEST_SKIP() << "no /dev/full here";
    const tool_result full = tool_("convert in.std /dev/full");
    EXPECT_EQ(full.exit_code, 4);
    EXPECT_TRUE(has_line(full.err, "staadkit: error: /dev/full: No space left on device")) << full.err;
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    EXPECT_EQ(tool_("convert --force in.std /dev/null").exit_code, 0);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(ConvertOutput, PermissionsOfANewFileAreThoseOfAnyNewFile)
{
    EXPECT_EQ(tool_("convert in.std out.std").exit_code, 0);
    EXPECT_EQ(permissions_of(tool_.missing("out.std")), permissions_of(in_));
}

#ifndef _WIN32
TEST_F(ConvertOutput, PermissionsAreThoseOfTheFileReplaced)
{
    const std::string out = tool_.write("out.std", "old");
    for (const fs::perms wanted : {fs::perms{0640}, fs::perms{0604}, fs::perms{0444}}) {
        fs::permissions(out, wanted);
        EXPECT_EQ(tool_("convert --force in.std out.std").exit_code, 0);
        EXPECT_EQ(permissions_of(out), wanted);
    }
}

TEST_F(ConvertOutput, ADiskThatFillsUpLeavesTheEarlierFile)
{
    // More joints than the few KB that a file may have here.
    std::string deck = "UNIT METER KN\nJOINT COORDINATES\n";
    for (int joint = 1; joint <= 2000; ++joint)
        deck += std::to_string(joint) + " 0 " + std::to_string(joint) + " 0\n";
    tool_.write("in.std", deck + "MEMBER INCIDENCES\n1 1 2\nFINISH\n");
    const std::string out = tool_.write("out.std", "precious");
    const tool_result result = tool_.with_small_files({"convert", "--force", "in.std", "out.std"});
    EXPECT_EQ(result.exit_code, 4) << result.err;
    EXPECT_TRUE(has_line(result.err, "staadkit: error: out.std: File too large")) << result.err;
    EXPECT_EQ(read_file(out), "precious");
    EXPECT_EQ(tool_.names(), (names{"in.std", "out.std"}));
    // The same for the way to standard output.
    const tool_result streamed = tool_.with_small_files({"convert", "in.std", "-"});
    EXPECT_EQ(streamed.exit_code, 4);
    EXPECT_TRUE(has_line(streamed.err, "staadkit: error: standard output: File too large")) << streamed.err;
}

TEST_F(ConvertOutput, ANameThatIsTooLong)
{
    const std::string out(300, 'n');
    const tool_result result = tool_({"convert", "in.std", out});
    EXPECT_EQ(result.exit_code, 4);
    EXPECT_TRUE(has_line(result.err, "staadkit: error: " + out + ": File name too long")) << result.err;
    // The longest that there is leaves no room for a longer temporary name.
    EXPECT_EQ(tool_({"convert", "in.std", std::string(255, 'n')}).exit_code, 0);
    EXPECT_EQ(tool_.names(), (names{"in.std", std::string(255, 'n')}));
}

TEST_F(ConvertOutput, APipeIsWrittenToAndStays)
{
    const std::string pipe = tool_.missing("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    // Open at both ends, so that neither end waits for the other.
    const int reader = open(pipe.c_str(), O_RDWR | O_NONBLOCK);
    ASSERT_NE(reader, -1);
    const tool_result result = tool_("convert in.std pipe");
    EXPECT_EQ(result.exit_code, 0) << result.err;
    std::string text(1U << 16U, '\0');
    const ssize_t count = read(reader, text.data(), text.size());
    close(reader);
    ASSERT_GT(count, 0);
    text.resize(static_cast<std::size_t>(count));
    EXPECT_EQ(text, want_);
    EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(ConvertOutput, LinksStayAndTheirFileIsReplacedOrMade)
{
    fs::create_directory(tool_.missing("there"));
    const std::string real = tool_.write("there/real.std", "old");
    fs::create_symlink("there/real.std", tool_.missing("link.std"));
    EXPECT_EQ(tool_("convert in.std link.std").exit_code, 4) << "it is a file that exists";
    EXPECT_EQ(tool_("convert --force in.std link.std").exit_code, 0);
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(real)));
    EXPECT_EQ(read_text(real), want_);
    // To nothing yet, by two links.
    fs::create_symlink("there/new.std", tool_.missing("second.std"));
    fs::create_symlink(tool_.missing("second.std"), tool_.missing("first.std"));
    EXPECT_EQ(tool_("convert in.std first.std").exit_code, 0);
    EXPECT_EQ(read_text(tool_.missing("there/new.std")), want_);
    for (const char* link : {"link.std", "first.std", "second.std"})
        EXPECT_TRUE(fs::is_symlink(tool_.missing(link))) << link;
}
#endif

} // namespace
} // namespace cli_test
