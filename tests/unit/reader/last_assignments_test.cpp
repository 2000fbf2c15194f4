#include "staad/reader/blocks/assignments.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <utility>
#include <vector>

namespace {

using STAAD::detail::id_range;
using STAAD::detail::last_assignments;
using STAAD::detail::listed_values;
using STAAD::detail::number_lookup;
using STAAD::detail::numbered_position;
using STAAD::detail::same_number;

using valued_range = std::pair<int, id_range>;

TEST(ListedValues, ComeBackInBothDirections)
{
    listed_values lists;
    std::vector<std::vector<int>> seen;
    const auto note = [&seen](int value, const id_range& range) {
        seen.push_back({value, range.first, range.last, range.is_range});
    };
    lists.for_each(note);
    lists.for_each_backwards(note);
    EXPECT_TRUE(seen.empty());
    lists.add(7, {1, 1, false});
    lists.add(7, {2, 5, true});
    lists.add(0, {3, 3, true}); // a range of one number is still a range
    lists.add(7, {9, 9, false});
    lists.for_each(note);
    const std::vector<std::vector<int>> noted = {{7, 1, 1, 0}, {7, 2, 5, 1}, {0, 3, 3, 1}, {7, 9, 9, 0}};
    EXPECT_EQ(seen, noted);
    seen.clear();
    lists.for_each_backwards(note);
    EXPECT_EQ(seen, std::vector<std::vector<int>>(noted.rbegin(), noted.rend()));
    seen.clear();
    lists.clear();
    lists.for_each(note);
    EXPECT_TRUE(seen.empty());
}

/// Value by position, from the assignments and from the plain walk that lets every line write.
struct handed_out {
    std::map<int, int> values;
    std::map<int, int> visits;
};

handed_out by_assignments(const number_lookup& numbers, const std::vector<valued_range>& ranges)
{
    last_assignments assignments(numbers);
    for (const auto& [value, range] : ranges)
        assignments.add(value, range);
    handed_out result;
    assignments.hand_out([&](std::size_t index, int value) {
        const int position = static_cast<int>(index) + 1;
        result.values[position] = value;
        ++result.visits[position];
    });
    return result;
}

std::map<int, int> by_plain_walk(const std::vector<numbered_position>& entries, const std::vector<valued_range>& ranges)
{
    std::map<int, int> position_of; // the last record of each number
    for (const numbered_position& entry : entries)
        position_of[entry.number] = entry.position;
    std::map<int, int> values;
    for (const auto& [value, range] : ranges)
        for (const auto& [number, position] : position_of)
            if (number >= range.first && number <= range.last)
                values[position] = value;
    return values;
}

TEST(LastAssignments, TheLastLineWins)
{
    const std::vector<numbered_position> entries = {{10, 1}, {20, 2}, {30, 3}};
    const number_lookup numbers(entries, same_number::last_counts);
    const auto result =
        by_assignments(numbers, {{1, {1, 2000000000, true}}, {2, {20, 20, false}}, {3, {25, 31, true}}});
    EXPECT_EQ(result.values, (std::map<int, int>{{1, 1}, {2, 2}, {3, 3}}));
}

TEST(LastAssignments, SayWhetherARangeNamesARecord)
{
    const number_lookup numbers({{10, 1}, {900000, 2}}, same_number::last_counts);
    last_assignments assignments(numbers);
    EXPECT_TRUE(assignments.add(1, {10, 10, false}));
    EXPECT_TRUE(assignments.add(1, {1, 10, true}));
    EXPECT_FALSE(assignments.add(1, {11, 11, false}));
    EXPECT_FALSE(assignments.add(1, {11, 899999, true}));
    EXPECT_FALSE(assignments.add(1, {900001, 2147483647, true}));
}

TEST(LastAssignments, DoWhatThePlainWalkDoesAndVisitEveryRecordOnce)
{
    std::mt19937 random(20261121);
    for (int round = 0; round < 500; ++round) {
        const int spread = round % 2 == 0 ? 40 : 1000000; // a table of numbers, or a search among few
        const auto number = [&] { return static_cast<int>(random() % static_cast<unsigned>(spread)) + 1; };
        std::vector<numbered_position> entries;
        for (int position = 1; position <= 30; ++position)
            entries.push_back({number(), position});
        const number_lookup numbers(entries, same_number::last_counts);
        std::vector<valued_range> ranges;
        for (int i = 0; i < 20; ++i) {
            const int first = random() % 2 == 0 ? entries[random() % entries.size()].number : number();
            const bool is_range = random() % 2 == 0;
            const int last = is_range ? first + static_cast<int>(random() % static_cast<unsigned>(spread)) : first;
            ranges.push_back({static_cast<int>(random() % 5), {first, last, is_range}});
        }
        const handed_out result = by_assignments(numbers, ranges);
        ASSERT_EQ(result.values, by_plain_walk(entries, ranges)) << "round " << round;
        for (const auto& [position, visits] : result.visits)
            ASSERT_EQ(visits, 1) << "round " << round << ", position " << position;
    }
}

} // namespace
