/// Number lists with ranges, under each of the rules.

#include "staad/report/id_budget.h"
#include "tests/support/sd_reader_access.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using access = detail::sd_reader_access;
using ids = std::vector<unsigned>;

ids ids_of_line(const std::string& line)
{
    SdReader model;
    return access::extract_id_from_line(model, line);
}

template<class Number>
std::vector<Number> walk(std::string_view text, const detail::id_list_rule& rule)
{
    detail::id_list_walker<> walker(detail::word_cursor(text), rule);
    detail::id_budget budget;
    std::vector<Number> found;
    detail::append_ids(found, walker, budget);
    return found;
}

const struct {
    const char* why;
    const char* text;
    ids want;
} general_lists[] = {
    {"single numbers", "1 2 3", {1, 2, 3}},
    {"both ends of a range belong to it", "1 TO 4 7", {1, 2, 3, 4, 7}},
    {"order and repeats are kept", "7 3 7", {7, 3, 7}},
    {"a falling range adds nothing", "3 TO 1", {3}},
    {"and the list goes on after it", "3 TO 1 5", {3, 5}},
    {"a range to its own start adds nothing", "3 TO 3", {3}},
    {"a second TO counts from the last number that stood alone", "1 TO 4 TO 6", {1, 2, 3, 4, 2, 3, 4, 5, 6}},
    {"so after a falling range, too", "3 TO 1 TO 5", {3, 4, 5}},
    {"a list that begins with TO counts from 1", "TO 3", {1, 2, 3}},
    {"zero ends the list", "1 2 0 3", {1, 2}},
    {"a number with a leading zero ends it", "1 02 3", {1}},
    {"a keyword ends it", "1 2 ALL", {1, 2}},
    {"a continuation mark ends it", "1 2 -", {1, 2}},
    {"a negative number ends it", "1 -2 3", {1}},
    {"a plus sign ends it", "1 +2 3", {1}},
    {"lower-case to ends it", "1 to 3", {1}},
    {"TOO is no TO", "1 TOO 3", {1}},
    {"T is no TO", "1 T 3", {1}},
    {"TO without a bound ends the list", "1 2 TO", {1, 2}},
    {"a bound of 0 ends the list", "1 TO 0 3", {1}},
    {"a negative bound ends the list", "1 TO -4 3", {1}},
    {"a bound without digits ends the list", "1 TO FIXED 3", {1}},
    {"two TO in a row: the second is a bound without digits", "1 TO TO 3", {1}},
    {"a bound may have a leading zero or a sign", "1 TO 03 5 TO +6", {1, 2, 3, 5, 6}},
    {"letters after a number are ignored", "12abc 4x TO 6y", {12, 4, 5, 6}},
    {"a fraction is cut", "1.9 2", {1, 2}},
    {"runs of blanks", "  1   TO  3  ", {1, 2, 3}},
    {"a tab does not separate", "1\t2 3", {1, 3}},
    {"nothing", "", {}},
    {"a word first", "FIXED 1 2", {}},
    {"past 32 bits a number is the largest one", "99999999999 1", {2147483647, 1}},
    {"a range up to the largest number", "2147483646 TO 2147483647", {2147483646, 2147483647}},
    {"a bound past 32 bits", "2147483645 TO 99999999999", {2147483645, 2147483646, 2147483647}},
    {"nothing follows the largest number", "2147483647 TO 2147483647", {2147483647}},
};

TEST(IdList, ReadsNumbersAndRanges)
{
    for (const auto& c : general_lists) {
        EXPECT_EQ(ids_of_line(c.text), c.want) << c.why;
        EXPECT_EQ(walk<unsigned>(c.text, detail::general_id_list), c.want) << c.why << " (walker)";
    }
}

const struct {
    const char* why;
    std::vector<std::string> tokens;
    unsigned start;
    ids want;
} item_lists[] = {
    {"from the first", {"5", "TO", "8"}, 0, {5, 6, 7, 8}},
    {"from a later one", {"MEMB", "5", "TO", "8"}, 1, {5, 6, 7, 8}},
    {"from a TO: nothing came before", {"5", "TO", "2"}, 1, {1, 2}},
    {"from the last", {"1", "2", "3"}, 2, {3}},
    {"from one past the last", {"1", "2", "3"}, 3, {}},
    {"from far past the last", {"1", "2", "3"}, UINT_MAX, {}},
    {"no tokens", {}, 0, {}},
    {"an empty token ends the list", {"1", "", "3"}, 0, {1}},
    {"an empty bound ends the list", {"1", "TO", "", "3"}, 0, {1}},
    {"a missing bound ends the list", {"1", "TO"}, 0, {1}},
    {"a token with blanks around is read as a number, but not as TO", {"1", " TO ", "3"}, 0, {1}},
    {"a leading blank is no digit", {"1", " 2", "3"}, 0, {1}},
};

