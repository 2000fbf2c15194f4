/// Numbers of any text against the C library, and reals of any bits written and read.

#include "fuzz/byte_reader.h"
#include "fuzz/fuzz_target.h"
#include "staad/text/number.h"
#include "staad/text/number_text.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <climits>
#include <cmath>
#include <limits>

namespace {

using namespace STAAD::detail;

bool is_any_of(std::string_view text, std::size_t at, std::string_view characters)
{
    return at < text.size() && characters.find(text[at]) != std::string_view::npos;
}

std::size_t past_all_of(std::string_view text, std::size_t at, std::string_view characters)
{
    while (is_any_of(text, at, characters))
        ++at;
    return at;
}

constexpr std::string_view digits = "0123456789";
constexpr std::string_view white_space = " \t\n\v\f\r";

/// The sign and digits at the front as a text of its own; no digits: empty.
std::string leading_integer(std::string_view text)
{
    const std::size_t begin = past_all_of(text, 0, white_space);
    const std::size_t first_digit = begin + (is_any_of(text, begin, "+-") ? 1 : 0);
    const std::size_t end = past_all_of(text, first_digit, digits);
    return std::string(text.substr(begin, end == first_digit ? 0 : end - begin));
}

/// The decimal number at the front: sign, digits with a point, exponent. Nothing that C would read as
/// hexadecimal, infinite or no number is left in it.
std::string leading_decimal(std::string_view text)
{
    const std::size_t begin = past_all_of(text, 0, white_space);
    const std::size_t whole = begin + (is_any_of(text, begin, "+-") ? 1 : 0);
    std::size_t end = past_all_of(text, whole, digits);
    std::size_t digit_count = end - whole;
    if (is_any_of(text, end, ".")) {
        const std::size_t fraction = end + 1;
        end = past_all_of(text, fraction, digits);
        digit_count += end - fraction;
    }
    if (digit_count == 0)
        return {};
    if (is_any_of(text, end, "eE")) {
        const std::size_t exponent = end + 1 + (is_any_of(text, end + 1, "+-") ? 1 : 0);
        const std::size_t past = past_all_of(text, exponent, digits);
        end = past == exponent ? end : past;
    }
    return std::string(text.substr(begin, end - begin));
}

int expected_int(std::string_view text)
{
    const std::string number = leading_integer(text);
    const long long value = std::strtoll(number.c_str(), nullptr, 10); // saturates, too
    return static_cast<int>(std::clamp<long long>(value, INT_MIN, INT_MAX));
}

double expected_real(std::string_view text)
{
    const std::string number = leading_decimal(text);
    const double value = std::strtod(number.c_str(), nullptr);
    return std::isinf(value) ? std::copysign(std::numeric_limits<double>::max(), value) : value;
}

std::string shown(double value)
{
    char text[64];
    static_cast<void>(std::snprintf(text, sizeof text, "%a", value));
    return text;
}

void check_reading(std::string_view text)
{
    fuzz::require(to_int(text) == expected_int(text), "integers are read as C reads them",
                  std::to_string(to_int(text)) + ", not " + std::to_string(expected_int(text)));
    const double read = to_real(text);
    const double expected = expected_real(text);
    fuzz::require(std::bit_cast<std::uint64_t>(read) == std::bit_cast<std::uint64_t>(expected),
                  "reals are read as C reads them", shown(read) + ", not " + shown(expected));
}

std::string printed(const char* form, double value)
{
    char text[512];
    static_cast<void>(std::snprintf(text, sizeof text, form, value));
    return text;
}

void check_writing(double value)
{
    if (!std::isfinite(value))
        return;
    fuzz::require(format_real(value) == printed("%g", value), "reals are written as C writes them", format_real(value));
    fuzz::require(format_six_places(value) == printed("%f", value), "decimals are written as C writes them",
                  format_six_places(value));
    const double again = to_real(printed("%.17g", value));
    fuzz::require(std::bit_cast<std::uint64_t>(again) == std::bit_cast<std::uint64_t>(value),
                  "seventeen digits give the real back", shown(value));
}

void check_truncation(double value)
{
    const double cut = std::isnan(value) ? 0.0 : std::clamp<double>(std::trunc(value), INT_MIN, INT_MAX);
    fuzz::require(truncate_to_int(value) == static_cast<int>(cut), "reals are cut toward zero", shown(value));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = fuzz::text_of(data, size);
    check_reading(text);
    const auto any = fuzz::byte_reader(text).take_bits<double>();
    check_writing(any);
    check_truncation(any);
    check_truncation(to_real(text));
    return 0;
}
