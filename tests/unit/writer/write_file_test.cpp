/// The file that a model is written to, and the order of its blocks.

#include "staad/model/sd_reader.h"
#include "tests/support/temporary_file.h"
#include "tests/support/written_loads.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace STAAD {
namespace {

namespace fs = std::filesystem;

/// Members numbered 101, 102 ..., so that renumbering shows.
SdReader old_numbers(int members = 2)
{
    SdReader model = written::row_of_members(members);
    for (SdBeam& member : model.beams)
        member.id += 100;
    return model;
}

#ifdef _WIN32
constexpr const char* line_end = "\r\n";
#else
constexpr const char* line_end = "\n";
#endif

/// `text` with the line ends that a text file of this platform has.
std::string as_in_a_file(const std::string& text)
{
    std::string lines;
    for (const char character : text)
        character == '\n' ? lines += line_end : lines += character;
    return lines;
}

TEST(WriteFile, HasTheBytesOfTheText)
{
    const temporary_file file("");
    SdReader model = old_numbers();
    SdReader same = model;
    model.WriteDataToFile(file.path());
    EXPECT_EQ(file.content(), as_in_a_file(same.WriteDataToText()));
}

TEST(WriteFile, HasEveryByteOfALongText)
{
    constexpr int members = 300000; // some 12 MB: more than any buffer
    const temporary_file file("");
    SdReader model = old_numbers(members);
    const std::string text = model.WriteDataToText();
    EXPECT_EQ(std::count(text.begin(), text.end(), ';'), 2 * members + 1) << "an item for each joint and member";
    EXPECT_EQ(text.rfind("STAAD SPACE\n", 0), 0U);
    EXPECT_NE(text.find("300000 300000 300001;\nELEMENT INCIDENCES SHELL\n"), std::string::npos);
    EXPECT_EQ(text.substr(text.size() - 7), "\nFINISH");
    std::error_code error;
    ASSERT_TRUE(model.WriteDataToFile(file.path(), error)) << error.message();
    EXPECT_TRUE(file.content() == as_in_a_file(text)) << "text and file differ";
}

TEST(WriteFile, EndsInFinishWithoutALineEnd)
{
    const temporary_file file("");
    SdReader model;
    model.WriteDataToFile(file.path());
    const std::string content = file.content();
    const std::string end = line_end + std::string("FINISH");
    ASSERT_GT(content.size(), end.size());
    EXPECT_EQ(content.substr(content.size() - end.size()), end);
    const std::string text = model.WriteDataToText();
    EXPECT_EQ(text.substr(text.size() - 7), "\nFINISH");
}

TEST(WriteFile, ReplacesALongerFile)
{
    const temporary_file file(std::string(1 << 20, '*'));
    SdReader model = old_numbers();
    std::error_code error;
    ASSERT_TRUE(model.WriteDataToFile(file.path(), error)) << error.message();
    EXPECT_EQ(file.content(), as_in_a_file(model.WriteDataToText()));
}

TEST(WriteFile, IsTheSameWhenWrittenTwice)
{
    SdReader model = old_numbers(40);
    model.beams[3].kind_code = Brace;
    model.brace_ids = {140};
    model.usr_tables[2].type = "00WIDE FLANGE";
    model.shells = {written::shell(120)};
    written::add_case(model, 3);
    written::add_load(model, written::uniform(-5, 3), {1, 2, 5});
    model.eq_param.loadno_count = 1;
    model.eq_param.loadno = {3};
    model.eq_param.loadno_factor = {1};
    const temporary_file file("");
    model.WriteDataToFile(file.path());
    const std::string first = file.content();
    model.WriteDataToFile(file.path());
    EXPECT_EQ(file.content(), first) << "nothing of the first run is left for the second";
    SdReader other;
    other.WriteDataToText();
    EXPECT_EQ(as_in_a_file(model.WriteDataToText()), first) << "nor of another model's";
}

TEST(WriteFile, SaysNothingWhereThePathCannotBeOpened)
{
    const temporary_file file("kept");
    const std::string folder = fs::path(file.path()).parent_path().string();
    for (const std::string& path : {folder, folder + "/missing/deck.std", std::string()}) {
        SdReader model = old_numbers();
        EXPECT_NO_THROW(model.WriteDataToFile(path.c_str())) << path;
        EXPECT_EQ(model.beams[1].id, 2) << "renumbered all the same: " << path;
    }
    EXPECT_FALSE(fs::exists(folder + "/missing"));
    EXPECT_EQ(file.content(), "kept");
}

TEST(WriteFile, TakesANullPathForOneThatCannotBeOpened)
{
    SdReader model = old_numbers();
    EXPECT_NO_THROW(model.WriteDataToFile(nullptr));
    EXPECT_EQ(model.beams[1].id, 2);

    SdReader other = old_numbers();
    std::error_code error;
    EXPECT_FALSE(other.WriteDataToFile(nullptr, error));
    EXPECT_EQ(error, std::errc::invalid_argument);
    EXPECT_EQ(other.beams[1].id, 2);
}

TEST(WriteFile, TellsWhyThePathCannotBeOpened)
{
    const temporary_file file("");
    const std::string folder = fs::path(file.path()).parent_path().string();
    SdReader model = old_numbers();
    std::error_code error;
    EXPECT_FALSE(model.WriteDataToFile((folder + "/missing/deck.std").c_str(), error));
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
    EXPECT_EQ(model.beams[1].id, 2) << "renumbered all the same";
    EXPECT_FALSE(model.WriteDataToFile(folder.c_str(), error));
    EXPECT_TRUE(error) << "a folder is no file";
}

TEST(WriteFile, ClearsTheErrorOfAnEarlierCall)
{
    const temporary_file file("");
    SdReader model;
    std::error_code error = std::make_error_code(std::errc::io_error);
    EXPECT_TRUE(model.WriteDataToFile(file.path(), error));
    EXPECT_FALSE(error);
}

/// A device that takes no byte; writing to it succeeds until a buffer is flushed.
class FullDevice : public testing::Test {
protected:
    void SetUp() override
    {
        if (!fs::exists(path))
            GTEST_SKIP() << "no " << path;
    }

