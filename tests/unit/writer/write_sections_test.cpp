/// User section tables, member properties and element thicknesses.

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

SdUserSectionTable table(const std::string& type, const std::map<std::string, std::string>& rows = {})
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

TEST(WriteUserTables, FillsTheNumbersUpWithEmptyTables)
{
    EXPECT_EQ(tables_text({}), "");
    EXPECT_EQ(tables_text({{2, table("00WIDE FLANGE", {{"C8", "0.2 0.01"}, {"C10", "0.25 0.012"}})},
                           {5, table("ANGLE", {{"T1", "0.1 0.1"}})}}),
              "START USER TABLE\n"
              "TABLE 1\n"
              "TABLE 2\nCHANNEL\nC10\n0.25 0.012\nC8\n0.2 0.01\n"
              "TABLE 3\n"
              "TABLE 4\n"
              "TABLE 5\nTEE\nT1\n0.1 0.1\n"
              "END\n");
}

constexpr const char* families[] = {"WIDE FLANGE", "CHANNEL", "ANGLE",    "DOUBLE ANGLE", "TEE",      "PIPE",
                                    "TUBE",        "GENERAL", "ISECTION", "PRISMATIC",    "OWN WORD", "OWN WORD"};

TEST(WriteUserTables, TakesTheFamilyFromTheNumberAndLeavesItInTheModel)
{
    SdReader model;
    std::string want;
    for (int key = 1; key <= 12; ++key) {
        model.usr_tables[key] = table("OWN WORD");
        want += "TABLE " + std::to_string(key) + '\n' + families[key - 1] + '\n';
    }
    model.usr_tables.erase(4);
    want.erase(want.find("DOUBLE ANGLE\n"), 13); // the number filled up is no table of the model
    EXPECT_EQ(written::between(model, "START USER TABLE", "END"), want);
    model.WriteDataToText();
    for (const auto& [key, left] : model.usr_tables)
        EXPECT_EQ(left.type, families[key - 1]);
    EXPECT_EQ(model.usr_tables.size(), 11U);
}

TEST(WriteUserTables, HasNoUnitLineAndKeepsRowsAsStored)
{
    SdReader model;
    model.usr_tables[1] = table("X", {{"", "no name"}, {" B ", ""}, {"A\xB0", "\xB0"}, {"Aa", "2"}, {"AB", "1"}});
    model.usr_tables[1].unit = "UNIT INCHES KIP";
    EXPECT_EQ(written::between(model, "WIDE FLANGE", "END"), "\nno name\n B \n\nAB\n1\nAa\n2\nA\xB0\n\xB0\n");
}

TEST(WriteUserTables, NumbersBelowOneFillNothingUp)
{
    EXPECT_EQ(lines_of_empty_tables({INT_MIN, -3, 0}), "TABLE -2147483648\n\nTABLE -3\n\nTABLE 0\n\n");
    EXPECT_EQ(lines_of_empty_tables({-3, 2}), "TABLE -3\n\nTABLE 1\nTABLE 2\nCHANNEL\n") << "counted on from 1";
}

TEST(WriteUserTables, FillsUpToTenThousandAndNoFurther)
{
    const std::string upto = lines_of_empty_tables({10000});
    EXPECT_EQ(std::count(upto.begin(), upto.end(), '\n'), 10001) << "9999 empty tables, the last one and its type";
    EXPECT_EQ(upto.substr(0, 16), "TABLE 1\nTABLE 2\n");
    EXPECT_EQ(upto.substr(upto.size() - 25), "\nTABLE 9999\nTABLE 10000\n\n");
    EXPECT_EQ(lines_of_empty_tables({2, 10001, 20000}), "TABLE 1\nTABLE 2\nCHANNEL\nTABLE 10001\n\nTABLE 20000\n\n");
    EXPECT_EQ(lines_of_empty_tables({INT_MAX - 1, INT_MAX}), "TABLE 2147483646\n\nTABLE 2147483647\n\n");
}

// ---- member properties ----------------------------------------------------------------------------------------------

struct section {
    std::string country;
    std::string name;
    std::string text;
};

struct property_row {
    const char* why;
    std::vector<section> sections;
    const char* want;
};

