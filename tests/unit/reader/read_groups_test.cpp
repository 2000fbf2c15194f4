/// START GROUP DEFINITION blocks.

#include "staad/model/sd_reader.h"
#include "tests/support/deck.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using ints = std::vector<int>;

struct group {
    std::string kind;
    std::string name;
    ints ids;

    friend bool operator==(const group&, const group&) = default;
};

void PrintTo(const group& one, std::ostream* out)
{
    *out << one.kind << " " << one.name << " " << ::testing::PrintToString(one.ids);
}

std::vector<group> groups_of(const SdReader& model)
{
    std::vector<group> found;
    for (const SdGroup& one : model.groups)
        found.push_back({one.kind, one.name, one.ids});
    return found;
}

struct group_block {
    const char* why;
    decks::lines lines;
    std::vector<group> want;
};

TEST(ReadGroups, TakesTheKindFromTheLatestKindLine)
{
    const group_block rows[] = {
        {"joints", {"JOINT", "_A 1"}, {{"JOINT", "_A", {1}}}},
        {"members", {"MEMBER", "_G1 1 TO 4"}, {{"MEMBER", "_G1", {1, 2, 3, 4}}}},
        {"all five, in the order of the file",
         {"FLOOR", "_A 1", "GEOMETRY", "_B 2", "ELEMENT", "_C 3", "MEMBER", "_D 4", "JOINT", "_E 5", "_F 6"},
         {{"FLOOR", "_A", {1}},
          {"GEOMETRY", "_B", {2}},
          {"ELEMENT", "_C", {3}},
          {"MEMBER", "_D", {4}},
          {"JOINT", "_E", {5}},
          {"JOINT", "_F", {6}}}},
        {"none before the first kind line", {"_A 1", "MEMBER", "_B 2"}, {{"", "_A", {1}}, {"MEMBER", "_B", {2}}}},
        {"a trailing blank makes it a group without numbers, which is none",
         {"MEMBER", "JOINT ", "_A 1"},
         {{"MEMBER", "_A", {1}}}},
        {"a kind word with numbers is a group of that name", {"MEMBER", "JOINT 1 2"}, {{"MEMBER", "JOINT", {1, 2}}}},
        {"other words are no kinds", {"MEMBER", "SOLID", "joint", "_A 1"}, {{"MEMBER", "_A", {1}}}},
        {"one name twice makes two groups", {"MEMBER", "_A 1", "_A 2"}, {{"MEMBER", "_A", {1}}, {"MEMBER", "_A", {2}}}},
        {"a number can be a name", {"MEMBER", "7 1 2"}, {{"MEMBER", "7", {1, 2}}}},
        {"a comment is a line like any other", {"MEMBER", "* main 1 2"}, {{"MEMBER", "*", {}}}},
        {"names are kept byte by byte", {"MEMBER", "_\xd6\xf9 1"}, {{"MEMBER", "_\xd6\xf9", {1}}}},
        {"continued lines are one", {"MEMBER", "_A 1 -", "TO 3 -", "7"}, {{"MEMBER", "_A", {1, 2, 3, 7}}}},
    };
    for (const group_block& row : rows) {
        decks::lines block = {"START GROUP DEFINITION"};
        block.insert(block.end(), row.lines.begin(), row.lines.end());
        block.emplace_back("END GROUP DEFINITION");
        EXPECT_EQ(groups_of(decks::read_frame(block)), row.want) << row.why;
    }
}

