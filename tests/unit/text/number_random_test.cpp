/// Numbers of random texts against the C library, which reads them the same way in the "C" locale.

#include "staad/text/number.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <climits>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

namespace STAAD::detail {
namespace {

std::uint64_t bits(double value)
{
    return std::bit_cast<std::uint64_t>(value);
}

/// Nothing of these makes a number hexadecimal, infinite or no number.
std::string random_characters(decks::chance& random)
{
    constexpr char characters[] = " \t+-..eE0123456789012345678901234567890123456789,";
    std::string text;
    for (int left = random.one_in(20) ? random.between(300, 400) : random.between(0, 14); left > 0; --left)
        text += characters[random.between(0, static_cast<int>(sizeof characters) - 2)];
    return text;
}

TEST(ParseNumber, ReadsWhatTheCLibraryReadsAndAsFar)
{
    ASSERT_STREQ(std::localeconv()->decimal_point, ".");
    decks::chance random(20260217);
    for (int i = 0; i < 400000; ++i) {
        const std::string text = random_characters(random);
        char* end = nullptr;
        const double want = std::strtod(text.c_str(), &end);
        const number_parse<double> real = parse_real(text);
        constexpr double largest = std::numeric_limits<double>::max();
        ASSERT_EQ(bits(real.value), bits(std::isinf(want) ? std::copysign(largest, want) : want)) << text;
        ASSERT_EQ(real.size, static_cast<std::size_t>(end - text.c_str())) << text;
        ASSERT_TRUE(real.fits || std::isinf(want) || std::abs(want) < 1e-307) << text;
        const long long whole = std::strtoll(text.c_str(), &end, 10);
        const number_parse<int> parsed = parse_int(text);
        ASSERT_EQ(parsed.value, std::clamp<long long>(whole, INT_MIN, INT_MAX)) << text;
        ASSERT_EQ(parsed.size, static_cast<std::size_t>(end - text.c_str())) << text;
        ASSERT_EQ(parsed.fits, parsed.value == whole) << text;
    }
}

TEST(ParseNumber, ReadsBackEveryDoubleWrittenWithSeventeenDigits)
{
    std::mt19937_64 engine(7);
    for (int i = 0; i < 100000; ++i) {
        const double value = std::bit_cast<double>(engine());
        if (!std::isfinite(value))
            continue;
        char text[40];
        std::snprintf(text, sizeof text, "%.17g", value);
        ASSERT_EQ(bits(to_real(text)), bits(value)) << text;
    }
}

} // namespace
} // namespace STAAD::detail
