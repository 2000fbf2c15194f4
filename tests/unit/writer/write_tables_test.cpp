/// The user section tables.

#include "staad/model/sd_reader.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <map>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using rows_of_table = std::map<std::string, std::string>;

SdUserSectionTable table(const std::string& type, const rows_of_table& rows = {})
{
    SdUserSectionTable made;
    made.type = type;
    made.records = rows;
    return made;
}

std::string tables_text(const std::map<int, SdUserSectionTable>& tables)
{
    SdReader model;
    model.usr_tables = tables;
    return written::shells_tables_groups(model);
}

/// The lines of tables that have no type of their own and no rows.
std::string lines_of_empty_tables(const std::vector<int>& keys)
{
    SdReader model;
    for (const int key : keys)
        model.usr_tables[key];
    return written::between(model, "START USER TABLE", "END");
}

TEST(WriteUserTables, WritesNothingWithoutTables)
{
    EXPECT_EQ(tables_text({}), "");
}

TEST(WriteUserTables, FillsTheNumbersUpWithEmptyTables)
{
    const std::map<int, SdUserSectionTable> tables = {
        {2, table("00WIDE FLANGE", {{"C8", "0.2 0.01"}, {"C10", "0.25 0.012"}})},
        {5, table("ANGLE", {{"T1", "0.1 0.1"}})},
    };
    EXPECT_EQ(tables_text(tables), "START USER TABLE\n"
                                   "TABLE 1\n"
                                   "TABLE 2\n"
                                   "CHANNEL\n"
                                   "C10\n"
                                   "0.25 0.012\n"
                                   "C8\n"
                                   "0.2 0.01\n"
                                   "TABLE 3\n"
                                   "TABLE 4\n"
                                   "TABLE 5\n"
                                   "TEE\n"
                                   "T1\n"
                                   "0.1 0.1\n"
                                   "END\n");
}

TEST(WriteUserTables, TakesTheFamilyFromTheNumber)
{
    std::map<int, SdUserSectionTable> tables;
    for (int key = 1; key <= 12; ++key)
        tables[key] = table("OWN WORD");
    EXPECT_EQ(tables_text(tables), "START USER TABLE\n"
                                   "TABLE 1\nWIDE FLANGE\n"
                                   "TABLE 2\nCHANNEL\n"
                                   "TABLE 3\nANGLE\n"
                                   "TABLE 4\nDOUBLE ANGLE\n"
                                   "TABLE 5\nTEE\n"
                                   "TABLE 6\nPIPE\n"
                                   "TABLE 7\nTUBE\n"
                                   "TABLE 8\nGENERAL\n"
                                   "TABLE 9\nISECTION\n"
                                   "TABLE 10\nPRISMATIC\n"
                                   "TABLE 11\nOWN WORD\n"
                                   "TABLE 12\nOWN WORD\n"
                                   "END\n");
}

TEST(WriteUserTables, LeavesTheFamilyInTheModel)
{
    SdReader model;
    model.usr_tables = {{3, table("CHANNEL")}, {11, table("CHANNEL")}};
    model.WriteDataToText();
    EXPECT_EQ(model.usr_tables[3].type, "ANGLE");
    EXPECT_EQ(model.usr_tables[11].type, "CHANNEL");
    EXPECT_EQ(model.usr_tables.size(), 2U) << "the numbers filled up are no tables of the model";
}

TEST(WriteUserTables, HasNoUnitLineAndKeepsRowsAsStored)
{
    SdUserSectionTable own = table("X", {{"", "no name"}, {" B ", ""}, {"A\xB0", "\xB0"}, {"Aa", "2"}, {"AB", "1"}});
    own.unit = "UNIT INCHES KIP";
    EXPECT_EQ(tables_text({{11, own}, {12, table("")}}),
              "START USER TABLE\n"
              "TABLE 1\nTABLE 2\nTABLE 3\nTABLE 4\nTABLE 5\nTABLE 6\nTABLE 7\nTABLE 8\nTABLE 9\nTABLE 10\n"
              "TABLE 11\nX\n"
              "\nno name\n"
              " B \n\n"
              "AB\n1\n"
              "Aa\n2\n"
              "A\xB0\n\xB0\n"
              "TABLE 12\n\n"
              "END\n");
}

TEST(WriteUserTables, NumbersBelowOneFillNothingUp)
{
    EXPECT_EQ(lines_of_empty_tables({0}), "TABLE 0\n\n");
    EXPECT_EQ(lines_of_empty_tables({INT_MIN, -3}), "TABLE -2147483648\n\nTABLE -3\n\n");
    EXPECT_EQ(lines_of_empty_tables({-3, 2}), "TABLE -3\n\nTABLE 1\nTABLE 2\nCHANNEL\n") << "counted on from 1";
    EXPECT_EQ(lines_of_empty_tables({0, 1}), "TABLE 0\n\nTABLE 1\nWIDE FLANGE\n");
}

TEST(WriteUserTables, FillsUpToTenThousandAndNoFurther)
{
    const std::string upto = lines_of_empty_tables({10000});
    EXPECT_EQ(std::count(upto.begin(), upto.end(), '\n'), 10001) << "9999 empty tables, the last one and its type";
    EXPECT_EQ(upto.substr(0, 16), "TABLE 1\nTABLE 2\n");
    EXPECT_EQ(upto.substr(upto.size() - 25), "\nTABLE 9999\nTABLE 10000\n\n");
    EXPECT_EQ(lines_of_empty_tables({10001}), "TABLE 10001\n\n");
    EXPECT_EQ(lines_of_empty_tables({2, 10001, 20000}), "TABLE 1\nTABLE 2\nCHANNEL\nTABLE 10001\n\nTABLE 20000\n\n");
    EXPECT_EQ(lines_of_empty_tables({INT_MAX - 1, INT_MAX}), "TABLE 2147483646\n\nTABLE 2147483647\n\n");
}

} // namespace
} // namespace STAAD
