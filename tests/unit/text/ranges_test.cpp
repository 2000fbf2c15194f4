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

// What follows what is ranges_property_test's, which takes any numbers; here are the rules, worked out by hand.

TEST(MakeIdRanges, GathersConsecutiveNumbers)
{
    const struct {
        const char* why;
        numbers ids;
        ranges want;
    } rows[] = {
        {"no numbers", {}, {}},
        {"one number", {4}, {{4, 4}}},
        {"any order", {5, 1, 2, 3, 7, 8}, {{1, 3}, {5, 5}, {7, 8}}},
        {"a repeat opens a range of its own", {4, 4}, {{4, 4}, {4, 4}}},
        {"which goes on from there", {1, 2, 2, 3}, {{1, 2}, {2, 3}}},
        {"across zero", {1, -1, 0}, {{-1, 1}}},
        {"largest number twice: nothing lies after it", {INT_MAX, INT_MAX}, {{INT_MAX, INT_MAX}, {INT_MAX, INT_MAX}}},
        {"both ends of the integers", {INT_MAX, INT_MIN}, {{INT_MIN, INT_MIN}, {INT_MAX, INT_MAX}}},
    };
    for (const auto& c : rows)
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

// Lines at their edges are ranges_property_test's; here is one of each kind, worked out by hand.

TEST(FormatIdRanges, LaysRangesOutAfterAHead)
{
    const struct {
        const char* why;
        std::string head;
        ranges list;
        std::string want;
    } rows[] = {
        {"one blank between head and pieces", "MEMBER TRUSS", {{1, 3}, {5, 5}}, "MEMBER TRUSS 1 TO 3 5"},
        {"without ranges the head alone", "MEMBER TRUSS", {}, "MEMBER TRUSS"},
        {"without a head no blank comes first", "", {{-3, -1}, {4, 4}}, "-3 TO -1 4"},
        {"a line of exactly 79 ends the list", "MEMBER TRUSS", odd_numbers(36),
         "MEMBER TRUSS 101 103 105 107 109 111 113 115 117 119 121 123 125 127 129 131 -\n"
         "133 135 137 139 141 143 145 147 149 151 153 155 157 159 161 163 165 167 169 171"},
        {"with one number more the same line ends earlier, for the mark", "MEMBER TRUSS", odd_numbers(37),
         "MEMBER TRUSS 101 103 105 107 109 111 113 115 117 119 121 123 125 127 129 131 -\n"
         "133 135 137 139 141 143 145 147 149 151 153 155 157 159 161 163 165 167 169 -\n171 173"},
    };
    for (const auto& c : rows)
        EXPECT_EQ(format_id_ranges(c.head, c.list, 79), c.want) << c.why;
    EXPECT_EQ(format_id_ranges("H", {{1, 1}, {3, 3}, {5, 5}}, 5), "H 1 -\n3 5") << "another width";
    EXPECT_EQ(format_id_ranges("", {{100000, 200000}}, 10), " -\n100000 TO 200000") << "nothing fits on the first line";
}

TEST(FormatIdRangesTail, LaysRangesOutBeforeATail)
{
    const struct {
        const char* why;
        ranges list;
        std::string tail;
        std::string want;
    } rows[] = {
        {"one blank between pieces and tail", {{1, 3}, {5, 5}}, "FIXED", "1 TO 3 5 FIXED"},
        {"without ranges nothing, not even the tail", {}, "FIXED", ""},
        {"an empty tail keeps its blank", {{5, 5}}, "", "5 "},
        {"a tail longer than a line stays with the last piece",
         {{1, 1}, {3, 5}},
         std::string(90, 'H'),
         "1 -\n3 TO 5 " + std::string(90, 'H')},
        {"the tail takes the last piece along", odd_numbers(19), "FIXED",
         "101 103 105 107 109 111 113 115 117 119 121 123 125 127 129 131 133 135 -\n137 FIXED"},
    };
    for (const auto& c : rows)
        EXPECT_EQ(format_id_ranges_tail(c.list, c.tail, 79), c.want) << c.why;
}

} // namespace
} // namespace STAAD
