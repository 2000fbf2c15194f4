/// Physical lines of a text, and the logical lines made of them.

#include "staad/text/lines.h"
#include "tests/support/sd_reader_access.h"
#include "tests/support/temporary_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using namespace std::string_literals;
using access = detail::sd_reader_access;

struct placed {
    std::string text;
    unsigned first;
    unsigned last;

    friend bool operator==(const placed&, const placed&) = default;
};
using placed_lines = std::vector<placed>;

void PrintTo(const placed& line, std::ostream* out)
{
    *out << line.first << "-" << line.last << ": " << ::testing::PrintToString(line.text);
}

placed_lines content(const detail::line_list& lines)
{
    placed_lines found;
    for (const detail::text_line& line : lines)
        found.push_back({std::string(line.text), line.place.first, line.place.last});
    return found;
}

struct line_row {
    const char* why;
    std::string text;
    placed_lines want;
};

const line_row physical[] = {
    {"an empty text has no line", "", {}},
    {"a line feed ends a line", "a\nb\n", {{"a", 1, 1}, {"b", 2, 2}}},
    {"the last line needs none", "a\nb", {{"a", 1, 1}, {"b", 2, 2}}},
    {"empty lines are kept", "\na\n\n", {{"", 1, 1}, {"a", 2, 2}, {"", 3, 3}}},
    {"a line feed alone is one empty line", "\n", {{"", 1, 1}}},
    {"blanks, tabs and case are kept", " a\tB -  \n", {{" a\tB -  ", 1, 1}}},

    {"one CR before a line feed is dropped", "a\r\nb\r\n", {{"a", 1, 1}, {"b", 2, 2}}},
    {"only one", "a\r\r\nb", {{"a\r", 1, 1}, {"b", 2, 2}}},
    {"one at the end of the unterminated last line, too", "a\nb\r", {{"a", 1, 1}, {"b", 2, 2}}},
    {"a CR inside a line is kept", "a\rb\n\rc", {{"a\rb", 1, 1}, {"\rc", 2, 2}}},
    {"a line of CR LF is empty", "\r\n", {{"", 1, 1}}},
    {"lines may end differently", "a\r\nb\nc", {{"a", 1, 1}, {"b", 2, 2}, {"c", 3, 3}}},

    {"a byte order mark is dropped", "\xEF\xBB\xBFUNIT\n", {{"UNIT", 1, 1}}},
    {"only the first", "\xEF\xBB\xBF\xEF\xBB\xBFUNIT", {{"\xEF\xBB\xBFUNIT", 1, 1}}},
    {"a part of one is text", "\xEF\xBB" + "UNIT"s, {{"\xEF\xBB" + "UNIT"s, 1, 1}}},
    {"one further on is text", "a\n\xEF\xBB\xBF", {{"a", 1, 1}, {"\xEF\xBB\xBF", 2, 2}}},
    {"nothing after it", "\xEF\xBB\xBF", {}},

    {"an end-of-file mark on a line of its own makes no line", "a\n\x1A", {{"a", 1, 1}}},
    {"a run of them", "a\n\x1A\x1A\x1A", {{"a", 1, 1}}},
    {"at the end of the last line", "a\nb\x1A", {{"a", 1, 1}, {"b", 2, 2}}},
    {"a CR before it still ends the last line", "a\r\x1A", {{"a", 1, 1}}},
    {"one inside the text is kept", "a\x1A\nb", {{"a\x1A", 1, 1}, {"b", 2, 2}}},
    {"nothing else in the file", "\x1A\x1A", {}},

    {"generated comments are dropped and their numbers stay used", "a\n*{ generated\nb\n", {{"a", 1, 1}, {"b", 3, 3}}},
    {"the prefix alone is a generated comment", "*{\na", {{"a", 2, 2}}},
    {"it must stand first", " *{ a\n* {\n*\n", {{" *{ a", 1, 1}, {"* {", 2, 2}, {"*", 3, 3}}},
    {"other comments and empty lines are kept", "* comment\n\n", {{"* comment", 1, 1}, {"", 2, 2}}},
    {"after a byte order mark it stands first", "\xEF\xBB\xBF*{ a\r\nb\r\n", {{"b", 2, 2}}},
    {"with a CR", "*{\r\n", {}},

    {"a zero byte is text", "a\0b\nc"s, {{"a\0b"s, 1, 1}, {"c", 2, 2}}},
    {"GBK bytes are text", "* \xC1\xBA\n", {{"* \xC1\xBA", 1, 1}}},
};

