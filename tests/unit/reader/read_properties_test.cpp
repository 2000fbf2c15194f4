/// MEMBER PROPERTY blocks: the section texts of members, the code word, and who gets them.

#include "staad/model/sd_reader.h"
#include "tests/support/deck.h"
#include "tests/support/shown.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

constexpr const char* metres = "UNIT METER KN";
constexpr const char* millimetres = "UNIT MMS KN";

struct section_line {
    const char* why;
    std::string line; ///< a "|", which is not in the deck, stands before the name of the section
    const char* sect_text;
    const char* unit = metres;
};

/// Reads each line as the property of member 1.
void expect_sections(const std::vector<section_line>& rows)
{
    for (const section_line& row : rows) {
        const std::size_t bar = row.line.find('|');
        const std::string name = row.line.substr(bar + 1);
        const SdReader model = decks::read_frame({"MEMBER PROPERTY", row.line.substr(0, bar) + name}, {row.unit, 1});
        EXPECT_EQ(decks::member(model, 1).sect_name, name) << row.why;
        EXPECT_EQ(decks::member(model, 1).sect_text, row.sect_text) << row.why;
        EXPECT_EQ(decks::member(model, 1).material, "STEEL") << row.why;
    }
}

TEST(ReadProperties, TakesTableTextsAsTheyStand)
{
    expect_sections({
        {"from the keyword on", "1 |TABLE ST W12X26", "TABLE ST W12X26"},
        {"blanks inside and after stay", "1  |TABLE  ST  W12X26 ", "TABLE  ST  W12X26 "},
        {"TABLE wins over the other keywords", "1 |TABLE ST TAPERED PRIS", "TABLE ST TAPERED PRIS"},
        {"user tables, unchanged", "1 |UPTABLE 1 W12X26", "UPTABLE 1 W12X26"},
        {"nor is a pipe of a user table touched", "1 |UPTABLE 1 PIPE OD 0.2 ID 0.1", "UPTABLE 1 PIPE OD 0.2 ID 0.1"},
    });
}

TEST(ReadProperties, WritesPipesAsDiameterAndThickness)
{
    expect_sections({
        {"half the difference of the diameters", "1 |TABLE ST PIPE OD 0.2 ID 0.18", "TABLE ST PIP200X10"},
        {"fractions of a millimetre stay, six digits in all", "1 |TABLE ST PIPE OD 219.1234 ID 203.1234",
         "TABLE ST PIP219.123X8", millimetres},
        {"half a millimetre", "1 |TABLE ST PIPE OD 60 ID 55", "TABLE ST PIP60X2.5", millimetres},
        {"from a million on in powers of ten", "1 |TABLE ST PIPE OD 2000 ID 1000", "TABLE ST PIP2e+06X500000"},
        {"no inner diameter is 0", "1 |TABLE ST PIPE OD 0.2", "TABLE ST PIP200X100"},
        {"no number at all", "1 |TABLE ST PIPE OD ", "TABLE ST PIP0X0"},
        {"numbers are found by their place, not by their name", "1 |TABLE PIPE OD 0.2 ID 0.18", "TABLE PIPE PIP0X0"},
        {"the other order is not understood", "1 |TABLE ST PIPE ID 0.18 OD 0.2", "TABLE ST PIPE ID 0.18 OD 0.2"},
        {"without the blank after OD the text stays", "1 |TABLE ST PIPE OD", "TABLE ST PIPE OD"},
        {"two blanks are not one", "1 |TABLE ST PIPE  OD 0.2 ID 0.1", "TABLE ST PIPE  OD 0.2 ID 0.1"},
    });
}

TEST(ReadProperties, WritesTaperedSectionsInWholeMillimetres)
{
    expect_sections({
        {"no blank after the keyword", "1 |TAPERED 0.6 0.008 0.6 0.25 0.012", "TAPERED600X8X600X250X12"},
        {"truncated", "1 |TAPERED 600.9 8.5 -0.5", "TAPERED600X8X0", millimetres},
        {"words count as 0", "1 |TAPERED A 0.1", "TAPERED0X100"},
        {"nothing after the keyword", "1 2 3 |TAPERED", "TAPERED"},
        {"one character after the keyword is skipped, whatever it is", "1 |TAPERED0.6 0.3 0.2", "TAPERED600X300X200"},
        {"the first of two keywords counts", "1 |TAPERED 5 TAPERED 6", "TAPERED5X0X6", millimetres},
        {"TAPERED wins over PRIS", "1 PRIS |TAPERED 0.5 0.2", "TAPERED500X200"},
        {"TAPERED wins over UPTABLE", "1 UPTABLE 1 |TAPERED 0.5", "TAPERED500"},
    });
}

