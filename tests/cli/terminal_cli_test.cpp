// What is different at a terminal: colours, tables that fit, progress.

#include "terminal_run.h"

#include <gtest/gtest.h>

#include <sstream>

namespace cli_test {
namespace {

using words = std::vector<std::string>;

constexpr const char* red = "\x1B[1;31m";

struct color_row {
    const char* why;
    words environment;
    words options;
    bool has_colors;
};

const color_row colors[] = {
    {"by itself at a terminal", {}, {}, true},
    {"not where the environment refuses", {"NO_COLOR=1"}, {}, false},
    {"an empty variable refuses nothing", {"NO_COLOR="}, {}, true},
    {"not where the terminal has none", {"TERM=dumb"}, {}, false},
    {"the option goes before the environment", {"NO_COLOR=1"}, {"--color", "always"}, true},
    {"never", {}, {"--color=never"}, false},
    {"the last one counts", {}, {"--color=never", "--color=auto"}, true},
};

TEST(Terminal, ShowsColorsAsAskedFor)
{
    const tool_run tool;
    const std::string path = tool.missing("nowhere.std");
    for (const color_row& each : colors) {
        words arguments = {"info", path};
        arguments.insert(arguments.end(), each.options.begin(), each.options.end());
        const tool_result result = on_screen(0, each.environment, arguments);
        const std::string word = each.has_colors ? red + std::string("error\x1B[0m") : "error";
        EXPECT_EQ(result.out, path + ": " + word + " file-missing: the file does not exist\n") << each.why;
        EXPECT_EQ(result.exit_code, 3) << each.why;
    }
}

/// A load case with a title of 70 letters; the line of its table takes 115 cells.
std::string deck_with_long_title()
{
    return small_deck("LOAD 1 LOADTYPE Dead TITLE " + std::string(70, 'T') + "\nSELFWEIGHT Y -1 LIST 1\n");
}

TEST(Terminal, LinesOfTablesFit)
{
    const tool_run tool;
    const std::string path = tool.write("long.std", deck_with_long_title());
    const std::string whole = "  1  dead  " + std::string(70, 'T') + "  1 member, 0 joints  1 SELFWEIGHT";
    EXPECT_TRUE(has_line(tool({"info", "--reading", "host", path}).out, whole));
    EXPECT_TRUE(has_line(on_screen(0, {}, {"info", "--reading", "host", path}).out, whole))
        << "a terminal that does not say how wide it is";
    EXPECT_TRUE(has_line(on_screen(116, {}, {"info", "--reading", "host", path}).out, whole))
        << "the last cell of a line stays free";
    // The other columns take 35 cells, and five gaps 10: of 79 cells the title has 34.
    const std::string cut = on_screen(80, {}, {"info", "--reading", "host", path}).out;
    EXPECT_TRUE(has_line(cut, "  1  dead  " + std::string(31, 'T') + "...  1 member, 0 joints  1 SELFWEIGHT")) << cut;
}

TEST(Terminal, NumbersAreNeverCutAndHeadingsBold)
{
    const tool_run tool;
    const std::string path = tool.write("tower.std", tower_deck());
    const std::string plain = tool({"storeys", path}).out;
    std::string narrow = on_screen(30, {}, {"storeys", "-q", path}).out;
    const std::size_t bold = narrow.find("\x1B[1m   storey  base (m) ");
    ASSERT_NE(bold, std::string::npos) << narrow;
    narrow.erase(narrow.find("\x1B[0m"), 4).erase(bold, 4);
    EXPECT_EQ(narrow.substr(0, narrow.find("sections:")), plain.substr(0, plain.find("sections:")));
}

/// The tool with a deck on its standard input that comes in two parts, more than a second between them.
words slow_input(const std::string& deck)
{
    return {"sh", "-c", "(head -c 1000000 " + deck + "; sleep 1.2; tail -c +1000001 " + deck + ") | \"$0\" \"$@\""};
}

TEST(Terminal, ShowsTheProgressOfALongReading)
{
    const tool_run tool;
    const std::string deck = tool.write("long.std", std::string(2000000, '\n') + small_deck());
    const std::string bytes = on_screen(80, slow_input(deck), {"info", "-"}).out;
    const std::size_t progress = bytes.find("reading <stdin>: 1 MB");
    ASSERT_NE(progress, std::string::npos) << bytes;
    EXPECT_LT(progress, bytes.find("<stdin>\nunits:")) << bytes;
    EXPECT_FALSE(contains(on_screen(80, slow_input(deck), {"info", "-q", "-"}).out, "reading"));
    const std::string files = on_screen(80, slow_input(deck), {"info", "-", deck, deck}).out;
    EXPECT_TRUE(contains(files, "1 of 3 files")) << files;
    EXPECT_FALSE(contains(files, "reading")) << files;
}

} // namespace
} // namespace cli_test