TEST(LineList, CutsTextIntoPhysicalLines)
{
    for (const line_row& c : physical)
        EXPECT_EQ(content(detail::line_list::from_text(c.text, "*{")), c.want) << c.why;
}

TEST(LineList, KeepsEveryLineWithoutAPrefixToSkip)
{
    EXPECT_EQ(content(detail::line_list::from_text("*{ a\n\n", "")), (placed_lines{{"*{ a", 1, 1}, {"", 2, 2}}));
}

const line_row logical[] = {
    {"lines without anything special stay", " 1 2\t\n3 \n", {{" 1 2\t", 1, 1}, {"3 ", 2, 2}}},
    {"blank lines go", "a\n\n  \n\t\n \t \nb\n", {{"a", 1, 1}, {"b", 6, 6}}},
    {"other white space is text", "\v\n\f\n\r\r\n", {{"\v", 1, 1}, {"\f", 2, 2}, {"\r", 3, 3}}},
    {"nothing but blank lines", "\n \n\t\n", {}},

    {"the continuation mark becomes one blank", "1 2 -\n3 4\n5", {{"1 2  3 4", 1, 2}, {"5", 3, 3}}},
    {"it needs no blank before it", "1 2-\n3 4", {{"1 2 3 4", 1, 2}}},
    {"any number of lines", "a-\nb-\nc-\nd\ne", {{"a b c d", 1, 4}, {"e", 5, 5}}},
    {"a blank after the mark makes it text", "a- \nb", {{"a- ", 1, 1}, {"b", 2, 2}}},
    {"so does a tab", "a-\t\nb", {{"a-\t", 1, 1}, {"b", 2, 2}}},
    {"a CR LF does not", "a-\r\nb\r\n", {{"a b", 1, 2}}},
    {"on the last line it is just a blank", "a\nb-", {{"a", 1, 1}, {"b ", 2, 2}}},
    {"on the last of several, too", "a-\nb-\n", {{"a b ", 1, 2}}},
    {"a mark alone on its line", "-\nb", {{" b", 1, 2}}},
    {"a mark alone between two lines", "a-\n-\nb", {{"a  b", 1, 3}}},
    {"two marks: the last one counts", "a--\nb", {{"a- b", 1, 2}}},
    {"a keyword after a mark is swallowed",
     "1 1 2;-\nMEMBER INCIDENCES\n3",
     {{"1 1 2; MEMBER INCIDENCES", 1, 2}, {"3", 3, 3}}},
    {"blank lines go before lines are joined", "a-\n\n \t\nb\nc", {{"a b", 1, 4}, {"c", 5, 5}}},
    {"generated comments, too", "a-\n*{ x\nb", {{"a b", 1, 3}}},
    {"blank lines at the end leave nothing to join", "a-\n\n\n", {{"a ", 1, 1}}},
    {"the next line keeps its leading blanks", "a-\n  b", {{"a   b", 1, 2}}},

    {"a ruler swallows nothing", "* -----\nUNIT METER KN", {{"* -----", 1, 1}, {"UNIT METER KN", 2, 2}}},
    {"nor the shortest one", "*-\nb", {{"*-", 1, 1}, {"b", 2, 2}}},
    {"nor one on the last line", "a\n* --", {{"a", 1, 1}, {"* --", 2, 2}}},
    {"a comment inside a continuation is appended and ends it", "a-\n* c\nb", {{"a * c", 1, 2}, {"b", 3, 3}}},
    {"unless it ends in a mark: the joined line decides", "a-\n* c -\nb\nd", {{"a * c  b", 1, 3}, {"d", 4, 4}}},
    {"a blank before the star: no comment here", " * c-\nb", {{" * c b", 1, 2}}},
    {"a star after a joined blank: no comment either", "-\n* c-\nb", {{" * c b", 1, 3}}},
};

