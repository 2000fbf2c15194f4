/// The places that a model is written to, and what writing changes in it. The order of the blocks is that of the
/// golden files.

#include "staad/model/sd_reader.h"
#include "staad/writer/normalised_text.h"
#include "tests/support/model_equal.h"
#include "tests/support/temporary_file.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
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

TEST(WriteFile, HasEveryByteOfTheTextInThePlaceOfWhatStoodThere)
{
    for (const int members : {0, 2, 300000}) { // the last makes some 12 MB: more than any buffer
        const temporary_file file(std::string(1 << 20, '*'));
        SdReader model = old_numbers(members);
        std::error_code error = std::make_error_code(std::errc::io_error); // of an earlier call
        ASSERT_TRUE(model.WriteDataToFile(file.path(), error)) << error.message();
        EXPECT_FALSE(error);
        const std::string text = old_numbers(members).WriteDataToText();
        EXPECT_TRUE(file.content() == as_in_a_file(text)) << "text and file differ";
        EXPECT_EQ(std::count(text.begin(), text.end(), ';'), 2 * members + 1) << "an item for each joint and member";
        EXPECT_EQ(text.rfind("STAAD SPACE\n", 0), 0U);
        EXPECT_EQ(text.substr(text.size() - 7), "\nFINISH") << "without a line end";
        model.WriteDataToFile(file.path());
        EXPECT_TRUE(file.content() == as_in_a_file(text)) << "the form without an error";
    }
}

TEST(WriteFile, IsTheSameWhenWrittenTwiceAndFromAConstModel)
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
    const SdReader before = model;
    const std::string text = normalised_text(model);
    EXPECT_EQ(model_differences(model, before), std::vector<std::string>()) << "the model stays as it is";
    EXPECT_EQ(model.WriteDataToText(), text);
    EXPECT_EQ(model.WriteDataToText(), text) << "nothing of the first run is left for the second";
    SdReader().WriteDataToText();
    EXPECT_EQ(normalised_text(model), text) << "nor of another model's";
}

/// A model that writing changes in each of the ways there are, and whether it did.
struct changing_model : SdReader {
    changing_model() : SdReader(old_numbers())
    {
        beams[1].kind_code = Brace;
        usr_tables[3].type = "PIPE";
    }
    bool is_changed() const
    {
        return beams[1].id == 2 && usr_tables.at(3).type == "ANGLE" && brace_ids == std::set<int>{2};
    }
};

TEST(WriteFile, ReportsAPathThatCannotBeOpenedAndChangesTheModelAllTheSame)
{
    const temporary_file file("kept");
    const std::string folder = fs::path(file.path()).parent_path().string();
    const std::string missing = folder + "/missing/deck.std";
    for (const char* const path : {folder.c_str(), missing.c_str(), "", static_cast<const char*>(nullptr)}) {
        changing_model silent;
        EXPECT_NO_THROW(silent.WriteDataToFile(path));
        EXPECT_TRUE(silent.is_changed());
        changing_model model;
        std::error_code error;
        EXPECT_FALSE(model.WriteDataToFile(path, error));
        EXPECT_TRUE(error);
        EXPECT_TRUE(model.is_changed());
        if (path == missing.c_str()) {
            EXPECT_EQ(error, std::errc::no_such_file_or_directory);
        }
        if (path == nullptr) {
            EXPECT_EQ(error, std::errc::invalid_argument);
        }
    }
    EXPECT_FALSE(fs::exists(folder + "/missing"));
    EXPECT_EQ(file.content(), "kept");
}

TEST(WriteFile, ReportsAFullDeviceOnlyToThoseWhoAsk)
{
    // Writing to it succeeds until a buffer is flushed.
    const char* const path = "/dev/full";
    if (!fs::exists(path))
        GTEST_SKIP() << "no " << path;
    for (const int members : {0, 100000}) { // less than any buffer, and more
        SdReader model = old_numbers(members);
        std::error_code error;
        EXPECT_FALSE(model.WriteDataToFile(path, error)) << members;
        EXPECT_EQ(error, std::errc::no_space_on_device) << members;
        EXPECT_NO_THROW(model.WriteDataToFile(path)) << members;
    }
}

} // namespace
} // namespace STAAD