TEST(ReadProperties, WritesPrismaticSectionsByTheirValues)
{
    expect_sections({
        {"two names with their values", "1 |PRIS YD 0.5 ZD 0.3", "PRIS500X300"},
        {"one", "1 |PRIS YD 0.5", "PRIS500"},
        {"below a millimetre", "1 |PRIS YD 0.4", "PRIS0", millimetres},
        {"both below a millimetre", "1 |PRIS YD 0.4 ZD 0.3", "PRIS0X0", millimetres},
        {"three", "1 |PRIS YD 0.5 ZD 0.3 YB 0.2", "PRIS500X300X200"},
        {"four", "1 |PRIS YD 0.5 ZD 0.3 YB 0.2 ZB 0.1", "PRIS500X300X200X100"},
        {"five: the text stays", "1 |PRIS AX 1 IX 2 IY 3 IZ 4 YD 5", "AX 1 IX 2 IY 3 IZ 4 YD 5"},
        {"a name without value: the text stays", "1 |PRIS YD 0.5 ZD", "YD 0.5 ZD"},
        {"a single word: the text stays", "1 2 |PRIS YD", "YD"},
        {"nothing after the keyword", "1 2 3 |PRIS", ""},
        {"extra blanks do not count as words", "1 |PRIS   YD  0.5 ", "PRIS500"},
        {"one character after PRIS is skipped, here a letter", "1 |PRISMATIC YD 0.5", "ATIC YD 0.5"},
        {"a word that reads as no number is 0", "1 |PRIS YD ZD", "PRIS0"},
        {"PRIS wins over UPTABLE", "1 UPTABLE 1 |PRIS 400", "400"},
    });
}

/// Their numbers.
std::string members_with_section(const SdReader& model)
{
    std::vector<int> found;
    for (const SdBeam& member : model.beams)
        if (!member.sect_name.empty())
            found.push_back(member.id);
    return shown(found);
}

/// All of the rule of lists is id_list_test's.
TEST(ReadProperties, GivesTheSectionToTheListedMembers)
{
    const std::vector<decks::row> lists = {
        {"range and number", "1 TO 4 7 TABLE ST W12X26", "1 2 3 4 7"},
        {"the last three words name no members", "1 2 3 4 TABLE A", "1 2 3"},
        {"not even if they are numbers", "1 2 3 PRIS", "1"},
        {"a TO cut off from its bound ends the list", "1 TO 4 TABLE A", "1"},
        {"a range begins after the last number that stands alone, not after a bound", "6 TO 3 TO 5 TABLE ST A", "6"},
        {"0 ends the list", "1 0 2 TABLE ST A", "1"},
        {"unknown numbers are passed over", "1 99 2 TO 3 TABLE ST A", "1 2 3"},
        {"a word after TO is a bound of 0", "2 TO TABLE ST A B", "2"},
        {"no list", "TABLE ST W12X26 1", "-"},
        {"three words are no property line", "1 PRIS YD", "-"},
        {"a line without keyword", "1 2 ST W12X26", "-"},
        {"TABLE as the last word is no keyword", "1 2 3 TABLE", "-"},
        {"TABLE at the end of a longer word neither", "1 XTABLE ST A", "-"},
        {"small letters neither", "1 table st w12x26", "-"},
    };
    const auto listed = [](const SdReader& model) {
        EXPECT_EQ(model.beam_index.size(), 8U) << "no number enters the index";
        return members_with_section(model);
    };
    decks::expect_read(lists, listed, {metres, 8}, "MEMBER PROPERTY");
}

TEST(ReadProperties, SetsFourFieldsAndLeavesOtherMembersEmpty)
{
    const SdReader model = decks::read_frame({"MEMBER PROPERTY AMERICAN", "2 PRIS YD 0.5 ZD 0.3"});
    const SdBeam& named = decks::member(model, 2);
    EXPECT_EQ(named.material, "STEEL");
    EXPECT_EQ(named.sect_text, "PRIS500X300");
    EXPECT_EQ(named.sect_country, "AMERICAN");
    EXPECT_EQ(named.sect_name, "PRIS YD 0.5 ZD 0.3");
    EXPECT_EQ(named.sect_extra, "");
    const SdBeam& other = decks::member(model, 1);
    EXPECT_EQ(other.material + other.sect_text + other.sect_country + other.sect_name + other.sect_extra, "");
}

