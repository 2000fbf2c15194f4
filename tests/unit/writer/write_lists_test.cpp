/// Groups, truss members, supports and releases.

#include "staad/model/sd_reader.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <set>
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

TEST(WriteGroups, MarksTheBlockAndGathersTheKindsInTheOrderOfTheirBytes)
{
    EXPECT_EQ(groups_text({}), "");
    EXPECT_EQ(groups_text({{"joint", "_1", {1}},
                           {"\xC2\xA5", "_2", {1}},
                           {"JOINT ", "_3", {1}},
                           {"MEMBER", "_B", {1, 2, 3}},
                           {"JOINT", "_4", {5}},
                           {"MEMBER", "_A", {7, 9}},
                           {"", "_6", {1}}}),
              "*{STAAD reserved}\n"
              "START GROUP DEFINITION\n"
              "\n_6 1\n"
              "JOINT\n_4 5\n"
              "JOINT \n_3 1\n"
              "MEMBER\n_B 1 TO 3\n_A 7 9\n"
              "joint\n_1 1\n"
              "\xC2\xA5\n_2 1\n"
              "END GROUP DEFINITION\n");
}

struct group_row {
    const char* why;
    std::vector<SdGroup> groups; ///< all of one kind
    const char* want;
};

const group_row group_rows[] = {
    {"numbers in any order, a repeat as a range of its own", {{"MEMBER", "_G", {9, 3, 1, 3, 2}}}, "_G 1 TO 3 3 9\n"},
    {"no numbers: the name alone", {{"MEMBER", "_G", {}}}, "_G\n"},
    {"no name: no blank before the numbers", {{"MEMBER", "", {3, 1}}}, "1 3\n"},
    {"any integers", {{"MEMBER", "_G", {INT_MAX, 0, -1, INT_MIN}}}, "_G -2147483648 -1 TO 0 2147483647\n"},
    {"a name in bytes past ASCII, with blanks in it", {{"MEMBER", "_\xC2\xA5 1", {3}}}, "_\xC2\xA5 1 3\n"},
    {"groups of one name stay apart and in order", {{"FLOOR", "_F", {2}}, {"FLOOR", "_F", {1}}}, "_F 2\n_F 1\n"},
};

TEST(WriteGroups, HasTheNumbersAfterTheName)
{
    for (const group_row& row : group_rows) {
        SdReader model;
        model.groups = row.groups;
        EXPECT_EQ(written::between(model, row.groups.front().kind, "END GROUP DEFINITION"), row.want) << row.why;
    }
}

// ---- truss members --------------------------------------------------------------------------------------------------

/// Members of these kinds, each without a section.
SdReader model_of_kinds(const std::vector<int>& kinds)
{
    SdReader model = written::row_of_members(static_cast<int>(kinds.size()));
    for (std::size_t i = 0; i < kinds.size(); ++i)
        model.beams[i].kind_code = kinds[i];
    return model;
}

struct truss_row {
    const char* why;
    std::vector<int> kinds;
    const char* want;
};

const truss_row truss_rows[] = {
    {"beams and columns are no truss members", {Beam, Column}, ""},
    {"braces are", {Beam, Brace, Column}, "MEMBER TRUSS \n2\n"},
    {"horizontal ones, too", {HorizontalBrace, Brace, Beam, Brace}, "MEMBER TRUSS \n1 TO 2 4\n"},
    {"kinds that there are not mean nothing", {-1, 4, 22}, ""},
};

TEST(WriteTruss, GoesByTheKindThatTheHostSetAndNotByTheFile)
{
    for (const truss_row& row : truss_rows) {
        SdReader model = model_of_kinds(row.kinds);
        model.brace_ids = {1, 2, 700};
        EXPECT_EQ(written::between(model, "END DEFINE MATERIAL", "MEMBER PROPERTY "), row.want) << row.why;
    }
}

TEST(WriteTruss, LeavesTheBracesInTheModelByTheirNewNumbers)
{
    SdReader model = model_of_kinds({Beam, Brace, HorizontalBrace});
    model.beams[1].id = 500;
    model.brace_ids = {500, 700};
    model.WriteDataToText();
    EXPECT_EQ(model.brace_ids, (std::set<int>{2, 3}));
}

// ---- supports and releases ------------------------------------------------------------------------------------------

using by_description = std::map<std::string, std::vector<unsigned>>;

struct description_row {
    const char* why;
    by_description entries;
    const char* want;
};

const description_row description_rows[] = {
    {"one entry", {{"FIXED", {1, 2, 3, 7}}}, "1 TO 3 7 FIXED\n"},
    {"descriptions in the order of their bytes",
     {{"PINNED", {4}}, {"FIXED BUT MX", {3}}, {"FIXED", {9}}, {"\xB9\xCC", {2}}, {"fixed", {1}}},
     "9 FIXED\n3 FIXED BUT MX\n4 PINNED\n1 fixed\n2 \xB9\xCC\n"},
    {"any order of the numbers, repeats as ranges of their own", {{"FIXED", {5, 4, 4}}}, "4 4 TO 5 FIXED\n"},
    {"no description: the blank in front of it stands", {{"", {1}}}, "1 \n"},
    {"no numbers: an empty line", {{"FIXED", {}}, {"PINNED", {1}}}, "\n1 PINNED\n"},
    {"numbers past the signed ones, 0 among them",
     {{"FIXED", {4294967295U, 2147483648U, 2147483647U, 0}}},
     "0 2147483647 TO 2147483648 4294967295 FIXED\n"},
};

TEST(WriteSupports, WritesTheNumbersBeforeEachDescription)
{
    for (const description_row& row : description_rows) {
        SdReader supported;
        supported.supports = row.entries;
        EXPECT_EQ(written::constants_to_loads(supported), std::string("SUPPORTS\n") + row.want) << row.why;
        SdReader released;
        released.releases = row.entries;
        EXPECT_EQ(written::constants_to_loads(released), std::string("MEMBER RELEASE\n") + row.want) << row.why;
    }
}

TEST(WriteLists, KeepTheOldNumbersOfRenumberedJointsAndMembers)
{
    SdReader model = written::row_of_members(1);
    EXPECT_EQ(written::supports_to_loads(model), "") << "neither supports nor releases";
    model.nodes[0].id = 55;
    model.beams[0].id = 101;
    model.supports["FIXED"] = {55};
    model.releases["START MZ"] = {101};
    model.groups = {{"MEMBER", "_ALL", {101}}};
    EXPECT_EQ(written::supports_to_loads(model), "SUPPORTS\n55 FIXED\nMEMBER RELEASE\n101 START MZ\n");
    EXPECT_EQ(written::between(model, "MEMBER", "END GROUP DEFINITION"), "_ALL 101\n");
    EXPECT_EQ(written::members(model), "1 1 2;\n");
}

} // namespace
} // namespace STAAD
