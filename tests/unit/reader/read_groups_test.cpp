/// START GROUP DEFINITION blocks.

#include "staad/model/sd_reader.h"
#include "tests/support/deck.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <utility>
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

/// All of the rule is id_list_test's.
TEST(ReadGroups, ReadsTheNumbersByARuleOfTheirOwn)
{
    const std::pair<const char*, ints> lists[] = {
        {"1 TO 4 TO 6 5 TO 0 TO 2", {1, 2, 3, 4, 5, 6, 5, 1, 2}}, // ranges go on from the bound before
        {"1 +2 03 2A", {1, 2, 3, 2}},                             // a sign, a leading 0 or letters end no list
        {"900 TO 902 A 1", {900, 901, 902}},                      // numbers of nothing in the model are kept
        {"A 1", {}},                                              // and so is a group without numbers
    };
    for (const auto& [list, want] : lists) {
        const SdReader model =
            decks::read_frame({"START GROUP DEFINITION", "MEMBER", std::string("_A ") + list, "END GROUP DEFINITION"});
        EXPECT_EQ(groups_of(model), (std::vector<group>{{"MEMBER", "_A", want}})) << list;
    }
}

TEST(ReadGroups, FindsTheBlockBetweenItsTwoLines)
{
    const group_block rows[] = {
        {"no block", {"MEMBER", "_A 1"}, {}},
        {"without its end nothing is read", {"START GROUP DEFINITION", "MEMBER", "_A 1"}, {}},
        {"an end before the start is none", {"END GROUP DEFINITION", "START GROUP DEFINITION", "MEMBER", "_A 1"}, {}},
        {"but one after it counts then",
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
