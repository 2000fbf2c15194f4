// Names of files on a Chinese Windows, whose narrow names are GBK, and long ones.

#include "tool_run.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace cli_test {
namespace {

constexpr unsigned gbk = 936;

// Tower and floor, in GBK and in UTF-8.
constexpr const char* tower = "\xCB\xFE\xC2\xA5";
constexpr const char* tower_in_utf8 = "\xE5\xA1\x94\xE6\xA5\xBC";
constexpr const char* floor_name = "\xC2\xA5\xB2\xE3";
constexpr const char* floor_in_utf8 = "\xE6\xA5\xBC\xE5\xB1\x82";

class ChineseNames : public testing::Test {
protected:
    void SetUp() override
    {
        if (GetACP() != gbk)
            GTEST_SKIP() << "the ANSI code page is not 936";
    }

    /// A deck in a folder and a file of Chinese names, copied there by Windows itself.
    std::string chinese_deck() const
    {
        const std::string folder = tool_.missing(tower);
        EXPECT_NE(CreateDirectoryA(folder.c_str(), nullptr), 0);
        const std::string path = folder + '\\' + floor_name + ".std";
        EXPECT_NE(CopyFileA(tool_.write("plain.std", small_deck()).c_str(), path.c_str(), TRUE), 0);
        return path;
    }

    const tool_run tool_;
};

TEST_F(ChineseNames, AreReadAndShown)
{
    const std::string path = chinese_deck();
    const tool_result result = tool_({"info", path});
    EXPECT_EQ(result.exit_code, 0) << result.err;
    EXPECT_TRUE(contains(result.out, '/' + std::string(tower_in_utf8) + '\\' + floor_in_utf8 + ".std\n")) << result.out;
}

TEST_F(ChineseNames, AreReportedWhereTheFileIsMissing)
{
    const tool_result result = tool_({"info", tool_.missing(tower) + ".std"});
    EXPECT_EQ(result.exit_code, 3);
    EXPECT_TRUE(contains(result.err, std::string(tower_in_utf8) + ".std: error file-missing: ")) << result.err;
}

TEST_F(ChineseNames, AreWrittenTo)
{
    const std::string in = chinese_deck();
    const std::string out = tool_.missing(tower) + '\\' + tower + ".std";
    EXPECT_EQ(tool_({"convert", in, out}).exit_code, 0);
    EXPECT_NE(GetFileAttributesA(out.c_str()), INVALID_FILE_ATTRIBUTES);
    const tool_result again = tool_({"convert", in, out});
    EXPECT_EQ(again.exit_code, 4);
    EXPECT_TRUE(contains(again.err, "is there already")) << again.err;
    EXPECT_EQ(tool_({"convert", "--force", in, out}).exit_code, 0);
    EXPECT_EQ(tool_({"info", out}).exit_code, 0);
}

TEST(LongNames, AreReadAndWritten)
{
    const tool_run tool;
    std::string folder = tool.folder(); // with "\": the prefix for long names takes them as they are
    for (int i = 0; i < 3; ++i) {
        folder += '\\' + std::string(100, static_cast<char>('a' + i));
        ASSERT_NE(CreateDirectoryW((L"\\\\?\\" + std::wstring(folder.begin(), folder.end())).c_str(), nullptr), 0);
    }
    const std::string in = tool.write("in.std", small_deck());
    const std::string out = folder + "\\out.std";
    ASSERT_GT(out.size(), 300U);
    const tool_result written = tool({"convert", in, out});
    EXPECT_EQ(written.exit_code, 0) << written.err;
    const tool_result read = tool({"info", out});
    EXPECT_EQ(read.exit_code, 0) << read.err;
    EXPECT_TRUE(contains(read.out, "2")) << read.out;
}

TEST(LineEnds, AreThoseOfWindows)
{
    const tool_run tool;
    const std::string out = tool.missing("out.std");
    EXPECT_EQ(tool({"convert", tool.write("in.std", small_deck()), out}).exit_code, 0);
    EXPECT_EQ(read_file(out).rfind("STAAD SPACE\r\n", 0), 0U);
}

TEST(Options, DoNotBeginWithASlash)
{
    const tool_run tool;
    const std::string path = tool.write("a.std", small_deck());
    EXPECT_EQ(tool({"info", "/a.std"}).exit_code, 3) << "a file that is missing";
    EXPECT_EQ(tool({"info", "/json", path}).exit_code, 3) << "another one";
}

} // namespace
} // namespace cli_test
