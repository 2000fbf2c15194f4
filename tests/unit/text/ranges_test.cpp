/// Ranges of numbers, and their layout on lines of 79 characters.

#include "staad/text/ranges.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using numbers = std::vector<int>;
using ranges = std::vector<std::pair<int, int>>;

constexpr std::size_t line_width = 79;

TEST(MakeIdRanges, GathersConsecutiveNumbers)
{
    struct row {
        const char* why;
        numbers ids;
        ranges want;
    };
    const row rows[] = {
        {"no numbers", {}, {}},
        {"one number", {4}, {{4, 4}}},
        {"two in a row", {4, 5}, {{4, 5}}},
        {"a gap", {4, 6}, {{4, 4}, {6, 6}}},
        {"any order", {5, 1, 2, 3, 7, 8}, {{1, 3}, {5, 5}, {7, 8}}},
        {"falling order", {3, 2, 1}, {{1, 3}}},
        {"a repeat opens a range of its own", {4, 4}, {{4, 4}, {4, 4}}},
        {"which goes on from there", {1, 2, 2, 3}, {{1, 2}, {2, 3}}},
        {"three times the same", {7, 7, 7}, {{7, 7}, {7, 7}, {7, 7}}},
        {"across zero", {1, -1, 0}, {{-1, 1}}},
        {"largest number", {INT_MAX, INT_MAX - 1}, {{INT_MAX - 1, INT_MAX}}},
        {"largest number twice: nothing lies behind it", {INT_MAX, INT_MAX}, {{INT_MAX, INT_MAX}, {INT_MAX, INT_MAX}}},
        {"both ends of the integers", {INT_MAX, INT_MIN}, {{INT_MIN, INT_MIN}, {INT_MAX, INT_MAX}}},
    };
    for (const row& c : rows)
        EXPECT_EQ(make_id_ranges(c.ids), c.want) << c.why;
}

/// `count` numbers of three digits, each a range of its own: 101, 103, 105 ...
ranges odd_numbers(int count)
{
    ranges found;
    for (int i = 0; i < count; ++i)
        found.emplace_back(101 + 2 * i, 101 + 2 * i);
    return found;
}

std::string filler(std::size_t length)
{
    return std::string(length, 'H');
}

struct head_row {
    const char* why;
    std::string head;
    ranges list;
    std::string want;
};

const head_row heads[] = {
    {"one blank between head and pieces", "MEMBER TRUSS", {{1, 3}, {5, 5}}, "MEMBER TRUSS 1 TO 3 5"},
    {"without ranges the head alone", "MEMBER TRUSS", {}, "MEMBER TRUSS"},
    {"without a head no blank comes first", "", {{1, 2}, {4, 4}}, "1 TO 2 4"},
    {"neither head nor ranges", "", {}, ""},
    {"a negative number", "H", {{-3, -1}}, "H -3 TO -1"},

    // The last piece needs one place for its blank.
    {"the last piece fits in 79", filler(77), {{5, 5}}, filler(77) + " 5"},
    {"the last piece would make 80", filler(78), {{5, 5}}, filler(78) + " -\n5"},
    {"a last range fits in 79", filler(72), {{1, 3}}, filler(72) + " 1 TO 3"},
    {"a last range would make 80", filler(73), {{1, 3}}, filler(73) + " -\n1 TO 3"},

    // Any other piece needs two more, for the continuation mark behind it.
    {"a piece and the mark behind it fit in 79", filler(75), {{5, 5}, {17, 17}}, filler(75) + " 5 -\n17"},
    {"and what follows may fill the line", filler(75), {{5, 5}, {7, 7}}, filler(75) + " 5 7"},
    {"a piece and the mark behind it would make 80", filler(76), {{5, 5}, {7, 7}}, filler(76) + " -\n5 7"},

    {"a line of exactly 79 at the end of a longer list", "MEMBER TRUSS", odd_numbers(36),
     "MEMBER TRUSS 101 103 105 107 109 111 113 115 117 119 121 123 125 127 129 131 -\n"
     "133 135 137 139 141 143 145 147 149 151 153 155 157 159 161 163 165 167 169 171"},
    {"with one number more the same line ends earlier", "MEMBER TRUSS", odd_numbers(37),
     "MEMBER TRUSS 101 103 105 107 109 111 113 115 117 119 121 123 125 127 129 131 -\n"
     "133 135 137 139 141 143 145 147 149 151 153 155 157 159 161 163 165 167 169 -\n"
     "171 173"},
    {"a range is never broken",
     "JOINT",
     {{1000001, 2000001}, {2000003, 3000003}, {3000005, 4000005}, {4000007, 5000007}},
     "JOINT 1000001 TO 2000001 2000003 TO 3000003 3000005 TO 4000005 -\n"
     "4000007 TO 5000007"},
};

