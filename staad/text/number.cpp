#include "staad/text/number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <system_error>

namespace STAAD {
namespace {

bool is_digit(char c) noexcept
{
    return c >= '0' && c <= '9';
}

bool is_white_space(char c) noexcept
{
    return c == ' ' || (c >= '\t' && c <= '\r'); // \t \n \v \f \r
}

std::string_view skip_white_space(std::string_view text) noexcept
{
    while (!text.empty() && is_white_space(text.front()))
        text.remove_prefix(1);
    return text;
}

/// Takes a sign off the front; true if it was a minus.
bool take_sign(std::string_view& text) noexcept
{
    if (text.empty() || (text.front() != '-' && text.front() != '+'))
        return false;
    const bool negative = text.front() == '-';
    text.remove_prefix(1);
    return negative;
}

/// from_chars also reads "inf" and "nan", which are never numbers in a deck.
bool begins_a_decimal(std::string_view text) noexcept
{
    if (!text.empty() && text.front() == '.')
        text.remove_prefix(1);
    return !text.empty() && is_digit(text.front());
}

/// The exponent of ten written after the mantissa, which ends at `end`; 0 if there is none.
std::int64_t written_exponent(std::string_view text, std::size_t end) noexcept
{
    if (end >= text.size() || (text[end] != 'e' && text[end] != 'E'))
        return 0;
    text.remove_prefix(end + 1);
    const bool negative = take_sign(text);
    constexpr std::int64_t enough = std::int64_t{1} << 56; // past any length of mantissa
    std::int64_t exponent = 0;
    for (; !text.empty() && is_digit(text.front()); text.remove_prefix(1))
        exponent = std::min(exponent * 10 + (text.front() - '0'), enough);
    return negative ? -exponent : exponent;
}

/// Of a decimal that no double holds: whether it is too large, not too small. The place of its first
/// digit other than 0 decides.
bool is_too_large(std::string_view text) noexcept
{
    constexpr const char* digits = "0123456789";
    const std::size_t point = std::min(text.find_first_not_of(digits), text.size());
    const bool has_point = point < text.size() && text[point] == '.';
    const std::size_t end = has_point ? std::min(text.find_first_not_of(digits, point + 1), text.size()) : point;
    const std::string_view mantissa = text.substr(0, end);
    const std::size_t leading = mantissa.find_first_not_of("0.");
    if (leading == std::string_view::npos)
        return false;
    const auto power = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(leading);
    return power + written_exponent(text, end) > 0;
}

number_parse<double> magnitude(std::string_view text) noexcept
{
    number_parse<double> parsed;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), parsed.value);
    parsed.size = static_cast<std::size_t>(result.ptr - text.data());
    const bool out_of_range = result.ec == std::errc::result_out_of_range;
    parsed.fits = !out_of_range && !std::isinf(parsed.value);
    if (std::isinf(parsed.value) || (out_of_range && is_too_large(text)))
        parsed.value = std::numeric_limits<double>::max();
    else if (out_of_range)
        parsed.value = 0.0;
    return parsed;
}

} // namespace

number_parse<int> parse_int(std::string_view text) noexcept
{
    const std::size_t whole_size = text.size();
    text = skip_white_space(text);
    const bool negative = take_sign(text);
    if (text.empty() || !is_digit(text.front()))
        return {};
    std::int64_t value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range)
        value = std::numeric_limits<std::int64_t>::max();
    value = negative ? -value : value;
    constexpr std::int64_t lowest = std::numeric_limits<int>::min();
    constexpr std::int64_t highest = std::numeric_limits<int>::max();
    const auto left = static_cast<std::size_t>(text.data() + text.size() - result.ptr);
    return {static_cast<int>(std::clamp(value, lowest, highest)), whole_size - left,
            value >= lowest && value <= highest};
}

number_parse<double> parse_real(std::string_view text) noexcept
{
    const std::size_t whole_size = text.size();
    text = skip_white_space(text);
    const bool negative = take_sign(text);
    if (!begins_a_decimal(text))
        return {};
    number_parse<double> parsed = magnitude(text);
    parsed.size += whole_size - text.size();
    if (negative)
        parsed.value = -parsed.value;
    return parsed;
}

int detail::truncate_to_int(double value) noexcept
{
    if (std::isnan(value))
        return 0;
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, lowest, highest));
}

} // namespace STAAD
