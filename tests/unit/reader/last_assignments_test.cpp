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

using valued_run = std::pair<int, id_range>;

std::vector<std::vector<int>> forwards(const listed_values& runs)
{
    std::vector<std::vector<int>> seen;
    runs.for_each([&](int value, const id_range& run) { seen.push_back({value, run.first, run.last, run.is_range}); });
    return seen;
}

std::vector<std::vector<int>> backwards(const listed_values& runs)
{
    std::vector<std::vector<int>> seen;
    runs.for_each_backwards([&](int value, const id_range& run) {
        seen.push_back({value, run.first, run.last, run.is_range});
    });
    return seen;
}

TEST(NotedRuns, ComeBackInBothDirections)
{
    listed_values runs;
    EXPECT_TRUE(forwards(runs).empty());
    EXPECT_TRUE(backwards(runs).empty());
    runs.add(7, {1, 1, false});
    runs.add(7, {2, 5, true});
    runs.add(0, {3, 3, true}); // a range of one number is still a range
    runs.add(7, {9, 9, false});
    const std::vector<std::vector<int>> noted = {{7, 1, 1, 0}, {7, 2, 5, 1}, {0, 3, 3, 1}, {7, 9, 9, 0}};
    EXPECT_EQ(forwards(runs), noted);
    EXPECT_EQ(backwards(runs), std::vector<std::vector<int>>(noted.rbegin(), noted.rend()));
    runs.clear();
    EXPECT_TRUE(forwards(runs).empty());
}

/// Value by position, from the assignments and from the plain walk that lets every line write.
struct handed_out {
    std::map<int, int> values;
    std::map<int, int> visits;
};

handed_out by_assignments(const number_lookup& numbers, const std::vector<valued_run>& runs)
{
    last_assignments assignments(numbers);
    for (const auto& [value, run] : runs)
        assignments.add(value, run);
    handed_out result;
    assignments.hand_out([&](std::size_t index, int value) {
        const int position = static_cast<int>(index) + 1;
        result.values[position] = value;
        ++result.visits[position];
    });
    return result;
}

std::map<int, int> by_plain_walk(const std::vector<numbered_position>& entries, const std::vector<valued_run>& runs)
{
    std::map<int, int> position_of; // the last record of each number
    for (const numbered_position& entry : entries)
        position_of[entry.number] = entry.position;
    std::map<int, int> values;
    for (const auto& [value, run] : runs)
        for (const auto& [number, position] : position_of)
            if (number >= run.first && number <= run.last)
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

TEST(LastAssignments, TellWhetherARunNamesAnyone)
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
        std::vector<valued_run> runs;
        for (int i = 0; i < 20; ++i) {
            const int first = random() % 2 == 0 ? entries[random() % entries.size()].number : number();
            const bool is_range = random() % 2 == 0;
            const int last = is_range ? first + static_cast<int>(random() % static_cast<unsigned>(spread)) : first;
            runs.push_back({static_cast<int>(random() % 5), {first, last, is_range}});
        }
        const handed_out result = by_assignments(numbers, runs);
        ASSERT_EQ(result.values, by_plain_walk(entries, runs)) << "round " << round;
        for (const auto& [position, visits] : result.visits)
            ASSERT_EQ(visits, 1) << "round " << round << ", position " << position;
    }
}

} // namespace
