/// Numbers of random texts against the C library, which reads them the same way in the "C" locale.

#include "staad/text/number.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <utility>

namespace STAAD::detail {
namespace {

class random_text {
public:
    explicit random_text(unsigned seed) : engine_(seed) {}

    int from_to(int first, int last) { return std::uniform_int_distribution<int>(first, last)(engine_); }

    std::string digits(int count)
    {
        std::string text;
        for (int i = 0; i < count; ++i)
            text.push_back(static_cast<char>('0' + from_to(0, 9)));
        return text;
    }

    std::string sign()
    {
        static constexpr const char* signs[] = {"", "", "-", "+"};
        return signs[from_to(0, 3)];
    }

    /// Sign, digits, perhaps a point and an exponent: at least one digit.
    std::string real()
    {
        const int most_digits = from_to(0, 20) == 0 ? 400 : 20;
        std::string text = sign() + digits(from_to(1, most_digits));
        if (from_to(0, 2) != 0)
            text.insert(static_cast<std::size_t>(from_to(0, static_cast<int>(text.size()))), ".");
        // A point before the sign would read as no number at all.
        if (text[0] == '.' && (text[1] == '-' || text[1] == '+'))
            std::swap(text[0], text[1]);
        if (from_to(0, 1) == 0)
            text += (from_to(0, 1) == 0 ? "e" : "E") + sign() + std::to_string(from_to(0, 345));
        return text;
    }

private:
    std::mt19937 engine_;
};

/// The C library's answer, overflow clipped.
double reference(const std::string& text)
{
    const double value = std::strtod(text.c_str(), nullptr);
    return std::isinf(value) ? std::copysign(std::numeric_limits<double>::max(), value) : value;
}

TEST(ToReal, AgreesWithTheCLibraryOnPlainDecimals)
{
    ASSERT_STREQ(std::localeconv()->decimal_point, ".");
    random_text random(20260217);
    for (int i = 0; i < 200000; ++i) {
        const std::string text = random.real();
        ASSERT_EQ(std::bit_cast<std::uint64_t>(to_real(text)), std::bit_cast<std::uint64_t>(reference(text))) << text;
    }
}

TEST(ToReal, ReadsBackEveryDoubleWrittenWithSeventeenDigits)
{
    std::mt19937_64 engine(7);
    for (int i = 0; i < 100000; ++i) {
        const double value = std::bit_cast<double>(engine());
        if (!std::isfinite(value))
            continue;
        char text[40];
        std::snprintf(text, sizeof text, "%.17g", value);
        ASSERT_EQ(std::bit_cast<std::uint64_t>(to_real(text)), std::bit_cast<std::uint64_t>(value)) << text;
    }
}

TEST(ToInt, AgreesWithTheCLibraryOnDecimalDigits)
{
    random_text random(42);
    for (int i = 0; i < 100000; ++i) {
        const std::string text = random.sign() + random.digits(random.from_to(1, 12)) + " ";
        const long long value = std::strtoll(text.c_str(), nullptr, 10);
        const long long clipped = std::min<long long>(std::max<long long>(value, std::numeric_limits<int>::min()),
                                                      std::numeric_limits<int>::max());
        ASSERT_EQ(to_int(text), clipped) << text;
    }
}

} // namespace
} // namespace STAAD::detail
