/// How much the lists of one reading may hold, and the error that says where it was too much.

#include "staad/report/id_budget.h"
#include "tests/support/deck.h"
#include "tests/support/sd_reader_access.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <new>
#include <string>
#include <type_traits>
#include <vector>

namespace STAAD {
namespace {

using access = detail::sd_reader_access;

static_assert(most_numbers_per_list == 16777216);
static_assert(most_numbers_per_reading == 134217728);
static_assert(longest_plain_text == 256);
static_assert(most_text_per_reading == 268435456);
static_assert(std::is_base_of_v<std::bad_alloc, ReadLimitError>);

TEST(ReadLimitError, SaysWhereAndHowMuch)
{
    const ReadLimitError error(118, 121, most_numbers_per_list);
    EXPECT_STREQ(error.what(), "line 118: a list of more than 16777216 numbers");
    EXPECT_STREQ(error.text(), "a list of more than 16777216 numbers");
    EXPECT_EQ(error.first_line(), 118u);
    EXPECT_EQ(error.last_line(), 121u);
    EXPECT_EQ(error.limit(), 16777216u);
    EXPECT_STREQ(ReadLimitError(0, 0, most_numbers_per_list).what(), "a list of more than 16777216 numbers");
    EXPECT_STREQ(ReadLimitError(7, 7, most_text_per_reading).what(),
                 "line 7: more than 268435456 bytes of long texts in members, elements and loads");
    constexpr std::size_t last = std::numeric_limits<std::size_t>::max();
    const std::string largest = sizeof last == 8 ? "18446744073709551615" : "4294967295";
    EXPECT_EQ(ReadLimitError(last, last, most_numbers_per_reading).what(),
              "line " + largest + ": more than 134217728 numbers in all lists together");
}

TEST(ReadLimitError, IsCaughtAsExhaustedMemory)
{
    SdReader model;
    EXPECT_THROW(access::extract_id_from_line(model, "1 TO 16777217"), std::bad_alloc);
}

TEST(IdBudget, BoundsEveryList)
{
    SdReader model;
    const char* const too_long[] = {"1 TO 16777217", "5 1 TO 16777216", "1 TO 16777216 7", "TO 2147483647",
                                    "1 TO 10000000 TO 10000000"};
    for (const char* const line : too_long)
        EXPECT_THROW(access::extract_id_from_line(model, line), ReadLimitError) << line;
    const char* const long_enough[] = {"5 2 TO 16777216", "1 TO 16777216 FIXED", "2147483000 TO 2147483647"};
    for (const char* const line : long_enough)
        EXPECT_NO_THROW(access::extract_id_from_line(model, line)) << line;
    EXPECT_EQ(access::extract_id_from_line(model, "1 TO 16777216").size(), most_numbers_per_list);
}

TEST(IdBudget, BoundsAllListsTogether)
{
    detail::id_budget budget;
    for (std::size_t list = 1; list <= 8; ++list) {
        budget.start_list(list, list);
        ASSERT_NO_THROW(budget.take(most_numbers_per_list)) << list;
    }
    budget.start_list(9, 10);
    decks::expect_limit([&] { budget.take(1); }, 9, 10, most_numbers_per_reading);
    EXPECT_NO_THROW(budget.take(0));
}

TEST(IdBudget, CountsEachListFromZero)
{
    detail::id_budget budget;
    budget.start_list(1, 1);
    budget.take(most_numbers_per_list - 1);
    EXPECT_THROW(budget.take(2), ReadLimitError);
    EXPECT_NO_THROW(budget.take(1)) << "what was refused does not count";
    EXPECT_THROW(budget.take(1), ReadLimitError);
    budget.start_list(2, 2);
    EXPECT_NO_THROW(budget.take(most_numbers_per_list));
    EXPECT_THROW(budget.take(static_cast<std::size_t>(-1)), ReadLimitError) << "no wrapping round";
}

TEST(IdBudget, CountsReferencesInTheTotalOnly)
{
    detail::id_budget budget;
    budget.start_list(3, 3);
    EXPECT_NO_THROW(budget.take_references(most_numbers_per_reading - 1)) << "more than a list may hold";
    EXPECT_NO_THROW(budget.take(1));
    EXPECT_THROW(budget.take_references(1), ReadLimitError);
    EXPECT_THROW(budget.take(1), ReadLimitError);
}

TEST(IdBudget, CountsLongTextsApart)
{
    detail::id_budget budget;
    budget.start_list(3, 4);
    for (int i = 0; i < 10; ++i)
        EXPECT_NO_THROW(budget.take_text(256)) << "a text of usual length costs nothing";
    EXPECT_NO_THROW(budget.take_text(most_text_per_reading - 257));
    EXPECT_THROW(budget.take_text(258), ReadLimitError);
    EXPECT_NO_THROW(budget.take_text(257)) << "what was refused does not count";
    decks::expect_limit([&] { budget.take_text(257); }, 3, 4, most_text_per_reading);
    EXPECT_NO_THROW(budget.take_text(256));
    EXPECT_NO_THROW(budget.take(most_numbers_per_list)) << "numbers have a limit of their own";
}

TEST(AppendIds, TakesNothingOfAListThatIsTooLong)
{
    detail::id_list_walker<> walker(detail::word_cursor("1 2 TO 2000000000"), detail::general_id_list);
    detail::id_budget budget;
    budget.start_list(7, 8);
    std::vector<int> ids = {99};
    decks::expect_limit([&] { detail::append_ids(ids, walker, budget); }, 7, 8, most_numbers_per_list);
    EXPECT_EQ(ids, std::vector<int>{99}) << "the list was refused as a whole";
    EXPECT_LT(ids.capacity(), 100u) << "before memory was taken for it";
}

} // namespace
} // namespace STAAD
