/// START USER TABLE blocks, and the look-ups of their rows.

#include "staad/model/sd_reader.h"
#include "tests/support/deck.h"
#include "tests/support/sd_reader_access.h"
#include "tests/support/shown.h"

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using access = detail::sd_reader_access;

/// "1: UNIT METER KN, TEE | T1 = 1 | 1 = END" is table 1 with its unit line, its family and two rows.
std::string tables_of(const SdReader& model)
{
    std::map<int, std::string> tables;
    for (const auto& [number, table] : model.usr_tables) {
        tables[number] = table.unit + ", " + table.type;
        for (const auto& [name, text] : table.records)
            tables[number] += " | " + name + " = " + text;
    }
    return shown(tables);
}

TEST(ReadUserTable, KeepsEveryLineOfTheBlockUnderItsTable)
{
    const std::vector<decks::row> blocks = {
        {"no block, no tables", "W1\n0.3 0.2", "-"},
        {"an empty block creates no table", "START USER TABLE\nEND", "-"},
        {"a row is a line and the line after it; the last line pairs with END",
         "START USER TABLE\nTABLE 1\nUNIT METER KN\nWIDE FLANGE\nW12X26\n0.3 0.15 0.0065 0.009\nEND",
         "1: UNIT METER KN, WIDE FLANGE | 0.3 0.15 0.0065 0.009 = END | W12X26 = 0.3 0.15 0.0065 0.009"},
        {"dimension lines are names of the next line, too",
         "START USER TABLE\nTABLE 3\nUNIT INCHES KIP\nPIPE\nP1\n1 2\nP2\n3 4\nEND",
         "3: UNIT INCHES KIP, PIPE | 1 2 = P2 | 3 4 = END | P1 = 1 2 | P2 = 3 4"},
        {"a second table takes the rows after it",
         "START USER TABLE\nTABLE 1\nUNIT METER KN\nTEE\nT1\n1\nTABLE 2\nUNIT METER KN\nANGLE\nA1\n2\nEND",
         "1: UNIT METER KN, TEE | 1 = TABLE 2 | T1 = 1; 2: UNIT METER KN, ANGLE | 2 = END | A1 = 2"},
        {"a table named again goes on: new unit and family, rows kept",
         "START USER TABLE\nTABLE 1\nUNIT METER KN\nTEE\nT1\nTABLE 1\nUNIT MMS KN\nTUBE\nU1\nEND",
         "1: UNIT MMS KN, TUBE | T1 = TABLE 1 | U1 = END"},
        {"a repeated row takes the later line", "START USER TABLE\nTABLE 1\nUNIT METER KN\nTEE\nT1\n1\nT1\n2\nEND",
         "1: UNIT METER KN, TEE | 1 = T1 | 2 = END | T1 = 2"},
        {"no UNIT line: marked defaults, and the next line is a row", "START USER TABLE\nTABLE 2\nW12X26\n0.3 0.2\nEND",
         "2: 00UNIT METER KN, 00WIDE FLANGE | 0.3 0.2 = END | W12X26 = 0.3 0.2"},
        {"TABLE as the last line of the block: marked defaults", "START USER TABLE\nTABLE 4\nEND",
         "4: 00UNIT METER KN, 00WIDE FLANGE"},
        {"UNIT as the last line of the block: no family", "START USER TABLE\nTABLE 4\nUNIT FEET KIP\nEND",
         "4: UNIT FEET KIP, "},
        {"the line after UNIT is the family, whatever it says",
         "START USER TABLE\nTABLE 4\nUNIT FEET KIP\nTABLE 5\nEND", "4: UNIT FEET KIP, TABLE 5"},
        {"TABLE without a number is table 0", "START USER TABLE\nTABLE\nUNIT METER KN\nTEE\nT1\n1\nEND",
         "0: UNIT METER KN, TEE | 1 = END | T1 = 1"},
        {"a word instead of the number reads as 0", "START USER TABLE\nTABLE A\nUNIT METER KN\nTEE\nEND",
         "0: UNIT METER KN, TEE"},
        {"TABLE is tested as the beginning of the line, not as a word",
         "START USER TABLE\nTABLES 5\nUNIT METER KN\nTEE\nEND", "5: UNIT METER KN, TEE"},
        {"rows before the first TABLE line go to table 1, made with its defaults", "START USER TABLE\nW1\n0.3 0.2\nEND",
         "1: UNIT METER KN,  | 0.3 0.2 = END | W1 = 0.3 0.2"},
        {"without TABLE line a UNIT line is a row", "START USER TABLE\nUNIT MMS KN\nEND",
         "1: UNIT METER KN,  | UNIT MMS KN = END"},
        {"the keyword is a whole line", "START USER TABLE \nW1\n0.3\nEND", "-"},
        {"END is a whole line", "START USER TABLE\nW1\nEND 1\nEND", "1: UNIT METER KN,  | END 1 = END | W1 = END 1"},
        {"only the first block is read", "START USER TABLE\nW1\nEND\nSTART USER TABLE\nW2\nEND",
         "1: UNIT METER KN,  | W1 = END"},
    };
    decks::expect_read(blocks, tables_of);
}

