/// Files on Windows: narrow names in the ANSI code page, long names, line ends.
#ifdef _WIN32

#    include "staad/io/open_file.h"
#    include "staad/io/windows_path.h"
#    include "staad/model/sd_reader.h"
#    include "tests/support/temporary_file.h"

#    include <gtest/gtest.h>

#    include <filesystem>
#    include <string>
#    include <system_error>

#    include <windows.h>

namespace STAAD {
namespace {

namespace fs = std::filesystem;

constexpr const char* deck = "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 3 0;\nMEMBER INCIDENCES\n1 1 2;\nFINISH\n";
constexpr unsigned gbk = 936;

// Tower and floor: in GBK, and as the system has them.
constexpr const char* chinese = "\xCB\xFE\xC2\xA5";
constexpr const wchar_t* chinese_wide = L"\u5854\u697C";

TEST(WindowsNames, AreInTheAnsiCodePage)
{
    EXPECT_EQ(detail::wide_text("tower"), L"tower");
    EXPECT_EQ(detail::wide_text(""), L"");
    EXPECT_EQ(detail::narrow_text(L"tower"), "tower");
    EXPECT_EQ(detail::narrow_text(L""), "");
    if (GetACP() != gbk)
        GTEST_SKIP() << "the ANSI code page is not 936";
    EXPECT_EQ(detail::wide_text(chinese), chinese_wide);
    EXPECT_EQ(detail::narrow_text(chinese_wide), chinese);
    EXPECT_EQ(detail::narrow_text(L"a\u0E01"), "a?") << "a Thai letter, which it lacks";
}

TEST(WindowsNames, ThatAreLongHaveThePrefixForThem)
{
    struct name_case {
        const char* why;
        std::string name;
        std::wstring want;
    };
    const std::wstring n200(200, L'n');
    const std::string narrow_n200(200, 'n');
    const std::wstring n60(60, L'm');
    const std::string narrow_n60(60, 'm');
    const name_case cases[] = {
        {"a short one stays", "C:\\a.std", L"C:\\a.std"},
        {"a relative one stays", "b/a.std", L"b/a.std"},
        {"one character below the limit", "C:\\" + narrow_n200 + "\\" + std::string(43, 'm'),
         L"C:\\" + n200 + L"\\" + std::wstring(43, L'm')},
        {"at the limit", "C:\\" + narrow_n200 + "\\" + std::string(44, 'm'),
         L"\\\\?\\C:\\" + n200 + L"\\" + std::wstring(44, L'm')},
        {"slashes and dots are solved: the system takes such names as they are",
         "C:/" + narrow_n200 + "/../" + narrow_n200 + "/" + narrow_n60, L"\\\\?\\C:\\" + n200 + L"\\" + n60},
        {"on another machine", "\\\\server\\share\\" + narrow_n200 + "\\" + narrow_n60,
         L"\\\\?\\UNC\\server\\share\\" + n200 + L"\\" + n60},
        {"one that has the prefix", "\\\\?\\C:\\" + narrow_n200 + "\\" + narrow_n60,
         L"\\\\?\\C:\\" + n200 + L"\\" + n60},
    };
    for (const name_case& c : cases)
        EXPECT_EQ(detail::wide_path(c.name), c.want) << c.why;
}

/// Reads, writes and tests a model at `path`.
void expect_usable(const std::string& path)
{
    SdReader model;
    ASSERT_TRUE(model.ReadSDDataFromText(deck));
    EXPECT_FALSE(detail::can_read(path.c_str()));
    EXPECT_FALSE(detail::can_be_opened(path.c_str()));
    std::error_code error;
    EXPECT_TRUE(model.WriteDataToFile(path.c_str(), error)) << error.message();
    EXPECT_TRUE(detail::can_read(path.c_str()));
    EXPECT_TRUE(detail::can_be_opened(path.c_str()));
    SdReader again;
    EXPECT_TRUE(again.ReadSDDataFromStdFile(path.c_str()));
    EXPECT_EQ(again.nodes.size(), 2U);
}

TEST(WindowsFiles, OfChineseNames)
{
    if (GetACP() != gbk)
        GTEST_SKIP() << "the ANSI code page is not 936";
    const temporary_file beside("");
    const std::string folder = fs::path(beside.path()).parent_path().string() + "\\" + chinese;
    ASSERT_NE(CreateDirectoryA(folder.c_str(), nullptr), 0);
    expect_usable(folder + "\\" + chinese + ".std");
    EXPECT_TRUE(
        fs::exists(fs::path(beside.path()).parent_path() / chinese_wide / (std::wstring(chinese_wide) + L".std")));
}

TEST(WindowsFiles, OfLongNames)
{
    const temporary_file beside("");
    std::string folder = fs::path(beside.path()).parent_path().string();
    for (int i = 0; i < 3; ++i) {
        folder += '\\' + std::string(100, static_cast<char>('a' + i));
        ASSERT_NE(CreateDirectoryW(detail::wide_path(folder).c_str(), nullptr), 0);
    }
    ASSERT_GT(folder.size(), 300U);
    expect_usable(folder + "\\deck.std");
    EXPECT_FALSE(detail::can_be_opened(folder.c_str())) << "a folder is no file";
}

TEST(WindowsFiles, HaveLineEndsOfWindows)
{
    const temporary_file file("");
    SdReader model;
    ASSERT_TRUE(model.ReadSDDataFromText(deck));
    model.WriteDataToFile(file.path());
    EXPECT_EQ(file.content().rfind("STAAD SPACE\r\n", 0), 0U);
    EXPECT_EQ(file.content().find("\r\r"), std::string::npos);
}

TEST(WindowsFiles, AreReadPastAByteThatEndsTexts)
{
    const std::string text = std::string("STAAD SPACE\n* \x1A\n") + deck;
    const temporary_file file(text);
    SdReader model;
    EXPECT_TRUE(model.ReadSDDataFromStdFile(file.path()));
    EXPECT_EQ(model.beams.size(), 1U);
}

} // namespace
} // namespace STAAD

#endif
