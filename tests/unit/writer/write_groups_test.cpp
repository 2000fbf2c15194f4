/// The group block.

#include "staad/model/sd_reader.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

namespace STAAD {
namespace {

std::string groups_text(const std::vector<SdGroup>& groups)
{
    SdReader model;
    model.groups = groups;
    return written::shells_tables_groups(model);
}

/// The lines of `groups`, all of one kind, without those around them.
std::string group_lines(const std::vector<SdGroup>& groups)
{
    SdReader model;
    model.groups = groups;
    return written::between(model, groups.front().kind, "END GROUP DEFINITION");
}

TEST(WriteGroups, WritesNothingWithoutGroups)
{
    EXPECT_EQ(groups_text({}), "");
}

TEST(WriteGroups, MarksTheBlockAndGathersTheKinds)
{
    EXPECT_EQ(
        groups_text(
            {{"MEMBER", "_B", {1, 2, 3}}, {"JOINT", "_J", {5}}, {"MEMBER", "_A", {7, 9}}, {"ELEMENT", "_E", {12}}}),
        "*{STAAD reserved}\n"
        "START GROUP DEFINITION\n"
        "ELEMENT\n"
        "_E 12\n"
        "JOINT\n"
        "_J 5\n"
        "MEMBER\n"
        "_B 1 TO 3\n"
        "_A 7 9\n"
        "END GROUP DEFINITION\n");
}

TEST(WriteGroups, OrdersKindsByTheirBytes)
{
    EXPECT_EQ(groups_text({{"joint", "_1", {1}},
                           {"\xC2\xA5", "_2", {1}},
                           {"JOINT ", "_3", {1}},
                           {"JOINT", "_4", {1}},
                           {"GEOMETRY", "_5", {1}},
                           {"", "_6", {1}},
                           {"FLOOR", "_7", {1}}}),
              "*{STAAD reserved}\n"
              "START GROUP DEFINITION\n"
              "\n"
              "_6 1\n"
              "FLOOR\n"
              "_7 1\n"
              "GEOMETRY\n"
              "_5 1\n"
              "JOINT\n"
              "_4 1\n"
              "JOINT \n"
              "_3 1\n"
              "joint\n"
              "_1 1\n"
              "\xC2\xA5\n"
              "_2 1\n"
              "END GROUP DEFINITION\n");
}

struct list_row {
    const char* why;
    std::string name;
    std::vector<int> ids;
    std::string want;
};

std::string name_of(std::size_t length)
{
    return '_' + std::string(length - 1, 'N');
}

const list_row list_rows[] = {
    {"numbers in any order", "_G", {9, 3, 1, 2, 7}, "_G 1 TO 3 7 9\n"},
    {"a repeat is a range of its own", "_G", {4, 4, 5}, "_G 4 4 TO 5\n"},
    {"no numbers: the name alone", "_G", {}, "_G\n"},
    {"neither name nor numbers", "", {}, "\n"},
    {"no name: no blank before the numbers", "", {3, 1}, "1 3\n"},
    {"the ends of the integers", "_G", {INT_MAX, INT_MIN, INT_MAX - 1}, "_G -2147483648 2147483646 TO 2147483647\n"},
    {"zero and less", "_G", {0, -1, -3}, "_G -3 -1 TO 0\n"},
    {"a name in bytes past ASCII, with blanks in it", "_\xC2\xA5 1", {3}, "_\xC2\xA5 1 3\n"},

    {"the last number ends the line at 79", name_of(77), {5}, name_of(77) + " 5\n"},
    {"it would end it at 80", name_of(78), {5}, name_of(78) + " -\n5\n"},
    {"any other number leaves room for the mark: 79 with it", name_of(75), {5, 17}, name_of(75) + " 5 -\n17\n"},
    {"80 with the mark", name_of(76), {5, 7}, name_of(76) + " -\n5 7\n"},
    {"both numbers fill the line to 79", name_of(75), {5, 7}, name_of(75) + " 5 7\n"},
    {"a name longer than a line", name_of(100), {1, 2}, name_of(100) + " -\n1 TO 2\n"},
};

TEST(WriteGroups, LaysOutTheNumbersBehindTheName)
{
    for (const list_row& row : list_rows)
        EXPECT_EQ(group_lines({{"MEMBER", row.name, row.ids}}), row.want) << row.why;
}

TEST(WriteGroups, ContinuesLongLists)
{
    // the name, 18 numbers and the mark are 78 characters; one number more would make 82
    EXPECT_EQ(group_lines({{"MEMBER", "_ODD", written::every_second(101, 30)}}),
              "_ODD 101 103 105 107 109 111 113 115 117 119 121 123 125 127 129 131 133 135 -\n"
              "137 139 141 143 145 147 149 151 153 155 157 159\n");
}

TEST(WriteGroups, KeepsGroupsOfOneNameApartAndInOrder)
{
    EXPECT_EQ(group_lines({{"FLOOR", "_F", {2}}, {"FLOOR", "_F", {1}}, {"FLOOR", "_A", {}}}), "_F 2\n_F 1\n_A\n");
}

TEST(WriteGroups, KeepsTheOldNumbersOfRenumberedMembers)
{
    SdReader model = written::row_of_members(3);
    model.beams[0].id = 101;
    model.beams[1].id = 102;
    model.beams[2].id = 103;
    model.groups = {{"MEMBER", "_ALL", {101, 102, 103}}};
    EXPECT_EQ(written::between(model, "MEMBER", "END GROUP DEFINITION"), "_ALL 101 TO 103\n");
    EXPECT_EQ(written::members(model), "1 1 2; 2 2 3; 3 3 4;\n");
}

} // namespace
} // namespace STAAD