TEST(FormatIdRanges, LaysRangesOutBehindAHead)
{
    for (const head_row& c : heads)
        EXPECT_EQ(format_id_ranges(c.head, c.list, line_width), c.want) << c.why;
}

TEST(FormatIdRanges, TakesTheWidthItIsGiven)
{
    const ranges list = {{1, 1}, {3, 3}, {5, 5}, {7, 7}};
    EXPECT_EQ(format_id_ranges("H", list, 9), "H 1 3 5 7");
    EXPECT_EQ(format_id_ranges("H", list, 8), "H 1 3 -\n5 7");
    EXPECT_EQ(format_id_ranges("H", list, 5), "H 1 -\n3 5 7");
    EXPECT_EQ(format_id_ranges("H", list, 4), "H -\n1 -\n3 -\n5 7");
}

struct tail_row {
    const char* why;
    ranges list;
    std::string tail;
    std::string want;
};

const tail_row tails[] = {
    {"one blank between pieces and tail", {{1, 3}, {5, 5}}, "FIXED", "1 TO 3 5 FIXED"},
    {"one piece has no blank before it", {{5, 5}}, "START MZ", "5 START MZ"},
    {"without ranges nothing, not even the tail", {}, "FIXED", ""},
    {"an empty tail keeps its blank", {{5, 5}}, "", "5 "},

    // The last piece needs two blanks and the tail.
    {"piece and tail fit in 79", {{1, 1}, {3, 3}}, filler(75), "1 3 " + filler(75)},
    {"piece and tail would make 80", {{1, 1}, {3, 3}}, filler(76), "1 -\n3 " + filler(76)},
    {"a tail longer than a line stays with the last piece", {{1, 1}, {3, 5}}, filler(90), "1 -\n3 TO 5 " + filler(90)},
    {"an only piece counts the blank that it does not have: 79", {{5, 5}}, filler(76), "5 " + filler(76)},

    {"a list in one line of 77", odd_numbers(18), "FIXED",
     "101 103 105 107 109 111 113 115 117 119 121 123 125 127 129 131 133 135 FIXED"},
    {"one number more takes the tail to the next line", odd_numbers(19), "FIXED",
     "101 103 105 107 109 111 113 115 117 119 121 123 125 127 129 131 133 135 -\n"
     "137 FIXED"},
    {"pieces before the last leave room for the mark only", odd_numbers(20), "FIXED",
     "101 103 105 107 109 111 113 115 117 119 121 123 125 127 129 131 133 135 137 -\n"
     "139 FIXED"},
    {"a second line fills the same way", odd_numbers(40), "FIXED",
     "101 103 105 107 109 111 113 115 117 119 121 123 125 127 129 131 133 135 137 -\n"
     "139 141 143 145 147 149 151 153 155 157 159 161 163 165 167 169 171 173 175 -\n"
     "177 179 FIXED"},
    {"a shorter tail stays: 79", odd_numbers(19), "FIX",
     "101 103 105 107 109 111 113 115 117 119 121 123 125 127 129 131 133 135 137 FIX"},
};

TEST(FormatIdRangesTail, LaysRangesOutBeforeATail)
{
    for (const tail_row& c : tails)
        EXPECT_EQ(format_id_ranges_tail(c.list, c.tail, line_width), c.want) << c.why;
}

TEST(FormatIdRanges, PutsTheMarkOnALineOfItsOwnWhenNothingElseFits)
{
    EXPECT_EQ(format_id_ranges("", {{100000, 200000}}, 10), " -\n100000 TO 200000");
    EXPECT_EQ(format_id_ranges_tail({{5, 5}}, filler(77), line_width), " -\n5 " + filler(77));
}

TEST(FormatIdRanges, KeepsToTheWidthWhateverTheNumbers)
{
    for (int first = 1; first < 2000000; first = first * 3 + 1) {
        ranges list;
        for (int i = 0; i < 60; ++i)
            list.emplace_back(first + 7 * i, first + 7 * i + (i % 3 == 0 ? 2 : 0));
        for (const std::string& text : {format_id_ranges("MEMBER RELEASE", list, line_width),
                                        format_id_ranges_tail(list, "START MZ", line_width)}) {
            std::size_t begin = 0;
            for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', begin)) {
                EXPECT_LE(end - begin, line_width) << text;
                EXPECT_EQ(text.substr(end - 2, 2), " -") << text;
                begin = end + 1;
            }
            EXPECT_LE(text.size() - begin, line_width) << text;
        }
    }
}

} // namespace
} // namespace STAAD