TEST(ReadUserTable, RunsToTheEndOfTheFileWithoutEnd)
{
    const auto tables = [](const decks::lines& lines) { return tables_of(decks::read(decks::open_frame_deck(lines))); };
    EXPECT_EQ(tables({"START USER TABLE", "W1", "0.3 0.2"}), "1: UNIT METER KN,  | 0.3 0.2 =  | W1 = 0.3 0.2");
    EXPECT_EQ(tables({"START USER TABLE", "TABLE 6"}), "6: 00UNIT METER KN, 00WIDE FLANGE");
    EXPECT_EQ(tables({"START USER TABLE"}), "-");
}

TEST(ReadUserTable, ReplacesTheTablesOfAnEarlierReading)
{
    SdReader model = decks::read_frame({"START USER TABLE", "TABLE 7", "END"});
    ASSERT_EQ(model.usr_tables.count(7), 1U);
    ASSERT_TRUE(model.ReadSDDataFromText(decks::frame_deck({})));
    EXPECT_TRUE(model.usr_tables.empty());
}

SdReader model_with_table(int number, const std::string& type, const std::map<std::string, std::string>& records,
                          double length_factor)
{
    SdReader model;
    model.length_factor = length_factor;
    model.usr_tables[number].type = type;
    model.usr_tables[number].records = records;
    return model;
}

TEST(GetSectionFromUsrTable, NamesTheFamilyByItsExactWord)
{
    const struct {
        const char* why;
        const char* word;
        UsrDefineSectionType want;
    } families[] = {
        {"family 1", "WIDE FLANGE", WideFlange},
        {"family 2", "CHANNEL", Channel},
        {"family 3", "ANGLE", Angle},
        {"family 4", "DOUBLE ANGLE", DoubleAngle},
        {"family 5", "TEE", Tee},
        {"family 6", "PIPE", Pipe},
        {"family 7", "TUBE", Tube},
        {"family 8", "GENERAL", General},
        {"family 9", "ISECTION", ISection},
        {"family 10", "PRISMATIC", Prismatic},
        {"the default of a table without UNIT line is no family", "00WIDE FLANGE", UnknownSection},
        {"case matters", "wide flange", UnknownSection},
        {"one blank inside", "WIDE  FLANGE", UnknownSection},
        {"none outside", "TEE ", UnknownSection},
        {"nothing", "", UnknownSection},
    };
    for (const auto& one : families) {
        const SdReader model = model_with_table(1, one.word, {{"R", "1 2"}}, 1.0);
        const auto [number, dimensions] = model.GetSectionFromUsrTable("UPTABLE 1 R");
        EXPECT_EQ(number, one.want) << one.word << ": " << one.why;
        EXPECT_EQ(dimensions, "1X2") << one.word;
    }
}

