/// Numbers as text: six digits, six places, a fixed number of places. Ordinary numbers are compared with those of the
/// C library; the rows are those on an edge.

#include "staad/text/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

namespace STAAD::detail {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

struct real_row {
    const char* why;
    double value;
    const char* want;
};

const real_row reals[] = {
    {"zero", 0.0, "0"},
    {"negative zero", -0.0, "-0"},
    {"no zeros at the end", 0.120, "0.12"},
    {"rounded up into the next power", 999999.5, "1e+06"},
    {"a tie goes to the even digit, down", 1000.125, "1000.12"},
    {"and up", 1000.375, "1000.38"},
    {"the least that is fixed", 0.0001, "0.0001"},
    {"the first that is not", 0.00001, "1e-05"},
    {"rounding may make it fixed", 0.00009999999, "0.0001"},
    {"three digits of exponent where they are needed", -1e300, "-1e+300"},
    {"the largest", 1.7976931348623157e308, "1.79769e+308"},
    {"the least", 4.9406564584124654e-324, "4.94066e-324"},
    {"without end", infinity, "inf"},
    {"below every number", -infinity, "-inf"},
    {"no number", not_a_number, "nan"},
};

TEST(FormatReal, HasSixDigitsAtMost)
{
    for (const real_row& row : reals)
        EXPECT_EQ(format_real(row.value), row.want) << row.why;
}

const struct {
    const char* why;
    double value;
    int places;
    const char* want;
} fixed_rows[] = {
    {"a tie goes to the even digit, down", 0.125, 2, "0.12"},
    {"and up", 0.375, 2, "0.38"},
    {"nothing is left but the sign", -0.04, 1, "-0.0"},
    {"negative zero", -0.0, 4, "-0.0000"},
    {"the digits of a large number", 1e22, 1, "10000000000000000000000.0"},
    {"without end", -infinity, 2, "-inf"},
    {"no number", not_a_number, 2, "nan"},
    {"no places: no text", 1.5, 0, ""},
    {"five: none either", 1.5, 5, ""},
    {"six is another format's", 1.5, 6, ""},
    {"less than none", 1.5, -1, ""},
    {"far less", 1.5, INT_MIN, ""},
    {"far more", 1.5, INT_MAX, ""},
};

TEST(FormatFixed, HasOneToFourPlacesOrIsEmpty)
{
    for (const auto& row : fixed_rows)
        EXPECT_EQ(format_fixed(row.value, row.places), row.want) << row.why;
}

TEST(FormatSixPlaces, HasSixPlacesWhateverTheSize)
{
    const real_row rows[] = {
        {"less than the last place", -1e-9, "-0.000000"},
        {"negative zero", -0.0, "-0.000000"},
        {"every digit of a large number", 1e22, "10000000000000000000000.000000"},
        {"without end", infinity, "inf"},
        {"no number", not_a_number, "nan"},
    };
    for (const real_row& row : rows)
        EXPECT_EQ(format_six_places(row.value), row.want) << row.why;
    EXPECT_EQ(format_six_places(-std::numeric_limits<double>::max()).size(), 317U) << "a sign, 309 digits, 7";
}

std::string printed(const char* form, double value)
{
    char text[512];
    std::snprintf(text, sizeof text, form, value);
    return text;
}

void expect_as_printed(double value)
{
    ASSERT_EQ(format_real(value), printed("%g", value));
    ASSERT_EQ(format_six_places(value), printed("%f", value));
    constexpr const char* forms[] = {"%.1f", "%.2f", "%.3f", "%.4f"};
    for (int places = 1; places <= 4; ++places)
        ASSERT_EQ(format_fixed(value, places), printed(forms[places - 1], value));
}

/// Doubles of any bits, and of the sizes that models have, with few digits, so that ties are met.
TEST(FormatNumbers, AreTheOnesOfTheCLibrary)
{
    std::mt19937_64 random(20260704);
    for (int i = 0; i < 100000; ++i) {
        const double any = std::bit_cast<double>(static_cast<std::uint64_t>(random()));
        if (!std::isnan(any)) // C libraries do not agree on these
            expect_as_printed(any);
        const double length = static_cast<double>(static_cast<std::int64_t>(random() % 20000001) - 10000000) / 64.0;
        expect_as_printed(length);
        expect_as_printed(length / 1000);
        ASSERT_FALSE(::testing::Test::HasFatalFailure());
    }
}

} // namespace
} // namespace STAAD::detail
