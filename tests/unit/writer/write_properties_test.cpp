/// The member properties.

#include "staad/model/sd_reader.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace STAAD {
namespace {

struct section {
    std::string country;
    std::string name;
    std::string text;
};

std::string property_text(const std::vector<section>& sections)
{
    SdReader model = written::row_of_members(static_cast<int>(sections.size()));
    for (std::size_t i = 0; i < sections.size(); ++i) {
        model.beams[i].sect_country = sections[i].country;
        model.beams[i].sect_name = sections[i].name;
        model.beams[i].sect_text = sections[i].text;
    }
    return written::truss_and_properties(model);
}

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
    {"joists of the American code make a block of their own, behind it",
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
    for (const property_row& row : property_rows)
        EXPECT_EQ(property_text(row.sections), row.want) << row.why;
}

/// The entry of `text`, which members 11, 13 ... have, `count` of them; the others have none.
std::string entry_of(int count, const std::string& text)
{
    std::vector<section> sections(static_cast<std::size_t>(9 + 2 * count), {"", "", "zz"});
    for (std::size_t i = 10; i < sections.size(); i += 2)
        sections[i].text = text;
    const std::string block = property_text(sections);
    const std::size_t begin = block.find('\n') + 1;
    return block.substr(begin, block.find(text + '\n') + text.size() + 1 - begin);
}

TEST(WriteProperties, EndsTheLineAtSeventyNineCharactersWithTheText)
{
    // 20 numbers of two digits are 59 characters
    EXPECT_EQ(entry_of(20, "TABLE ST IPE200 SP1"),
              "11 13 15 17 19 21 23 25 27 29 31 33 35 37 39 41 43 45 47 49 TABLE ST IPE200 SP1\n");
    EXPECT_EQ(entry_of(20, "TABLE ST IPE200 SP12"), "11 13 15 17 19 21 23 25 27 29 31 33 35 37 39 41 43 45 47 -\n"
                                                    "49 TABLE ST IPE200 SP12\n");
}

TEST(WriteProperties, LeavesRoomForTheMarkBehindEveryOtherNumber)
{
    EXPECT_EQ(entry_of(28, "PRIS500"),
              "11 13 15 17 19 21 23 25 27 29 31 33 35 37 39 41 43 45 47 49 51 53 55 57 59 61 -\n"
              "63 65 PRIS500\n");
}

TEST(WriteProperties, PutsALongTextOnALineOfItsOwnWithTheLastNumbers)
{
    const std::string long_text(90, 'P');
    EXPECT_EQ(property_text({{"X", "", long_text}, {"X", "", "Q"}, {"X", "", long_text}}),
              "MEMBER PROPERTY X\n1 -\n3 " + long_text + "\n2 Q\n");
    EXPECT_EQ(property_text({{"X", "", long_text}, {"X", "", long_text}}),
              "MEMBER PROPERTY X\n -\n1 TO 2 " + long_text + "\n")
        << "one range alone: the line before it holds the mark and nothing else";
}

TEST(WriteProperties, CountsTheBlankBeforeTheTextOfOneRange)
{
    // the range, the reserve of 1, the blank and the text
    const std::string fits(71, 'P');
    EXPECT_EQ(property_text({{"X", "", fits}, {"X", "", fits}}), "MEMBER PROPERTY X\n1 TO 2 " + fits + "\n");
    const std::string too_long(72, 'P');
    EXPECT_EQ(property_text({{"X", "", too_long}, {"X", "", too_long}}),
              "MEMBER PROPERTY X\n -\n1 TO 2 " + too_long + "\n")
        << "although the line would have 79 characters";
}

} // namespace
} // namespace STAAD
