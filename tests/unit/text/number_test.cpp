/// Text to integers and to reals, and reals to integers. What signs, points, exponents and blanks make of a text of
/// digits is number_random_test's: it compares with the C library, which reads those the same way.

#include "staad/text/number.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <climits>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace STAAD::detail {
namespace {

using namespace std::string_literals;

constexpr double largest = std::numeric_limits<double>::max();
constexpr double smallest = std::numeric_limits<double>::denorm_min();

std::uint64_t bits(double value)
{
    return std::bit_cast<std::uint64_t>(value);
}

const struct {
    const char* why;
    std::string text;
    int want;
} ints[] = {
    {"nothing", "", 0},
    {"no digits", "TO", 0},
    {"every kind of leading white space", " \t\n\v\f\r7", 7},
    {"more zeros than any number has digits", std::string(400, '0') + "7", 7},
    {"no hexadecimal", "0x10", 0},
    {"a zero byte ends it", "12\0"s + "34", 12},
    {"a leading zero byte is no white space", "\0"s + "12", 0},
    {"other control characters are no white space", "\x08" + "5"s, 0},
    {"no white space in other code pages", "\xA0" + "5"s, 0},
    {"largest number", "2147483647", INT_MAX},
    {"smallest number", "-2147483648", INT_MIN},
    {"past 32 bits without a sign bit", "4294967297", INT_MAX},
    {"past 64 bits", "99999999999999999999", INT_MAX},
    {"past 64 bits below", "-99999999999999999999", INT_MIN},
    {"400 digits", std::string(400, '9'), INT_MAX},
};

TEST(ToInt, ReadsLeadingDigits)
{
    for (const auto& c : ints)
        EXPECT_EQ(to_int(c.text), c.want) << c.why;
}

TEST(ToInt, ReadsNothingPastTheEndOfTheText)
{
    const std::string_view longer = "12345";
    EXPECT_EQ(to_int(longer.substr(0, 2)), 12);
    EXPECT_EQ(to_int(longer.substr(2, 0)), 0);
}

const struct {
    const char* why;
    std::string text;
    double want;
} reals[] = {
    {"no digits", "KN", 0.0},
    {"every kind of leading white space", " \t\n\v\f\r7.5", 7.5},
    {"minus zero keeps its sign", "-0", -0.0},
    {"letters after are ignored", "2.5kN", 2.5},
    {"a zero byte ends it", "1.5\0"s + "7", 1.5},
    {"a zero byte after the point", "1.\0"s + "7", 1.0},
    {"no white space in other code pages", "\xA0" + "5"s, 0.0},

    {"no D exponents", "1D5", 1.0},

    {"no hexadecimal", "0x10", 0.0},
    {"no signed hexadecimal", "-0x1p4", -0.0},
    {"no infinity", "inf", 0.0},
    {"no negative infinity", "-inf", 0.0},
    {"no NaN", "nan", 0.0},
    {"no NaN with a payload", "-nan(1)", 0.0},

    {"largest double", "1.7976931348623157e308", largest},
    {"overflow clips", "1e309", largest},
    {"overflow below clips", "-1e309", -largest},
    {"just past the last double that rounds down", "1.7976931348623159e308", largest},
    {"a huge exponent", "1e99999999999999999999", largest},
    {"a huge exponent and a minus", "-3e99999999999999999999", -largest},
    {"a huge exponent and more text", "2e999999 4", largest},
    {"an exponent of 2 to the power of 63", "1e9223372036854775808", largest},
    {"an exponent of 2 to the power of 64 less 1", "1e18446744073709551615", largest},
    {"overflow without an exponent", "1" + std::string(400, '0'), largest},
    {"overflow of digits after a sign", "-" + std::string(400, '9'), -largest},

    {"smallest normal double", "2.2250738585072014e-308", std::numeric_limits<double>::min()},
    {"a number below it keeps what digits it can", "2.2250738585072011e-308", 0x0.fffffffffffffp-1022},
    {"smallest double", "5e-324", smallest},
    {"rounds up to it", "3e-324", smallest},
    {"rounds to it from above", "-7e-324", -smallest},
    {"underflow gives 0", "2e-324", 0.0},
    {"underflow keeps the sign", "-2e-324", -0.0},
    {"a far smaller number", "1e-400", 0.0},
    {"a huge negative exponent", "1e-99999999999999999999", 0.0},
    {"a huge negative exponent and a minus", "-1e-99999999999999999999", -0.0},
    {"underflow without an exponent", "0." + std::string(400, '0') + "1", 0.0},
    {"an exponent below all integers of 64 bits", "1e-9223372036854775809", 0.0},
    {"zero stays zero whatever the exponent", "0e99999999999999999999", 0.0},
    {"minus zero, too", "-0.00e999", -0.0},
    {"and with digits after the point", "0.000e400", 0.0},

    {"a second point ends it, and what is after has no exponent for it", "1" + std::string(400, '0') + ".5.3e-900",
     DBL_MAX},
    {"the same with a point in front", "1" + std::string(400, '0') + ".5e.3e-900", DBL_MAX},

    {"digits and exponent cancel", "1" + std::string(399, '0') + "e-399", 1.0},
    {"the other way round", "0." + std::string(399, '0') + "1e400", 1.0},
    {"zeros before the first digit cost nothing", std::string(400, '0') + "1.25", 1.25},
    {"zeros after the last digit cost nothing", "1.25" + std::string(400, '0'), 1.25},
    {"400 digits below one", "0." + std::string(400, '9'), 1.0},
    {"a third in 400 digits", "0." + std::string(400, '3'), 1.0 / 3.0},
    {"half way rounds to even", "9007199254740993", 9007199254740992.0},
    {"half way and nothing more", "9007199254740993." + std::string(383, '0'), 9007199254740992.0},
    {"digit 400 breaks the tie", "9007199254740993." + std::string(383, '0') + "1", 9007199254740994.0},
    {"half way between other neighbours", "9007199254740995", 9007199254740996.0},
};

TEST(ToReal, ReadsTheLeadingNumberToTheLastBit)
{
    for (const auto& c : reals)
        EXPECT_EQ(bits(to_real(c.text)), bits(c.want)) << c.why << ": " << to_real(c.text) << ", not " << c.want;
}

TEST(ParseNumber, SaysHowFarItReadAndWhetherItFitted)
{
    const number_parse<int> whole = parse_int(" -12;13");
    EXPECT_EQ(whole.size, 4U) << "white space and sign among them";
    EXPECT_TRUE(whole.is_number() && whole.fits);
    EXPECT_FALSE(parse_int(" -;").is_number());
    EXPECT_FALSE(parse_int("2147483648").fits);
    EXPECT_EQ(parse_int("99999999999999999999 1").size, 20U) << "all digits, past 64 bits, too";
    EXPECT_EQ(parse_real(" 1.5e3x").size, 6U);
    EXPECT_EQ(parse_real("1.5e+").size, 3U) << "an e without digits is no part of it";
    EXPECT_FALSE(parse_real("-.").is_number());
    EXPECT_FALSE(parse_real("1e309").fits);
    EXPECT_FALSE(parse_real("1e-400").fits) << "too small: 0";
    EXPECT_TRUE(parse_real("0e-400").fits);
}

TEST(ToReal, ReadsNothingPastTheEndOfTheText)
{
    const std::string_view longer = "1.25e3";
    EXPECT_EQ(to_real(longer.substr(0, 3)), 1.2);
    EXPECT_EQ(to_real(longer.substr(0, 5)), 1.25) << "an e without its digits";
    EXPECT_EQ(to_real(longer.substr(0, 0)), 0.0);
}

const struct {
    const char* why;
    double value;
    int want;
} truncations[] = {
    {"a whole number", 200.0, 200},
    {"toward zero, not to the nearest", 199.9, 199},
    {"toward zero from below", -199.9, -199},
    {"below one", 0.999, 0},
    {"above minus one", -0.999, 0},
    {"minus zero", -0.0, 0},
    {"smallest double", smallest, 0},
    {"largest integer", 2147483647.0, INT_MAX},
    {"its fraction is cut", 2147483647.9, INT_MAX},
    {"one more saturates", 2147483648.0, INT_MAX},
    {"smallest integer", -2147483648.0, INT_MIN},
    {"its fraction is cut, too", -2147483648.9, INT_MIN},
    {"one less saturates", -2147483649.0, INT_MIN},
    {"far above", 1e300, INT_MAX},
    {"far below", -1e300, INT_MIN},
    {"infinity", std::numeric_limits<double>::infinity(), INT_MAX},
    {"minus infinity", -std::numeric_limits<double>::infinity(), INT_MIN},
    {"not a number", std::numeric_limits<double>::quiet_NaN(), 0},
    {"not a number with a sign", -std::numeric_limits<double>::quiet_NaN(), 0},
};

TEST(TruncateToInt, GoesTowardZeroAndSaturates)
{
    for (const auto& c : truncations)
        EXPECT_EQ(truncate_to_int(c.value), c.want) << c.why;
}

} // namespace
} // namespace STAAD::detail
