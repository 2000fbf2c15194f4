/// Sections, and the records of user section tables.

#include "staad/model/section.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

namespace STAAD {
namespace {

struct section_row {
    const char* why;
    const char* text;
    const char* property;
    const char* type;
};

const section_row sections[] = {
    {"lower case is turned to upper case", "st hn300x150x6x9", "ST HN300X150X6X9", "ST"},
    {"two letters are enough for ST", "STEPPED 1", "STEPPED 1", "ST"},
    {"ST alone", "st", "ST", "ST"},
    {"one letter is not", "S", "S", ""},
    {"TAPERED with its dimensions", "TAPERED 0.5 0.01 0.4 0.2 0.012", "TAPERED 0.5 0.01 0.4 0.2 0.012", "TAPERED"},
    {"TAPERED after normalisation has no blank", "TAPERED600X8X600X250X12", "TAPERED600X8X600X250X12", "TAPERED"},
    {"TAPER is no TAPERED", "TAPER 1", "TAPER 1", ""},
    {"PRIS", "PRIS YD 0.5", "PRIS YD 0.5", "PRIS"},
    {"PRISMATIC begins with PRIS", "Prismatic", "PRISMATIC", "PRIS"},
    {"a word further on does not count: UPTABLE", "UPTABLE 1 W12X26", "UPTABLE 1 W12X26", ""},
    {"a word further on does not count: TABLE ST", "TABLE ST W12X26", "TABLE ST W12X26", ""},
    {"nor after a blank", " ST W12X26", " ST W12X26", ""},
    {"the first prefix decides, the later word does not", "PRIS ST TAPERED", "PRIS ST TAPERED", "PRIS"},
    {"an empty text has no family", "", "", ""},
    {"bytes past ASCII pass unchanged", "pris \xB8\xD6\xE9", "PRIS \xB8\xD6\xE9", "PRIS"},
    {"only letters change", "pris_[]{}~@`09", "PRIS_[]{}~@`09", "PRIS"},
};

TEST(Section, TakesItsFamilyFromTheBeginningOfItsProperty)
{
    for (const section_row& c : sections) {
        SCOPED_TRACE(c.why);
        const Section section("Steel q235", c.text);
        EXPECT_EQ(section.property, c.property);
        EXPECT_EQ(section.type, c.type);
        EXPECT_EQ(section.material, "Steel q235") << "the material keeps its case";
        EXPECT_EQ(section.tag, 0);
    }
}

struct order_row {
    const char* why;
    const char* a;
    const char* b;
    bool equal;
    bool less;
};

const order_row orders[] = {
    {"the same text", "ST W12", "ST W12", true, false},
    {"case is gone after construction", "st w12", "ST W12", true, false},
    {"one byte decides", "ST W12", "ST W13", false, true},
    {"and the other way round it is not less", "ST W13", "ST W12", false, false},
    {"a text sorts before one that continues it", "ST W1", "ST W12", false, true},
    {"trailing blanks count", "ST W12", "ST W12 ", false, true},
    {"the empty text is the smallest", "", "A", false, true},
    {"bytes are unsigned: past ASCII sorts last", "Z", "\xB8\xD6", false, true},
    {"digits sort as text, not as numbers", "ST W100", "ST W12", false, true},
};

TEST(Section, ComparesPropertyTextsByteByByte)
{
    for (const order_row& c : orders) {
        SCOPED_TRACE(c.why);
        const Section a("STEEL", c.a);
        const Section b("STEEL", c.b);
        EXPECT_EQ(a == b, c.equal);
        EXPECT_EQ(a < b, c.less);
    }
}

TEST(Section, IgnoresMaterialTagAndTypeInComparison)
{
    const Section steel("STEEL", "PRIS YD 0.5");
    Section other("CONCRETE", "PRIS YD 0.5");
    other.tag = 5;
    other.type = "ST";
    EXPECT_TRUE(steel == other);
    EXPECT_FALSE(steel < other);
    EXPECT_FALSE(other < steel);
    EXPECT_EQ((std::set<Section>{steel, other}).size(), 1u);
}

struct family_row {
    int family;
    const char* word;
};

const family_row families[] = {
    {1, "WIDE FLANGE"}, {2, "CHANNEL"}, {3, "ANGLE"},   {4, "DOUBLE ANGLE"}, {5, "TEE"},
    {6, "PIPE"},        {7, "TUBE"},    {8, "GENERAL"}, {9, "ISECTION"},     {10, "PRISMATIC"},
};

TEST(UserTable, TakesTheWordOfEveryFamily)
{
    for (const family_row& c : families) {
        SdUserSectionTable table;
        table.SetType(static_cast<UsrDefineSectionType>(c.family));
        EXPECT_EQ(table.type, c.word) << c.family;
    }
}

TEST(UserTable, KeepsItsTypeForAnyOtherValue)
{
    for (const int family : {0, 11, -1, 1000}) {
        SdUserSectionTable table;
        table.type = "00WIDE FLANGE";
        table.SetType(static_cast<UsrDefineSectionType>(family));
        EXPECT_EQ(table.type, "00WIDE FLANGE") << family;
    }
}

TEST(UserTable, SetsAndReplacesRows)
{
    using rows = std::map<std::string, std::string>;
    SdUserSectionTable table;
    table.AddRecord("W12X26", "0.3 0.15");
    table.AddRecord("", "0.1");
    EXPECT_EQ(table.records, (rows{{"", "0.1"}, {"W12X26", "0.3 0.15"}}));
    table.AddRecord("W12X26", "0.4");
    table.AddRecord("w12x26", "0.5");
    EXPECT_EQ(table.records, (rows{{"", "0.1"}, {"W12X26", "0.4"}, {"w12x26", "0.5"}})) << "case matters";
    EXPECT_EQ(table.unit, "UNIT METER KN");
    EXPECT_EQ(table.type, "");
}

} // namespace
} // namespace STAAD
