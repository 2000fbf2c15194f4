/// Files and streams read whole, and files that are there whole or not at all.

#include "staad/io/read_file.h"
#include "staad/io/whole_file.h"
#include "tests/support/project_folder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

namespace STAAD {
namespace {

namespace fs = std::filesystem;
using Outcome = FileBytes::Outcome;

TEST(ReadFile, SaysWhyThereAreNoBytes)
{
    const project_folder folder(std::string("a\0\r\n", 4));
    const FileBytes file = read_file(folder.model());
    EXPECT_EQ(file.outcome, Outcome::read);
    EXPECT_EQ(file.text(), std::string_view("a\0\r\n", 4));
    EXPECT_FALSE(file.error);
    const FileBytes missing = read_file(folder.path("missing"));
    EXPECT_EQ(missing.outcome, Outcome::missing);
    EXPECT_EQ(missing.error, std::errc::no_such_file_or_directory);
    EXPECT_EQ(missing.text(), "");
    const FileBytes directory = read_file(folder.path("."));
    EXPECT_EQ(directory.outcome, Outcome::directory);
    EXPECT_EQ(directory.error, std::errc::is_a_directory);
    EXPECT_EQ(read_file(folder.path("")).outcome, Outcome::directory);
    folder.write("empty", "");
    EXPECT_EQ(read_file(folder.path("empty")).outcome, Outcome::read);
}

TEST(ReadFile, ReportsProgressOfLongFiles)
{
    constexpr std::size_t step = 65536;
    constexpr std::size_t size = 2 * step + 1;
    const temporary_file file(std::string(size, 'x'));
    std::vector<std::size_t> steps;
    const FileBytes bytes = read_file(file.path(), [&](std::size_t done, std::size_t total) {
        EXPECT_EQ(total, size);
        steps.push_back(done);
    });
    EXPECT_EQ(bytes.size, size);
    EXPECT_EQ(steps, (std::vector<std::size_t>{step, 2 * step}));
}

TEST(ReadStream, TakesWhatIsLeft)
{
    const temporary_file file("0123456789");
    std::FILE* const stream = std::fopen(file.path(), "rb");
    ASSERT_NE(stream, nullptr);
    std::fgetc(stream);
    EXPECT_EQ(read_stream(stream).text(), "123456789");
    const FileBytes rest = read_stream(stream);
    EXPECT_EQ(rest.outcome, Outcome::read);
    EXPECT_EQ(rest.text(), "");
    std::fclose(stream);
}

#ifndef _WIN32
TEST(ReadStream, KnowsAFolderThatIsOpen)
{
    const project_folder folder("");
    std::FILE* const stream = std::fopen(folder.path(".").c_str(), "rb");
    ASSERT_NE(stream, nullptr);
    EXPECT_EQ(read_stream(stream).outcome, Outcome::directory);
    std::fclose(stream);
}
#endif

TEST(WholeFile, ReplacesAFileOrLeavesItAlone)
{
    const project_folder folder("");
    const fs::path path = folder.path("out.std");
    EXPECT_FALSE(obstacle_to_writing(path));
    EXPECT_FALSE(write_whole_file(path, "one"));
    EXPECT_EQ(read_file(path).text(), "one");
    fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_FALSE(write_whole_file(path, "two"));
    EXPECT_EQ(read_file(path).text(), "two");
#ifndef _WIN32
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
#endif
    for (const fs::path& refused : {fs::path(folder.path(".")), fs::path(folder.path("no folder/out.std"))}) {
        EXPECT_TRUE(obstacle_to_writing(refused)) << refused;
        EXPECT_TRUE(write_whole_file(refused, "x")) << refused;
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(path.parent_path()), fs::directory_iterator()), 2)
        << "no temporary file is left beside deck.std and out.std";
}

} // namespace
} // namespace STAAD
