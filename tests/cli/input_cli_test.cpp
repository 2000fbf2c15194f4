// Inputs that are no text, no file, or may only be read.

#include "force_decks.h"

#include <gtest/gtest.h>

#include <fstream>
#include <thread>

#ifndef _WIN32
#    include <sys/stat.h> // mkfifo
#endif

namespace cli_test {
namespace {

using namespace std::string_literals;

struct input_case {
    std::string bytes;
    const char* kind;
};

const input_case no_texts[] = {
    {"", "empty"},
    {" \r\n\t\n", "empty"},
    {"%PDF-1.7\n", "a PDF document"},
    {"PK\x03\x04\x14\0"s, "a ZIP archive or an Office document"},
    {"\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", "an Office document"},
    {"{\\rtf1\\ansi UNIT METER KN}", "a Rich Text document"},
    {"<!DOCTYPE html>\n<html>", "a web page"},
    {"\x89PNG\r\n\x1A\n", "a picture"},
    {"\xFF\xD8\xFF\xE0", "a picture"},
    {"II*\0\x08"s, "a picture"},
    {"\x1F\x8B\x08", "a compressed file"},
    {"\x01\x02\0\x04"s, "binary, not text"},
    {"UNIT METER KN\nJOINT COORDINATES\n1 0 0 0\0"s, "binary, not text"},
};

TEST(Inputs, WhatIsNoTextIsNamed)
{
    const force_files forces;
    for (const input_case& each : no_texts) {
        forces.tool.write("input", each.bytes);
        const std::string is_this = each.kind + "\n"s;
        expect_answers(
            forces.tool,
            {{each.kind, "info --reading host input", 3, "input: error not-a-deck: the file is " + is_this},
             {each.kind, "forces frame.std input", 3, "input: error not-a-listing: the file is " + is_this}});
        EXPECT_EQ(forces.tool("dump -", each.bytes).err, "<stdin>: error not-a-deck: standard input is " + is_this);
    }
}

TEST(Inputs, OtherFilesAreNamedToo)
{
    const force_files forces;
    forces.tool.write("utf16.txt", "\xFF\xFE \0"s);
    std::filesystem::create_directory(forces.tool.missing("folder"));
    expect_answers(
        forces.tool,
        {{"no deck", "forces frame.txt frame.std", 3, "frame.txt: error not-a-deck: the file is a listing of forces\n"},
         {"no listing", "forces frame.std frame.std", 3, "frame.std: error not-a-listing: the file is a deck\n"},
         {"UTF-16", "forces frame.std utf16.txt", 3,
          "utf16.txt: error not-a-listing: the file is UTF-16, which is not read: save it as plain text\n"},
         {"a folder for a deck", "info folder", 3, "folder: error not-a-deck: it is a folder, not a file\n"},
         {"and for a listing", "forces frame.std folder", 3,
          "folder: error not-a-listing: it is a folder, not a file\n"}});
#ifndef _WIN32 // has no streams from folders
    const tool_result input = forces.tool.from(forces.tool.folder(), {"forces", forces.model, "-"});
    EXPECT_EQ(input.exit_code, 3);
    EXPECT_EQ(input.err, "<stdin>: error not-a-listing: it is a folder, not a file\n");
#endif
}

TEST(Inputs, ZeroBytesAloneAreNoReasonToRefuseADeck)
{
    EXPECT_EQ(tool_run()("info -", small_deck("* \0\n"s)).exit_code, 0);
}

#ifndef _WIN32
TEST(Inputs, PipesAreRead)
{
    const force_files forces;
    const std::string shown = forces().out;
    const std::string pipe = forces.tool.missing("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const auto from_pipe = [&](const std::string& bytes, const std::vector<std::string>& arguments) {
        std::thread feeder([&] { std::ofstream(pipe) << bytes; });
        const tool_result result = forces.tool(arguments);
        feeder.join();
        return result.out.substr(result.out.find('\n'));
    };
    EXPECT_EQ(from_pipe(force_listing(), {"forces", forces.model, pipe}), shown.substr(shown.find('\n')));
    EXPECT_EQ(from_pipe(force_model(), {"forces", pipe, forces.listing}), shown.substr(shown.find('\n')));
    EXPECT_EQ(forces.tool.from(forces.model, {"info", "/dev/stdin"}).exit_code, 0);
}

TEST(Inputs, FilesNeedPermissionToReadAlone)
{
    namespace fs = std::filesystem;
    const force_files forces;
    const std::string shown = forces().out;
    std::vector<std::string> words = forces.tool.as_plain_user();
    if (words.empty())
        GTEST_SKIP() << "no setpriv here";
    for (const char* word : {"forces", forces.model.c_str(), forces.listing.c_str()})
        words.emplace_back(word);
    constexpr fs::perms read_only = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
    fs::permissions(forces.model, read_only);
    fs::permissions(forces.listing, read_only);
    EXPECT_EQ(forces.tool.command(words).out, shown);
    fs::permissions(forces.listing, fs::perms::none);
    EXPECT_EQ(forces.tool.command(words).err,
              forces.listing + ": error file-access: the file cannot be opened: Permission denied\n");
}
#endif

} // namespace
} // namespace cli_test