TEST(ReadProperties, LaterLinesWin)
{
    const SdReader model =
        decks::read_frame({"MEMBER PROPERTY AMERICAN", "1 TO 3 TABLE ST A", "MEMBER PROPERTY INDIAN", "2 TABLE ST B"});
    EXPECT_EQ(decks::member(model, 1).sect_text, "TABLE ST A");
    EXPECT_EQ(decks::member(model, 2).sect_text, "TABLE ST B");
    EXPECT_EQ(decks::member(model, 2).sect_country, "INDIAN");
    EXPECT_EQ(decks::member(model, 3).sect_country, "AMERICAN");
}

TEST(ReadProperties, OfTwoMembersWithOneNumberTheLastGetsTheSection)
{
    const SdReader model =
        decks::read(decks::joined({metres, "JOINT COORDINATES", "1 0 0 0; 2 1 0 0", "MEMBER INCIDENCES", "1 1 2; 1 2 1",
                                   "MEMBER PROPERTY", "1 TABLE ST A", "FINISH"}));
    EXPECT_EQ(model.beams.at(0).sect_text, "");
    EXPECT_EQ(model.beams.at(1).sect_text, "TABLE ST A");
}

TEST(ReadProperties, KeepsTheCodeOfTheLatestKeywordLine)
{
    const decks::row rows[] = {
        {"one word", "MEMBER PROPERTY AMERICAN", "AMERICAN"},
        {"a bare keyword empties it", "MEMBER PROPERTY", ""},
        {"a second line switches", "MEMBER PROPERTY AMERICAN\nMEMBER PROPERTY INDIAN", "INDIAN"},
        {"and a bare second line empties", "MEMBER PROPERTY AMERICAN\nMEMBER PROPERTY ", ""},
        {"blanks and tabs are trimmed at both ends, nothing inside", "MEMBER PROPERTY \t \"GB 50017\" \t",
         "\"GB 50017\""},
        {"no blank is needed", "MEMBER PROPERTYX", "X"},
        {"the keyword may stand anywhere; the code still starts at the 16th character",
         "MEMBER PROPERTY\n* MEMBER PROPERTY INDIAN", "TY INDIAN"},
        {"a keyword line assigns nothing, even with numbers",
         "MEMBER PROPERTY A\n1 TABLE ST B\n1 TABLE ST MEMBER PROPERTY", "ER PROPERTY"},
    };
    for (const decks::row& row : rows) {
        const SdReader model = decks::read_frame({row.lines, "1 TABLE ST W12X26"});
        EXPECT_EQ(decks::member(model, 1).sect_country, row.want) << row.why;
        EXPECT_EQ(decks::member(model, 1).sect_text, "TABLE ST W12X26") << row.why;
    }
}

TEST(ReadProperties, ReadsFromTheKeywordToConstants)
{
    const std::vector<decks::row> rows = {
        {"no block", "1 TABLE ST A", "-"},
        {"a block begins with its keyword", "1 TABLE ST A\nMEMBER PROPERTY\n2 TABLE ST A", "2"},
        {"which begins its line", " MEMBER PROPERTY\n1 TABLE ST A", "-"},
        {"and ends at CONSTANTS", "MEMBER PROPERTY\n1 TABLE ST A\nCONSTANTS\n2 TABLE ST A", "1"},
        {"the whole line", "MEMBER PROPERTY\nCONSTANTS \nCONSTANTS 1\n1 TABLE ST A", "1"},
        {"without CONSTANTS at the end of the file", "MEMBER PROPERTY\nSUPPORTS\n1 FIXED\n2 TABLE ST A", "2"},
        {"if CONSTANTS stands before the block, too, even if there is one more after",
         "CONSTANTS\nMEMBER PROPERTY\n1 TABLE ST A\nCONSTANTS\n2 TABLE ST A", "1 2"},
        {"lines between that are no properties do not matter", "MEMBER PROPERTY\n* beams\nFLOOR\n3 TABLE ST A", "3"},
    };
    decks::expect_read(rows, members_with_section);
}

TEST(ReadProperties, ReadsContinuedLines)
{
    const SdReader model = decks::read_frame({"MEMBER PROPERTY", "1 TO 2 -", "4 TABLE ST -", "W12X26"});
    EXPECT_EQ(members_with_section(model), "1 2 4");
    EXPECT_EQ(decks::member(model, 4).sect_text, "TABLE ST  W12X26");
}

} // namespace
} // namespace STAAD