const property_row property_rows[] = {
    {"no members, no block", {}, ""},
    {"the text and not the name", {{"CHINESE", "PRIS YD 0.5", "PRIS500"}}, "MEMBER PROPERTY CHINESE\n1 PRIS500\n"},
    {"codes and texts in order, members under each",
     {{"CHINESE", "n", "PRIS500"},
      {"AMERICAN", "n", "TABLE ST W8X10"},
      {"CHINESE", "n", "PRIS400"},
      {"CHINESE", "n", "PRIS500"},
      {"AMERICAN", "n", "TABLE ST W10X12"}},
     "MEMBER PROPERTY AMERICAN\n5 TABLE ST W10X12\n2 TABLE ST W8X10\n"
     "MEMBER PROPERTY CHINESE\n3 PRIS400\n1 4 PRIS500\n"},
    {"members without a property: the blanks in front of their texts stand",
     {{"", "", ""}, {"", "", ""}},
     "MEMBER PROPERTY \n1 TO 2 \n"},
    {"no code comes first", {{"A", "", "X"}, {"", "", "X"}}, "MEMBER PROPERTY \n2 X\nMEMBER PROPERTY A\n1 X\n"},
    {"joists of the American code make a block of their own, after it",
     {{"AMERICAN", "SJIJOIST", "8K1"}, {"AMERICAN", "TABLE ST W8X10", "TABLE ST W8X10"}, {"AMERICAN", "SJIJOIST", ""}},
     "MEMBER PROPERTY AMERICAN\n2 TABLE ST W8X10\nMEMBER PROPERTY SJIJOIST\n3 \n1 8K1\n"},
    {"and join a code of that name",
     {{"AMERICAN", "SJIJOIST", "8K1"}, {"SJIJOIST", "any", "8K1"}},
     "MEMBER PROPERTY SJIJOIST\n1 TO 2 8K1\n"},
    {"of no other code", {{"CHINESE", "SJIJOIST", "8K1"}}, "MEMBER PROPERTY CHINESE\n1 8K1\n"},
    {"spelled exactly so",
     {{"American", "SJIJOIST", "A"},
      {"AMERICAN", "SJIJOIST ", "B"},
      {"AMERICAN", "Sjijoist", "C"},
      {"AMERICAN ", "SJIJOIST", "D"}},
     "MEMBER PROPERTY AMERICAN\n2 B\n3 C\nMEMBER PROPERTY AMERICAN \n4 D\nMEMBER PROPERTY American\n1 A\n"},
    {"texts in the order of their bytes",
     {{"X", "", "a"}, {"X", "", "\xB8\xD6"}, {"X", "", "B"}, {"X", "", "A B"}, {"X", "", "A"}},
     "MEMBER PROPERTY X\n5 A\n4 A B\n3 B\n1 a\n2 \xB8\xD6\n"},
};

TEST(WriteProperties, GathersMembersByCodeAndText)
{
    for (const property_row& row : property_rows) {
        SdReader model = written::row_of_members(static_cast<int>(row.sections.size()));
        for (std::size_t i = 0; i < row.sections.size(); ++i) {
            model.beams[i].id = 1000 - static_cast<int>(i); // they have new ones in the text
            model.beams[i].sect_country = row.sections[i].country;
            model.beams[i].sect_name = row.sections[i].name;
            model.beams[i].sect_text = row.sections[i].text;
        }
        EXPECT_EQ(written::truss_and_properties(model), row.want) << row.why;
    }
}

// ---- thicknesses ----------------------------------------------------------------------------------------------------

struct thickness_row {
    const char* why;
    int members;
    std::vector<int> thicknesses;
    const char* want;
};

const thickness_row thickness_rows[] = {
    {"one shell after six members", 6, {120}, "7 THICKNESS 0.12\n"},
    {"the thinnest first", 0, {200, 120}, "2 THICKNESS 0.12\n1 THICKNESS 0.2\n"},
    {"shells of one thickness make one entry", 0, {150, 150, 200, 150}, "1 TO 2 4 THICKNESS 0.15\n3 THICKNESS 0.2\n"},
    {"0 and less", 0, {0, -250}, "2 THICKNESS -0.25\n1 THICKNESS 0\n"},
    {"six significant digits: two that print alike stay two entries",
     0,
     {1234567, 1234568},
     "1 THICKNESS 1234.57\n2 THICKNESS 1234.57\n"},
    {"the ends of the integers", 0, {INT_MAX, INT_MIN}, "2 THICKNESS -2.14748e+06\n1 THICKNESS 2.14748e+06\n"},
};

TEST(WriteThickness, HasAnEntryForEachThickness)
{
    for (const thickness_row& row : thickness_rows) {
        SdReader model = written::row_of_members(row.members);
        for (const int thickness : row.thicknesses)
            model.shells.push_back(written::shell(thickness));
        EXPECT_EQ(written::between(model, "ELEMENT PROPERTY", "DEFINE MATERIAL START"), row.want) << row.why;
    }
}

} // namespace
} // namespace STAAD
