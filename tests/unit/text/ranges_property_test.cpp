/// Random lists of ranges laid out on lines, against the rule taken step by step, and read back.

#include "staad/text/ranges.h"
#include "staad/text/run_lines.h"

#include "tests/support/random_text.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using decks::chance;
using range = std::pair<int, int>;
using ranges = std::vector<range>;

constexpr int cases = 20000;

std::string piece_of(const range& r)
{
    if (r.first == r.second)
        return std::to_string(r.first);
    return std::to_string(r.first) + " TO " + std::to_string(r.second);
}

/// A first line, the ranges and a tail that brings its own blank, written line by line.
std::string written_line_by_line(const std::string& first_line, const ranges& list, const std::string& tail,
                                 std::size_t width)
{
    std::string text;
    std::string line = first_line;
    for (std::size_t k = 0; k < list.size(); ++k) {
        const bool is_last = k + 1 == list.size(); // no continuation mark needs a place after it
        const std::string piece = piece_of(list[k]) + (is_last ? tail : "");
        if (line.size() + 1 + piece.size() + (is_last ? 0 : 2) > width) {
            text += line + " -\n";
            line = piece;
        } else {
            line += (line.empty() ? "" : " ") + piece;
        }
    }
    return text + line;
}

/// Any integer: mostly of few digits, often negative, now and then one of the limits.
int random_integer(chance& random)
{
    if (random.one_in(20))
        return random.any_of({INT_MAX, INT_MIN, INT_MAX - 1, INT_MIN + 1, 0, -1});
    std::int64_t bound = 10;
    for (int digits = random.between(1, 10); digits > 1; --digits)
        bound *= 10;
    const std::int64_t upper = random.between(0, INT_MAX - 1);
    const std::int64_t value = (upper * 0x10000 + random.between(0, 0xffff)) % bound;
    const std::int64_t within = std::min<std::int64_t>(value, INT_MAX);
    return static_cast<int>(random.one_in(4) ? -within : within);
}

range random_range(chance& random)
{
    const int first = random_integer(random);
    if (random.one_in(2))
        return {first, first};
    return std::minmax({first, random_integer(random)});
}

ranges random_ranges(chance& random)
{
    ranges list;
    const int count = random.one_in(5) ? 1 : random.between(1, 40);
    for (int i = 0; i < count; ++i)
        list.push_back(random_range(random));
    return list;
}

/// Nothing, a few words, or a text about as long as a line.
std::string random_words(chance& random)
{
    const int length = random.any_of({0, random.between(1, 30), random.between(30, 74), random.between(74, 100)});
    std::string text;
    for (int i = 0; i < length; ++i)
        text += i > 0 && i + 1 < length && random.one_in(7) ? ' ' : static_cast<char>('A' + random.between(0, 25));
    return text;
}

std::size_t random_width(chance& random)
{
    return random.one_in(4) ? static_cast<std::size_t>(random.between(0, 132)) : 79;
}

/// A list to be laid out, with everything it needs.
struct layout_case {
    ranges list;
    std::string head;
    std::string tail;
    std::size_t width;

    explicit layout_case(chance& random)
        : list(random_ranges(random)), head(random_words(random)), tail(random_words(random)),
          width(random_width(random))
    {
    }
};

TEST(RangesProperty, LayoutsFollowTheSteps)
{
    chance random(20261121);
    std::size_t full_lines = 0;
    for (int i = 0; i < 2 * cases; ++i) {
        const layout_case c(random);
        SCOPED_TRACE("case " + std::to_string(i) + ", width " + std::to_string(c.width));
        const std::string after_head = format_id_ranges(c.head, c.list, c.width);
        ASSERT_EQ(after_head, written_line_by_line(c.head, c.list, "", c.width));
        ASSERT_EQ(format_id_ranges_tail(c.list, c.tail, c.width),
                  written_line_by_line("", c.list, " " + c.tail, c.width));
        ASSERT_EQ(detail::wrapped_run_list(c.head, c.list, c.tail, c.width),
                  written_line_by_line(c.head, c.list, c.tail, c.width));
        for (const std::string& line : written::lines_of(after_head))
            full_lines += line.size() == c.width ? 1U : 0U;
    }
    EXPECT_GT(full_lines, 2000U); // the lists do come up to the edge
}

/// Numbers of which some follow each other, some repeat, in random order; from 1 up, or up to the limit.
std::vector<int> random_ids(chance& random)
{
    const int largest = random.any_of({60, 5000, 3000000, INT_MAX});
    std::vector<int> ids;
    const int stretches = random.one_in(5) ? 1 : random.between(1, 40);
    for (int i = 0; i < stretches; ++i) {
        const int first = largest - random.between(0, std::min(largest - 1, random.any_of({40, 4000, 2000000000})));
        const int length = random.one_in(2) ? 1 : random.between(1, 12);
        for (int k = 0; k < length && first <= largest - k; ++k)
            ids.push_back(first + k);
    }
    random.shuffle(ids);
    return ids;
}

/// The same, or with everything mirrored to -2 and below, down to the limit.
std::vector<int> random_signed_ids(chance& random)
{
    std::vector<int> ids = random_ids(random);
    if (random.one_in(3)) {
        for (int& id : ids)
            id = -1 - id;
    }
    return ids;
}

/// Ranges of numbers, step by step.
ranges gathered(const std::vector<int>& ids)
{
    ranges result;
    if (ids.empty())
        return result;
    std::vector<std::int64_t> copy(ids.begin(), ids.end());
    std::sort(copy.begin(), copy.end());
    std::pair<std::int64_t, std::int64_t> current{copy[0], copy[0]};
    for (std::size_t i = 1; i < copy.size(); ++i) {
        if (copy[i] == current.second + 1) {
            current.second = copy[i];
        } else {
            result.emplace_back(current);
            current = {copy[i], copy[i]};
        }
    }
    result.emplace_back(current);
    return result;
}

TEST(RangesProperty, NumbersAreGatheredByTheStepsAndLaidOutAsRanges)
{
    chance random(20261127);
    for (int i = 0; i < cases; ++i) {
        const std::vector<int> ids = random_signed_ids(random);
        ASSERT_EQ(make_id_ranges(ids), gathered(ids)) << "case " << i;
        const std::string head = random_words(random);
        const std::string tail = random_words(random);
        detail::text_output out;
        detail::put_run_list(out, head, ids, tail);
        ASSERT_EQ(out.take(), written_line_by_line(head, gathered(ids), tail, 79)) << "case " << i;
        const std::vector<int> positive = random_ids(random);
        const std::vector<unsigned> without_sign(positive.begin(), positive.end());
        detail::put_run_list(out, head, without_sign, tail);
        ASSERT_EQ(out.take(), written_line_by_line(head, gathered(positive), tail, 79)) << "case " << i;
    }
}

} // namespace
} // namespace STAAD