TEST(GetSectionFromUsrTable, FindsTheRowAndInsertsNothing)
{
    const struct {
        const char* why;
        const char* text;
        std::pair<UsrDefineSectionType, std::string> want;
    } queries[] = {
        {"whole mm, truncated", "UPTABLE 1 W12X26", {WideFlange, "300X150X6X9"}},
        {"words after the row's name do not matter", "UPTABLE 1 W12X26 BETA 90", {WideFlange, "300X150X6X9"}},
        {"nor does the first word", "X  1  W12X26", {WideFlange, "300X150X6X9"}},
        {"unknown row: family, no dimensions", "UPTABLE 1 W14X30", {WideFlange, ""}},
        {"names are compared exactly", "UPTABLE 1 w12x26", {WideFlange, ""}},
        {"unknown table", "UPTABLE 2 W12X26", {UnknownSection, ""}},
        {"no number reads as table 0, which is not there", "UPTABLE W12X26 W12X26", {UnknownSection, ""}},
        {"no row named", "UPTABLE 1", {UnknownSection, ""}},
        {"no table named", "UPTABLE", {UnknownSection, ""}},
        {"empty text", "", {UnknownSection, ""}},
    };
    const SdReader model = model_with_table(1, "WIDE FLANGE", {{"W12X26", "0.3 0.15 0.0065 0.009"}}, 1000.0);
    for (const auto& one : queries)
        EXPECT_EQ(model.GetSectionFromUsrTable(one.text), one.want) << one.text << ": " << one.why;
    EXPECT_EQ(model.usr_tables.size(), 1U);
    EXPECT_EQ(model.usr_tables.at(1).records.size(), 1U);
}

TEST(GetSectionFromUsrTable, UsesTheUnitOfTheFileNotOfTheTable)
{
    const SdReader model = decks::read_frame(
        {"START USER TABLE", "TABLE 1", "UNIT INCHES KIP", "WIDE FLANGE", "W1", "12 6", "END"}, {"UNIT CM KN", 1});
    EXPECT_EQ(model.GetSectionFromUsrTable("UPTABLE 1 W1"), std::pair(WideFlange, std::string("120X60")));
}

TEST(GetSectionFromUsrTable, ThrowsOnARowWithoutNumbers)
{
    for (const char* blank : {"", "   ", "X", " X X "}) {
        const SdReader model = model_with_table(1, "TEE", {{"R", blank}}, 1.0);
        try {
            model.GetSectionFromUsrTable("UPTABLE 1 R");
            ADD_FAILURE() << "no exception for '" << blank << "'";
        } catch (const std::out_of_range& error) {
            EXPECT_STREQ(error.what(), "invalid string position");
        }
    }
}

TEST(ConvertSectionParamByUnit, TurnsEveryNumberIntoWholeMillimetres)
{
    const struct {
        const char* why;
        double length_factor;
        const char* text;
        const char* want;
    } conversions[] = {
        {"metres", 1000.0, "0.3 0.15 0.0065 0.009", "300X150X6X9"},
        {"blanks and X separate, in runs and at the ends too", 1.0, " X300X 150 X6XX9X ", "300X150X6X9"},
        {"one number", 10.0, "12", "120"},
        {"small x is no separator and ends the number", 1.0, "300x150", "300"},
        {"nor is a tab", 1000.0, "0.3\t0.2", "300"},
        {"a foot is a little less than 304.8 mm", 12 * 25.4, "1 10", "304X3047"},
        {"below a millimetre", 1000.0, "0.0005 0.00099", "0X0"},
        {"toward zero from below, without a sign at 0", 1000.0, "-0.0005 -0.0015", "0X-1"},
        {"words count as 0", 1000.0, "W12 0.3", "0X300"},
        {"past 32 bits the nearest limit", 1000.0, "1E300 -1E300", "2147483647X-2147483648"},
    };
    for (const auto& one : conversions) {
        SdReader model;
        model.length_factor = one.length_factor;
        EXPECT_EQ(access::ConvertSectionParamByUnit(model, one.text), one.want) << one.text << ": " << one.why;
    }
}

TEST(ConvertSectionParamByUnit, ThrowsWithoutNumbers)
{
    const SdReader model;
    EXPECT_THROW(access::ConvertSectionParamByUnit(model, ""), std::out_of_range);
    EXPECT_THROW(access::ConvertSectionParamByUnit(model, " X "), std::out_of_range);
}

} // namespace
} // namespace STAAD
