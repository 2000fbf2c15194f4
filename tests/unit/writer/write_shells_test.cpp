/// Thicknesses of the shell elements.

#include "staad/model/sd_reader.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

namespace STAAD {
namespace {

/// The thickness block of a model with `members` members and shells behind them.
std::string thickness_block(int members, const std::vector<int>& thicknesses)
{
    SdReader model = written::row_of_members(members);
    for (const int thickness : thicknesses)
        model.shells.push_back(written::shell(thickness));
    return written::between(model, "ELEMENT PROPERTY", "DEFINE MATERIAL START");
}

TEST(WriteThickness, WritesNothingWithoutShells)
{
    EXPECT_EQ(written::shells_tables_groups(written::row_of_members(3)), "");
}

struct thickness_row {
    const char* why;
    int members;
    std::vector<int> thicknesses;
    const char* want;
};

const thickness_row thickness_rows[] = {
    {"one shell behind six members", 6, {120}, "7 THICKNESS 0.12\n"},
    {"the thinnest first", 0, {200, 120}, "2 THICKNESS 0.12\n1 THICKNESS 0.2\n"},
    {"shells of one thickness make one entry", 0, {150, 150, 200, 150}, "1 TO 2 4 THICKNESS 0.15\n3 THICKNESS 0.2\n"},
    {"whole metres", 0, {1000}, "1 THICKNESS 1\n"},
    {"0 is a thickness like any other", 0, {0, 100}, "1 THICKNESS 0\n2 THICKNESS 0.1\n"},
    {"less than 0 comes first", 0, {0, -250}, "2 THICKNESS -0.25\n1 THICKNESS 0\n"},
    {"six significant digits", 0, {1234567}, "1 THICKNESS 1234.57\n"},
    {"two thicknesses that print alike stay two entries",
     0,
     {1234567, 1234568},
     "1 THICKNESS 1234.57\n2 THICKNESS 1234.57\n"},
    {"the ends of the integers", 0, {INT_MAX, INT_MIN}, "2 THICKNESS -2.14748e+06\n1 THICKNESS 2.14748e+06\n"},
};

TEST(WriteThickness, HasAnEntryForEachThickness)
{
    for (const thickness_row& row : thickness_rows)
        EXPECT_EQ(thickness_block(row.members, row.thicknesses), row.want) << row.why;
}

/// `count` shells of 120 mm, every second one, with shells of 200 mm between them.
std::vector<int> every_second_of(int count)
{
    std::vector<int> thicknesses;
    for (int i = 0; i < count; ++i)
        thicknesses.insert(thicknesses.end(), {120, 200});
    thicknesses.pop_back();
    return thicknesses;
}

/// The entry of 120 mm: `count` numbers, `first`, `first` + 2 ...
std::string entry_of_120(int first, int count)
{
    const std::string block = thickness_block(first - 1, every_second_of(count));
    return block.substr(0, block.find("THICKNESS 0.12\n")) + "THICKNESS 0.12\n";
}

TEST(WriteThickness, EndsTheLineAtSeventyNineCharactersWithItsTail)
{
    // 3 numbers of two digits, 14 of three, 16 blanks and the tail of 15
    EXPECT_EQ(entry_of_120(95, 17),
              "95 97 99 101 103 105 107 109 111 113 115 117 119 121 123 125 127 THICKNESS 0.12\n");
    // one digit more: the last number goes to the next line with the tail
    EXPECT_EQ(entry_of_120(97, 17), "97 99 101 103 105 107 109 111 113 115 117 119 121 123 125 127 -\n"
                                    "129 THICKNESS 0.12\n");
}

TEST(WriteThickness, LeavesRoomForTheMarkBehindEveryOtherNumber)
{
    // 26 numbers of two digits and the mark are 79 characters
    EXPECT_EQ(entry_of_120(11, 30), "11 13 15 17 19 21 23 25 27 29 31 33 35 37 39 41 43 45 47 49 51 53 55 57 59 61 -\n"
                                    "63 65 67 69 THICKNESS 0.12\n");
    // two numbers of one digit, 25 of two and the mark would be 80
    EXPECT_EQ(entry_of_120(7, 30), "7 9 11 13 15 17 19 21 23 25 27 29 31 33 35 37 39 41 43 45 47 49 51 53 55 57 -\n"
                                   "59 61 63 65 THICKNESS 0.12\n");
}

} // namespace
} // namespace STAAD
