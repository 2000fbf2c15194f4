/// START GROUP DEFINITION blocks.

#include "staad/model/sd_reader.h"
#include "tests/support/deck.h"
#include "tests/support/shown.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

/// "MEMBER _A: 1 2; JOINT _B: 7"
std::string groups_of(const SdReader& model)
{
    std::vector<std::pair<std::string, std::vector<int>>> found;
    for (const SdGroup& one : model.groups)
        found.emplace_back(shown(one.kind) + ' ' + one.name, one.ids);
    return shown(found);
}

std::string groups_of_block(const std::string& lines)
{
    return groups_of(decks::read_frame({"START GROUP DEFINITION", lines, "END GROUP DEFINITION"}));
}

TEST(ReadGroups, TakesTheKindFromTheLatestKindLine)
{
    const decks::row rows[] = {
        {"joints", "JOINT\n_A 1", "JOINT _A: 1"},
        {"members", "MEMBER\n_G1 1 TO 4", "MEMBER _G1: 1 2 3 4"},
        {"all five, in the order of the file",
         "FLOOR\n_A 1\nGEOMETRY\n_B 2\nELEMENT\n_C 3\nMEMBER\n_D 4\nJOINT\n_E 5\n_F 6",
         "FLOOR _A: 1; GEOMETRY _B: 2; ELEMENT _C: 3; MEMBER _D: 4; JOINT _E: 5; JOINT _F: 6"},
        {"none before the first kind line", "_A 1\nMEMBER\n_B 2", "- _A: 1; MEMBER _B: 2"},
        {"a trailing blank makes it a group without numbers, which is none", "MEMBER\nJOINT \n_A 1", "MEMBER _A: 1"},
        {"a kind word with numbers is a group of that name", "MEMBER\nJOINT 1 2", "MEMBER JOINT: 1 2"},
        {"other words are no kinds", "MEMBER\nSOLID\njoint\n_A 1", "MEMBER _A: 1"},
        {"one name twice makes two groups", "MEMBER\n_A 1\n_A 2", "MEMBER _A: 1; MEMBER _A: 2"},
        {"a number can be a name", "MEMBER\n7 1 2", "MEMBER 7: 1 2"},
        {"a comment is a line like any other", "MEMBER\n* main 1 2", "MEMBER *: -"},
        {"names are kept byte by byte", "MEMBER\n_\xd6\xf9 1", "MEMBER _\xd6\xf9: 1"},
        {"continued lines are one", "MEMBER\n_A 1 -\nTO 3 -\n7", "MEMBER _A: 1 2 3 7"},
    };
    for (const decks::row& row : rows)
        EXPECT_EQ(groups_of_block(row.lines), row.want) << row.why;
}

/// All of the rule is id_list_test's.
TEST(ReadGroups, ReadsTheNumbersByARuleOfTheirOwn)
{
    const decks::row rows[] = {
        {"ranges go on from the bound before", "1 TO 4 TO 6 5 TO 0 TO 2", "1 2 3 4 5 6 5 1 2"},
        {"a sign, a leading 0 or letters end no list", "1 +2 03 2A", "1 2 3 2"},
        {"numbers of nothing in the model are kept", "900 TO 902 A 1", "900 901 902"},
        {"and so is a group without numbers", "A 1", "-"},
    };
    for (const decks::row& row : rows)
        EXPECT_EQ(groups_of_block("MEMBER\n_A " + row.lines), "MEMBER _A: " + row.want) << row.why;
}

TEST(ReadGroups, FindsTheBlockBetweenItsTwoLines)
{
    const std::vector<decks::row> rows = {
        {"no block", "MEMBER\n_A 1", "-"},
        {"without its end nothing is read", "START GROUP DEFINITION\nMEMBER\n_A 1", "-"},
        {"an end before the start is none", "END GROUP DEFINITION\nSTART GROUP DEFINITION\nMEMBER\n_A 1", "-"},
        {"but one after it counts then",
         "END GROUP DEFINITION\nSTART GROUP DEFINITION\nMEMBER\n_A 1\nEND GROUP DEFINITION", "MEMBER _A: 1"},
        {"the start is a whole line", "START GROUP DEFINITION \nMEMBER\n_A 1\nEND GROUP DEFINITION", "-"},
        {"so is the end", "START GROUP DEFINITION\nMEMBER\n_A 1\nEND GROUP DEFINITIONS", "-"},
        {"only the first block is read",
         "START GROUP DEFINITION\nMEMBER\n_A 1\nEND GROUP DEFINITION\nSTART GROUP DEFINITION\nMEMBER\n_B 2\nEND GROUP "
         "DEFINITION",
         "MEMBER _A: 1"},
        {"an empty block", "START GROUP DEFINITION\nEND GROUP DEFINITION", "-"},
    };
    decks::expect_read(rows, groups_of);
}

TEST(ReadGroups, AddsToTheGroupsOfAnEarlierReading)
{
    const std::string text = decks::frame_deck({"START GROUP DEFINITION", "MEMBER", "_A 1", "END GROUP DEFINITION"});
    SdReader model = decks::read(text);
    ASSERT_TRUE(model.ReadSDDataFromText(text));
    EXPECT_EQ(groups_of(model), "MEMBER _A: 1; MEMBER _A: 1");
}

TEST(ReadGroups, KnowsWhatTheNumbersOfAGroupName)
{
    const struct {
        const char* why;
        const char* word;
        SdGroup::IdType want;
    } kinds[] = {
        {"joints", "JOINT", SdGroup::JointId},
        {"members", "MEMBER", SdGroup::MemberId},
        {"members, too", "GEOMETRY", SdGroup::MemberId},
        {"elements", "ELEMENT", SdGroup::ElementId},
        {"elements, too", "FLOOR", SdGroup::ElementId},
        {"no kind counts as joints", "", SdGroup::JointId},
        {"so does an unknown one", "SOLID", SdGroup::JointId},
        {"and one in small letters", "member", SdGroup::JointId},
    };
    for (const auto& one : kinds) {
        SdGroup group;
        group.kind = one.word;
        EXPECT_EQ(group.GetIdType(), one.want) << one.word << ": " << one.why;
    }
}

} // namespace
} // namespace STAAD