TEST(ReadGroups, ReadsTheNumbersByARuleOfTheirOwn)
{
    struct list {
        const char* why;
        const char* numbers;
        ints want;
    };
    const list lists[] = {
        {"range and number", "1 TO 4 7", {1, 2, 3, 4, 7}},
        {"a range after a range goes on from its bound", "1 TO 4 TO 6", {1, 2, 3, 4, 5, 6}},
        {"a range without a number before it begins at 1", "TO 3", {1, 2, 3}},
        {"a falling range adds nothing, but its bound counts as the last number", "5 TO 3 TO 6", {5, 4, 5, 6}},
        {"a bound of 0 adds nothing and counts as 0, and the list goes on", "5 TO 0 TO 2 9", {5, 1, 2, 9}},
        {"a word behind TO is such a bound", "5 TO A TO 2 9", {5, 1, 2, 9}},
        {"a bound below 0, too", "5 TO -3 TO 2", {5, 1, 2}},
        {"order and repeats kept", "7 2 2 7", {7, 2, 2, 7}},
        {"0 ends the list", "1 0 2", {1}},
        {"a word ends the list", "1 A 2", {1}},
        {"a number below 0 ends the list", "1 -2 3", {1}},
        {"TO without a bound ends the list", "1 TO", {1}},
        {"TO alone lists nobody", "TO", {}},
        {"a word alone lists nobody, and the group is kept", "A", {}},
        {"small letters are no range", "1 to 3", {1}},
        {"a sign does not end the list", "1 +2 3", {1, 2, 3}},
        {"nor does a leading 0", "1 02 3", {1, 2, 3}},
        {"nor letters behind a number", "1 2A 3", {1, 2, 3}},
        {"numbers of nothing in the model are kept", "900 TO 902", {900, 901, 902}},
    };
    for (const list& one : lists) {
        const SdReader model = decks::read_frame(
            {"START GROUP DEFINITION", "MEMBER", std::string("_A ") + one.numbers, "END GROUP DEFINITION"});
        EXPECT_EQ(groups_of(model), (std::vector<group>{{"MEMBER", "_A", one.want}})) << one.numbers << ": " << one.why;
    }
}

TEST(ReadGroups, FindsTheBlockBetweenItsTwoLines)
{
    const group_block rows[] = {
        {"no block", {"MEMBER", "_A 1"}, {}},
        {"without its end nothing is read", {"START GROUP DEFINITION", "MEMBER", "_A 1"}, {}},
        {"an end before the start is none", {"END GROUP DEFINITION", "START GROUP DEFINITION", "MEMBER", "_A 1"}, {}},
        {"but one behind it counts then",
         {"END GROUP DEFINITION", "START GROUP DEFINITION", "MEMBER", "_A 1", "END GROUP DEFINITION"},
         {{"MEMBER", "_A", {1}}}},
        {"the start is a whole line", {"START GROUP DEFINITION ", "MEMBER", "_A 1", "END GROUP DEFINITION"}, {}},
        {"so is the end", {"START GROUP DEFINITION", "MEMBER", "_A 1", "END GROUP DEFINITIONS"}, {}},
        {"only the first block is read",
         {"START GROUP DEFINITION", "MEMBER", "_A 1", "END GROUP DEFINITION", "START GROUP DEFINITION", "MEMBER",
          "_B 2", "END GROUP DEFINITION"},
         {{"MEMBER", "_A", {1}}}},
        {"an empty block", {"START GROUP DEFINITION", "END GROUP DEFINITION"}, {}},
    };
    for (const group_block& row : rows)
        EXPECT_EQ(groups_of(decks::read_frame(row.lines)), row.want) << row.why;
}

TEST(ReadGroups, AddsToTheGroupsOfAnEarlierReading)
{
    const std::string text = decks::frame_deck({"START GROUP DEFINITION", "MEMBER", "_A 1", "END GROUP DEFINITION"});
    SdReader model = decks::read(text);
    ASSERT_TRUE(model.ReadSDDataFromText(text));
    EXPECT_EQ(groups_of(model), (std::vector<group>{{"MEMBER", "_A", {1}}, {"MEMBER", "_A", {1}}}));
}

TEST(ReadGroups, TellsWhatTheNumbersOfAGroupName)
{
    struct kind {
        const char* why;
        const char* word;
        SdGroup::IdType want;
    };
    const kind kinds[] = {
        {"joints", "JOINT", SdGroup::JointId},
        {"members", "MEMBER", SdGroup::MemberId},
        {"members, too", "GEOMETRY", SdGroup::MemberId},
        {"elements", "ELEMENT", SdGroup::ElementId},
        {"elements, too", "FLOOR", SdGroup::ElementId},
        {"no kind counts as joints", "", SdGroup::JointId},
        {"so does an unknown one", "SOLID", SdGroup::JointId},
        {"and one in small letters", "member", SdGroup::JointId},
    };
    for (const kind& one : kinds) {
        SdGroup group;
        group.kind = one.word;
        EXPECT_EQ(group.GetIdType(), one.want) << one.word << ": " << one.why;
    }
}

} // namespace
} // namespace STAAD
