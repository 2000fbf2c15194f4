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

#ifndef _WIN32
TEST(ConvertOutput, ADiskThatFillsUpLeavesTheEarlierFile)
{
    const tool_run tool;
    // More joints than the few KB that a file may have here.
    std::string deck = "UNIT METER KN\nJOINT COORDINATES\n";
    for (int joint = 1; joint <= 2000; ++joint)
        deck += std::to_string(joint) + " 0 " + std::to_string(joint) + " 0\n";
    const std::string in = tool.write("in.std", deck + "MEMBER INCIDENCES\n1 1 2\nFINISH\n");
    const std::string out = tool.write("out.std", "precious");
    const tool_result result = tool.with_small_files({"convert", "--force", in, out});
    EXPECT_EQ(result.exit_code, 4) << result.err;
    EXPECT_TRUE(has_line(result.err, "staadkit: error: " + out + ": File too large")) << result.err;
    EXPECT_EQ(read_file(out), "precious");
    EXPECT_EQ(tool.names(), (names{"in.std", "out.std"}));
    // The same for the way to standard output.
    const tool_result streamed = tool.with_small_files({"convert", in, "-"});
    EXPECT_EQ(streamed.exit_code, 4);
    EXPECT_TRUE(has_line(streamed.err, "staadkit: error: standard output: File too large")) << streamed.err;
}

TEST(ConvertOutput, ANameThatIsTooLong)
{
    const tool_run tool;
    const std::string in = tool.write("in.std", small_deck());
    const std::string out = tool.missing(std::string(300, 'n'));
    const tool_result result = tool({"convert", in, out});
    EXPECT_EQ(result.exit_code, 4);
    EXPECT_TRUE(has_line(result.err, "staadkit: error: " + out + ": File name too long")) << result.err;
    // The longest that there is leaves no room for a longer temporary name.
    EXPECT_EQ(tool({"convert", in, tool.missing(std::string(255, 'n'))}).exit_code, 0);
    EXPECT_EQ(tool.names(), (names{"in.std", std::string(255, 'n')}));
}
#endif

TEST(ConvertOutput, ADeviceIsWrittenToAndStays)
{
    if (!fs::exists("/dev/full"))
        GTEST_SKIP() << "no /dev/full here";
    const tool_run tool;
    const std::string in = tool.write("in.std", small_deck());
    const tool_result full = tool({"convert", in, "/dev/full"});
    EXPECT_EQ(full.exit_code, 4);
    EXPECT_TRUE(has_line(full.err, "staadkit: error: /dev/full: No space left on device")) << full.err;
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    EXPECT_EQ(tool({"convert", "--force", in, "/dev/null"}).exit_code, 0);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

#ifndef _WIN32
TEST(ConvertOutput, APipeIsWrittenToAndStays)
{
    const tool_run tool;
    const std::string in = tool.write("in.std", small_deck());
    const std::string pipe = tool.missing("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    // Open at both ends, so that neither end waits for the other.
    const int reader = open(pipe.c_str(), O_RDWR | O_NONBLOCK);
    ASSERT_NE(reader, -1);
    const tool_result result = tool({"convert", in, pipe});
    EXPECT_EQ(result.exit_code, 0) << result.err;
    std::string text(1U << 16U, '\0');
    const ssize_t count = read(reader, text.data(), text.size());
    close(reader);
    ASSERT_GT(count, 0);
    text.resize(static_cast<std::size_t>(count));
    EXPECT_EQ(text, tool({"convert", in, "-"}).out);
    EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST(ConvertOutput, ALinkStaysAndItsFileIsReplaced)
{
    const tool_run tool;
    const std::string in = tool.write("in.std", small_deck());
    const std::string want = tool({"convert", in, "-"}).out;
    fs::create_directory(tool.missing("there"));
    const std::string real = tool.write("there/real.std", "old");
    const std::string link = tool.missing("link.std");
    fs::create_symlink("there/real.std", link);
    EXPECT_EQ(tool({"convert", in, link}).exit_code, 4) << "it is a file that exists";
    EXPECT_EQ(tool({"convert", "--force", in, link}).exit_code, 0);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(real)));
    EXPECT_EQ(read_text(real), want);
}

TEST(ConvertOutput, ALinkToNothingYet)
{
    const tool_run tool;
    const std::string in = tool.write("in.std", small_deck());
    fs::create_directory(tool.missing("there"));
    fs::create_symlink("there/new.std", tool.missing("second.std"));
    fs::create_symlink(tool.missing("second.std"), tool.missing("first.std"));
    EXPECT_EQ(tool({"convert", in, tool.missing("first.std")}).exit_code, 0);
    EXPECT_TRUE(fs::is_symlink(tool.missing("first.std")));
    EXPECT_TRUE(fs::is_symlink(tool.missing("second.std")));
    EXPECT_EQ(read_text(tool.missing("there/new.std")), tool({"convert", in, "-"}).out);
}
#endif

fs::perms permissions_of(const std::string& path)
{
    return fs::status(path).permissions();
}

#ifndef _WIN32
TEST(ConvertOutput, PermissionsAreThoseOfTheFileReplaced)
{
    const tool_run tool;
    const std::string in = tool.write("in.std", small_deck());
    const std::string out = tool.write("out.std", "old");
    for (const fs::perms wanted : {fs::perms{0640}, fs::perms{0604}, fs::perms{0444}}) {
        fs::permissions(out, wanted);
        EXPECT_EQ(tool({"convert", "--force", in, out}).exit_code, 0);
        EXPECT_EQ(permissions_of(out), wanted);
    }
}
#endif

TEST(ConvertOutput, PermissionsOfANewFileAreThoseOfAnyNewFile)
{
    const tool_run tool;
    const std::string in = tool.write("in.std", small_deck());
    EXPECT_EQ(tool({"convert", in, tool.missing("out.std")}).exit_code, 0);
    EXPECT_EQ(permissions_of(tool.missing("out.std")), permissions_of(in));
}

} // namespace
} // namespace cli_test