TEST(IdList, ReadsTokensFromAnIndexOn)
{
    SdReader model;
    for (const auto& c : item_lists)
        EXPECT_EQ(access::extract_id_from_items(model, c.tokens, c.start), c.want) << c.why;
}

const struct {
    const char* why;
    const char* text;
    std::vector<int> group;
    std::vector<int> surface;
} other_lists[] = {
    {"numbers and a range", "1 TO 4 7", {1, 2, 3, 4, 7}, {1, 2, 3, 4, 7}},
    {"only in a group does the bound become the previous number",
     "1 TO 4 TO 6",
     {1, 2, 3, 4, 5, 6},
     {1, 2, 3, 4, 2, 3, 4, 5, 6}},
    {"a falling bound, too", "5 TO 3 TO 6", {5, 4, 5, 6}, {5, 6}},
    {"a falling range adds nothing", "5 TO 3 7", {5, 7}, {5, 7}},
    {"a bound of 0 adds nothing and the walk goes on", "5 TO 0 7", {5, 7}, {5, 7}},
    {"in a group the previous number is 0 after it", "5 TO 0 TO 2", {5, 1, 2}, {5}},
    {"after a negative bound, too", "5 TO -3 TO 2", {5, 1, 2}, {5}},
    {"and after a bound without digits", "5 TO X TO 2", {5, 1, 2}, {5}},
    {"a group takes a number with a leading zero", "1 02 3", {1, 2, 3}, {1}},
    {"a group takes a number with a sign", "1 +2 3", {1, 2, 3}, {1}},
    {"zero ends both", "1 0 3", {1}, {1}},
    {"a negative number ends both", "1 -2 3", {1}, {1}},
    {"a word ends both", "1 TO 3 THICKNESS 0.2", {1, 2, 3}, {1, 2, 3}},
    {"TO without a bound ends both", "1 2 TO", {1, 2}, {1, 2}},
    {"lower-case to ends both", "1 to 3", {1}, {1}},
    {"a list that begins with TO counts from 1", "TO 3", {1, 2, 3}, {1, 2, 3}},
    {"up to the largest number",
     "2147483646 TO 99999999999 TO 2147483647 5",
     {2147483646, 2147483647, 5},
     {2147483646, 2147483647, 2147483647, 5}},
    {"nothing", "", {}, {}},
};

TEST(IdList, HasARuleOfItsOwnForGroupsAndForSurfaces)
{
    for (const auto& c : other_lists) {
        EXPECT_EQ(walk<int>(c.text, detail::group_id_list), c.group) << c.why << " (group)";
        EXPECT_EQ(walk<int>(c.text, detail::surface_id_list), c.surface) << c.why << " (surface)";
    }
}

TEST(IdListWalker, GivesRangesWithoutCountingThemOut)
{
    detail::id_list_walker<> walker(detail::word_cursor("5 1 TO 2000000000 FIXED"), detail::general_id_list);
    const detail::id_range wanted[] = {{5, 5, false}, {1, 1, false}, {2, 2000000000, true}};
    detail::id_range range;
    for (const detail::id_range& want : wanted) {
        ASSERT_TRUE(walker.next(range));
        EXPECT_EQ(range.first, want.first);
        EXPECT_EQ(range.last, want.last);
        EXPECT_EQ(range.is_range, want.is_range);
        EXPECT_EQ(range.size(), static_cast<std::size_t>(want.last - want.first + 1));
    }
    EXPECT_FALSE(walker.next(range));
    EXPECT_FALSE(walker.next(range)) << "an ended list stays ended";
}

TEST(IdListWalker, LeavesTheWordsAfterTheList)
{
    const std::pair<const char*, const char*> rows[] = {
        {"1 TO 4 FIXED BUT MX", "FIXED BUT MX"}, {"3 0 4", "0 4"}, {"FIXED", "FIXED"}, {"1 2", ""}, {"", ""},
    };
    for (const auto& [text, after] : rows) {
        detail::id_list_walker<> walker(detail::word_cursor(text), detail::general_id_list);
        for (detail::id_range range; walker.next(range);) {
        }
        EXPECT_EQ(detail::join_words(walker.after_list()), after) << text;
    }
}

} // namespace
} // namespace STAAD
