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

TEST(Inputs, FilesInTheWrongOrder)
{
    const force_files forces;
    EXPECT_EQ(forces.tool({"forces", forces.listing, forces.model}).err,
              forces.listing + ": error not-a-deck: the file is a listing of forces\n");
    EXPECT_EQ(forces.tool({"forces", forces.model, forces.model}).err,
              forces.model + ": error not-a-listing: the file is a deck\n");
}

TEST(Inputs, WhatIsNoTextIsNamed)
{
    const force_files forces;
    for (const input_case& each : no_texts) {
        const std::string path = forces.tool.write("input", each.bytes);
        const tool_result deck = forces.tool({"info", path});
        EXPECT_EQ(deck.exit_code, 3) << each.kind;
        EXPECT_EQ(deck.err, path + ": error not-a-deck: the file is " + each.kind + '\n');
        const tool_result listing = forces.tool({"forces", forces.model, path});
        EXPECT_EQ(listing.exit_code, 3) << each.kind;
        EXPECT_EQ(listing.err, path + ": error not-a-listing: the file is " + each.kind + '\n');
        EXPECT_EQ(forces.tool({"dump", "-"}, each.bytes).err,
                  "<stdin>: error not-a-deck: standard input is "s + each.kind + '\n');
    }
}

TEST(Inputs, ZeroBytesAloneAreNoReasonToRefuseADeck)
{
    const tool_run tool;
    EXPECT_EQ(tool({"info", "-"}, small_deck("* \0\n"s)).exit_code, 0);
}

TEST(Inputs, Utf16IsNoListing)
{
    const force_files forces("\xFF\xFE \0"s);
    EXPECT_EQ(forces().err, forces.listing + ": error not-a-listing: the file is UTF-16, which is not read: save it as "
                                             "plain text\n");
}

TEST(Inputs, Folders)
{
    const force_files forces;
    const std::string folder = forces.tool.folder();
    EXPECT_EQ(forces.tool({"info", folder}).err, folder + ": error not-a-deck: it is a folder, not a file\n");
    EXPECT_EQ(forces.tool({"forces", forces.model, folder}).err,
              folder + ": error not-a-listing: it is a folder, not a file\n");
#ifndef _WIN32 // has no streams from folders
    const tool_result input = forces.tool.from(folder, {"forces", forces.model, "-"});
    EXPECT_EQ(input.exit_code, 3);
    EXPECT_EQ(input.err, "<stdin>: error not-a-listing: it is a folder, not a file\n");
#endif
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
