/// Groups: names, kinds, numbers.

#include "tests/unit/structure/read_deck.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

struct group_row {
    const char* form;
    std::vector<std::string> lines;
    const char* groups; // "name kind: numbers", separated by " | "
    const char* warnings;
    const char* why;
};

std::string text_of(const Structure::Group& group)
{
    static const char* const kinds[] = {"joints", "members", "elements", "floor", "solids", "geometry"};
    std::string text = group.name + " " + kinds[static_cast<int>(group.kind)] + ":";
    for (const int number : group.numbers)
        text += " " + std::to_string(number);
    return text;
}

const group_row groups_rows[] = {
    {"group-definition", {"MEMBER", "_A 3 1 TO 2"}, "_A members: 3 1 2", "", "numbers in the order of the text"},
    {"group-definition", {"MEMBER", "_A 1 TO 2 TO 5 BY 2"}, "_A members: 1 2 3 5", "", "1 to 2, then 3 to 5 by 2"},
    {"group-definition", {"_A 1"}, "", "line-unread", "before any kind"},
    {"group-definition", {"MEMBER", "_A 1 X"}, "_A members: 1", "line-unread", "a word among numbers"},
    {"group-definition", {"MEMBER", "_A 1 44"}, "_A members: 1 44", "member-unknown", "no such member"},
    {"group-definition", {"JOINT", "_A 8 TO 10"}, "_A joints: 8 9 10", "", "a range with a joint"},
    {"group-definition", {"JOINT", "_A 50 TO 52"}, "_A joints: 50 51 52", "joint-unknown", "a range without any"},
    {"group-kinds",
     {"JOINT", "_J 1", "MEMBERS", "_M 1", "ELEMENT", "_E 11", "FLOOR", "_F 2", "SOLID", "_S 7", "GEOMETRY", "_G 1 11"},
     "_J joints: 1 | _M members: 1 | _E elements: 11 | _F floor: 2 | _S solids: 7 | _G geometry: 1 11",
     "",
     "the line of a kind holds until the next"},
    {"group-kinds", {"PLATES", "_P 11"}, "", "line-unread line-unread", "no kind, and a group of none"},
    {"group-kinds", {"ELEMENT", "_E 1"}, "_E elements: 1", "element-unknown", "member 1 is no element"},
    {"group-on-several-lines",
     {"MEMBER", "_DROP 1 2", "_drop 4", "JOINT", "_DROP 3"},
     "_DROP members: 1 2 4 | _DROP joints: 3",
     "",
     "lists of one name join, of one kind; the name as it first stands"},
};

TEST(Groups, HaveNameKindAndNumbers)
{
    for (const group_row& row : groups_rows) {
        SCOPED_TRACE(row.lines.back() + ": " + row.why);
        std::vector<std::string> lines{"START GROUP DEFINITION"};
        lines.insert(lines.end(), row.lines.begin(), row.lines.end());
        lines.push_back("END GROUP DEFINITION");
        const auto read = test::read_in_frame(lines);
        std::string text;
        for (const Structure::Group& group : read.structure.groups)
            text += (text.empty() ? "" : " | ") + text_of(group);
        EXPECT_EQ(text, row.groups);
        EXPECT_EQ(test::warnings(read.report), row.warnings);
    }
}

TEST(Groups, KnowTheirLines)
{
    const auto read = test::read_in_frame(
        {"START GROUP DEFINITION", "MEMBER", "_A 1", "* a comment", "_A 2", "END GROUP DEFINITION"});
    ASSERT_EQ(read.structure.groups.size(), 1U);
    const Structure::Group& group = read.structure.groups[0];
    ASSERT_EQ(group.sources.size(), 2U);
    EXPECT_EQ(test::case_line(read.structure, group.sources[0]), 3U);
    EXPECT_EQ(test::case_line(read.structure, group.sources[1]), 5U);
}

} // namespace
} // namespace STAAD