TEST(LineList, PreparesLogicalLinesThatKnowTheirPlace)
{
    for (const line_row& c : logical) {
        detail::line_list lines = detail::line_list::from_text(c.text, "*{");
        lines.prepare();
        EXPECT_EQ(content(lines), c.want) << c.why;
    }
}

TEST(LineList, JoinsAsManyLinesAsAFileHas)
{
    std::string text;
    std::string want;
    for (int i = 0; i < 20000; ++i) {
        text += "12 -\n";
        want += "12  ";
    }
    text += "13\n14\n";
    want += "13";
    detail::line_list lines = detail::line_list::from_text(text, "");
    lines.prepare();
    EXPECT_EQ(content(lines), (placed_lines{{want, 1, 20001}, {"14", 20002, 20002}}));
}

TEST(LineList, FindsKeywordLines)
{
    detail::line_list lines =
        detail::line_list::from_text("UNIT A\nMEMBER\nMEMBER B\n* x\n1 MEMBER\nMEMBER\nUNIT\n", "");
    lines.prepare();
    const struct {
        const char* why;
        const char* keyword;
        std::size_t from;
        std::size_t equal;
        std::size_t start;
    } rows[] = {
        {"first of its kind", "MEMBER", 0, 1, 1},
        {"the line searched from counts", "MEMBER", 1, 1, 1},
        {"a longer line only begins with it", "MEMBER", 2, 5, 2},
        {"nothing in the middle of a line", "MEMBER", 3, 5, 5},
        {"a longer line before an equal one", "UNIT", 0, 6, 0},
        {"not there", "SUPPORTS", 0, 7, 7},
        {"no more of them", "MEMBER", 6, 7, 7},
        {"from past the end", "MEMBER", 9, 7, 7},
        {"longer than the line", "UNIT ABC", 0, 7, 7},
    };
    for (const auto& c : rows) {
        EXPECT_EQ(lines.find_equal(c.keyword, c.from), c.equal) << c.why;
        EXPECT_EQ(lines.find_start(c.keyword, c.from), c.start) << c.why;
    }
    EXPECT_EQ(lines.text(0), "UNIT A");
    EXPECT_EQ(lines.text(7), "") << "past the end";
}

TEST(LineList, KeepsItsLinesWhenMoved)
{
    detail::line_list source = detail::line_list::from_text("a\nb", "");
    const detail::line_list target = std::move(source);
    EXPECT_EQ(content(target), (placed_lines{{"a", 1, 1}, {"b", 2, 2}}));
}

TEST(GetAllLinesFromFile, ReadsTheFileAsItStands)
{
    const std::string text = "\xEF\xBB\xBFSTAAD SPACE\r\n\r\n*{ generated\r\n* comment -\nlast\r\x1A";
    const temporary_file file(text);
    SdReader model;
    EXPECT_EQ(content(access::get_all_lines_from_file(model, file.path(), "*{")),
              (placed_lines{{"STAAD SPACE", 1, 1}, {"", 2, 2}, {"* comment -", 4, 4}, {"last", 5, 5}}));
    EXPECT_EQ(access::get_all_lines_from_file(model, file.path(), "").size(), 5u);
    EXPECT_EQ(file.content(), text) << "reading writes nothing";
}

TEST(GetAllLinesFromFile, GivesNoLinesForWhatCannotBeOpened)
{
    SdReader model;
    const temporary_file file("a\n");
    const std::string folder = std::filesystem::path(file.path()).parent_path().string();
    EXPECT_TRUE(access::get_all_lines_from_file(model, (folder + "/missing.std").c_str(), "*{").empty());
    EXPECT_FALSE(std::filesystem::exists(folder + "/missing.std")) << "nor makes the file";
    EXPECT_TRUE(access::get_all_lines_from_file(model, folder.c_str(), "*{").empty()) << "a folder";
    EXPECT_TRUE(access::get_all_lines_from_file(model, "", "*{").empty()) << "an empty path";
    EXPECT_TRUE(access::get_all_lines_from_file(model, nullptr, "*{").empty()) << "no path";
    EXPECT_TRUE(access::get_all_lines_from_file(model, temporary_file("").path(), "*{").empty()) << "an empty file";
}

} // namespace
} // namespace STAAD
