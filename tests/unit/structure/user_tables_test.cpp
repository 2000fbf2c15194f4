/// User tables, and the sections that are rows of them.

#include "tests/unit/structure/read_deck.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace STAAD {
namespace {

/// "2 WIDE FLANGE METER 1000 (A: 1 2)": number, file, family, unit, mm of it, rows.
std::string shown_tables(const Structure& structure)
{
    std::string shown;
    for (const Structure::UserTable& table : structure.user_tables) {
        char factor[32];
        std::snprintf(factor, sizeof factor, " %g", table.length_factor);
        shown += (shown.empty() ? "" : "; ") + std::to_string(table.number);
        for (const std::string& word : {table.file, table.family, table.length_unit})
            shown += word.empty() ? "" : " " + word;
        shown += factor;
        for (const Structure::UserTable::Row& row : table.rows)
            shown += " (" + row.name + ": " + row.text + ")";
    }
    return shown;
}

TEST(ReadUserTables, AndTheirRows)
{
    const struct {
        std::vector<std::string> lines; ///< of the block, in metres
        const char* tables;
        const char* findings;
        const char* why;
    } cases[] = {
        {{"TABLE 1", "UNIT INCHES KIP", "WIDE FLANGE", "W1", "1 2 3", "W2", "4 5"},
         "1 WIDE FLANGE INCHES 25.4 (W1: 1 2 3) (W2: 4 5)",
         "",
         "a unit, a family, rows of two lines"},
        {{"TABLE 2", "prismatic", "P1", "1 2", "3 4 -", "5", "P2", "2*2.5"},
         "2 PRISMATIC METER 1000 (P1: 1 2 3 4 5) (P2: 2*2.5)",
         "",
         "the unit in force; numbers over several lines; values as written"},
        {{"TABLE 1", "UNIT MMS KN", "TEE", "T1", "1", "TABLE 2", "ANGLES", "A1", "2"},
         "1 TEE MMS 1 (T1: 1); 2 ANGLE METER 1000 (A1: 2)",
         "",
         "a UNIT line of a table counts for that one alone"},
        {{"UNIT FEET KIP", "TABLE 1", "PIPE", "P1", "1", "TABLE 2", "TUBE", "P1", "2"},
         "1 PIPE FEET 304.8 (P1: 1); 2 TUBE FEET 304.8 (P1: 2)",
         "",
         "one before the first table for all of them"},
        {{"TABLE 1", "CHANNEL", "100", "1 2", "C2 3 4"},
         "1 CHANNEL METER 1000 (100: 1 2) (C2: 3 4)",
         "",
         "the first row may have a number for a name; numbers on the line of the name"},
        {{"TABLE 1", "GENERAL", "G1", "1", "g1", "2"},
         "1 GENERAL METER 1000 (g1: 2)",
         "number-again",
         "a row again: the later counts"},
        {{"TABLE 3 profiles.tbl", "TABLE 4", "DOUBLE ANGLE", "D1", "1"},
         "3 profiles.tbl METER 1000; 4 DOUBLE ANGLE METER 1000 (D1: 1)",
         "form-kept",
         "rows in another file"},
        {{"TABLE 1", "W1", "1 2"}, "1 METER 1000 (W1: 1 2)", "line-unread", "no family"},
        {{"TABLE 1", "ISECTION", "I1", "1 2 X"}, "1 ISECTION METER 1000 (I1: 1 2)", "line-unread", "a word in a row"},
        {{"W1", "1 2", "TABLE X", "3"}, "", "line-unread line-unread line-unread line-unread", "rows of no table"},
        {{"TABLE 1", "TEE", "T1", "1", "UNIT MMS KN"},
         "1 TEE METER 1000 (T1: 1)",
         "line-unread",
         "a unit that comes after rows would hold for some of them alone"},
        {{"TABLE 1", "UNIT MMS FOO", "TEE"}, "1 TEE MMS 1", "unit-word", "a word that is no unit"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string("user-table: ") + each.why);
        std::vector<std::string> lines = each.lines;
        lines.insert(lines.begin(), "START USER TABLE");
        lines.insert(lines.end(), {"END", "MEMBER PROPERTY", "1 PRIS YD 0.5"});
        const test::deck_reading read = test::read_in_frame(lines);
        EXPECT_EQ(shown_tables(read.structure), each.tables);
        EXPECT_EQ(test::warnings(read.report), each.findings);
        EXPECT_EQ(read.structure.sections.at(0).values.at(0).value, 500.0) << "the unit outside stays";
    }
}

TEST(ReadUserTables, AsSectionsOfMembers)
{
    const std::vector<std::string> block = {"START USER TABLE", "TABLE 1", "TEE", "T1", "1 2", "TABLE 7 far.tbl", "END",
                                            "MEMBER PROPERTY"};
    const struct {
        const char* form;
        const char* line;
        Structure::Section::Shape shape;
        int table;
        const char* name;
        const char* findings; ///< after the one for the file of table 7
        const char* why;
    } cases[] = {
        {"user-table", "1 UPTABLE 1 T1", Structure::Section::Shape::user_table, 1, "T1", "", "table and row"},
        {"user-table", "1 UPT 1 t1", Structure::Section::Shape::user_table, 1, "t1", "", "short, in any case"},
        {"user-table", "1 UPTABLE 1 T2", Structure::Section::Shape::user_table, 1, "T2", " table-unknown", "no row"},
        {"user-table", "1 UPTABLE 2 T1", Structure::Section::Shape::user_table, 2, "T1", " table-unknown", "no table"},
        {"user-table", "1 UPTABLE 7 X", Structure::Section::Shape::user_table, 7, "X", "", "its rows are not known"},
        {"user-table", "1 UPTABLE T1", Structure::Section::Shape::other, 0, "", " line-unread", "no number"},
        {"user-table", "1 UPTABLE 1", Structure::Section::Shape::other, 1, "", " line-unread", "no row named"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string(each.form) + ": " + each.why);
        std::vector<std::string> lines = block;
        lines.emplace_back(each.line);
        const test::deck_reading read = test::read_in_frame(lines);
        const Structure::Section& section = read.structure.sections.at(0);
        EXPECT_EQ(section.shape, each.shape);
        EXPECT_EQ(section.table, each.table);
        EXPECT_EQ(section.name, each.name);
        EXPECT_EQ(test::warnings(read.report), std::string("form-kept") + each.findings);
    }
}

} // namespace
} // namespace STAAD
