#include "output/phrases.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace tool {
namespace {

constexpr std::size_t most_storey_terms = 12;

/// Heights to the centimetre, to the millimetre where that matters.
std::string storey_metres(double length)
{
    return fixed_number(length / 1000.0, std::fmod(length, 10.0) == 0.0 ? 2 : 3);
}

/// How many storeys from `first` on, level by level, are as high as the first.
std::size_t equal_storeys(const std::vector<double>& levels, std::size_t first)
{
    const double height = levels[first + 1] - levels[first];
    std::size_t count = 1;
    while (first + count + 1 < levels.size() && levels[first + count + 1] - levels[first + count] == height)
        ++count;
    return count;
}

std::string storey_terms(const std::vector<double>& levels)
{
    std::string text;
    std::size_t terms = 0;
    for (std::size_t first = 0; first + 1 < levels.size(); ++terms) {
        text += terms == 0 ? "" : " + ";
        if (terms == most_storey_terms)
            return text + "...";
        const std::size_t count = equal_storeys(levels, first);
        if (count > 1)
            text += std::to_string(count) + " x ";
        text += storey_metres(levels[first + 1] - levels[first]);
        first += count;
    }
    return text;
}

} // namespace

std::string count_of(std::size_t count, std::string_view noun)
{
    std::string text = std::to_string(count) + ' ';
    text += noun;
    if (count != 1)
        text += 's';
    return text;
}

std::string short_number(double number)
{
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, number, std::chars_format::general, 7);
    return {digits, end.ptr};
}

std::string fixed_number(double number, int digits)
{
    char text[400]; // the largest double has 309 digits before the point
    const auto end = std::to_chars(text, text + sizeof text, number, std::chars_format::fixed, digits);
    const std::string_view written(text, static_cast<std::size_t>(end.ptr - text));
    const bool is_minus_zero = written.front() == '-' && written.find_first_not_of("-0.") == std::string_view::npos;
    return std::string(is_minus_zero ? written.substr(1) : written);
}

std::string metres(double length)
{
    std::string text = fixed_number(length / 1000.0, 2);
    if (text.back() == '0')
        text.pop_back();
    return text;
}

std::string storeys_in_words(const std::vector<double>& levels)
{
    if (levels.empty())
        return "none (no upright and no level member)";
    if (!std::all_of(levels.begin(), levels.end(), [](double level) { return std::isfinite(level); }))
        return "not finite";
    if (levels.size() == 1)
        return "none (one level, at " + storey_metres(levels.front()) + " m)";
    return std::to_string(levels.size() - 1) + " (" + storey_terms(levels) + " m), base at " +
           storey_metres(levels.front()) + " m";
}

const char* load_type_word(STAAD::LoadCase::LoadType type) noexcept
{
    constexpr const char* words[] = {"unknown", "dead", "live", "wind", "seismic"};
    return words[type];
}

} // namespace tool