    static constexpr const char* path = "/dev/full";
};

TEST_F(FullDevice, IsTold)
{
    for (const int members : {0, 100000}) { // less than any buffer, and more
        SdReader model = old_numbers(members);
        std::error_code error;
        EXPECT_FALSE(model.WriteDataToFile(path, error)) << members;
        EXPECT_EQ(error, std::errc::no_space_on_device) << members;
    }
}

TEST_F(FullDevice, IsPassedOverInSilence)
{
    SdReader model = old_numbers();
    EXPECT_NO_THROW(model.WriteDataToFile(path));
    EXPECT_EQ(model.beams[1].id, 2);
}

/// A model with something in every block.
SdReader with_every_block()
{
    SdReader model = written::row_of_members(2);
    model.beams[0].kind_code = Brace;
    model.beams[0].sect_country = "CHINESE";
    model.beams[0].sect_text = "PRIS500";
    model.beams[1].sect_country = "AMERICAN";
    model.beams[1].sect_text = "TABLE ST W8X10";
    model.beams[1].beta = 90;
    model.shells = {written::shell(120)};
    model.usr_tables[1].records["H400X180"] = "0.4 0.18 0.006 0.01";
    model.groups = {{"MEMBER", "_G", {1}}};
    model.supports["FIXED"] = {1};
    model.releases["START MZ"] = {2};
    written::add_case(model, 1);
    written::add_load(model, written::uniform(-5, 1), {1});
    return model;
}

TEST(WriteFile, HasItsBlocksInAFixedOrder)
{
    SdReader model = with_every_block();
    const std::vector<std::string> keywords = {
        "STAAD SPACE",
        "START JOB INFORMATION",
        "END JOB INFORMATION",
        "UNIT METER KN",
        "JOINT COORDINATES",
        "MEMBER INCIDENCES",
        "ELEMENT INCIDENCES SHELL",
        "START USER TABLE",
        "END",
        "*{STAAD reserved}",
        "START GROUP DEFINITION",
        "END GROUP DEFINITION",
        "ELEMENT PROPERTY",
        "DEFINE MATERIAL START",
        "END DEFINE MATERIAL",
        "MEMBER TRUSS ",
        "MEMBER PROPERTY AMERICAN",
        "MEMBER PROPERTY CHINESE",
        "CONSTANTS",
        "BETA 90 MEMB 2",
        "MATERIAL C30 ALL",
        "SUPPORTS",
        "MEMBER RELEASE",
        "LOAD 1 LOADTYPE Dead TITLE LOAD CASE 1",
        "MEMBER LOAD",
        "DEFINE WIND LOAD",
        "LOAD 5 WL AUTO WIND LOAD",
        "LOAD 5 WR AUTO WIND LOAD",
        "LOAD 5 WF AUTO WIND LOAD",
        "LOAD 5 WB AUTO WIND LOAD",
        "LOAD 6 EX AUTO RESPONSE SPECTRUM",
        "FINISH",
    };
    std::vector<std::string> found;
    for (const std::string& line : written::lines_of(model.WriteDataToText())) {
        if (std::find(keywords.begin(), keywords.end(), line) != keywords.end())
            found.push_back(line);
    }
    EXPECT_EQ(found, keywords);
}

} // namespace
} // namespace STAAD
