#include "output/phrases.h"

#include "staad/text/ranges.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace tool {
namespace {

constexpr std::size_t most_storey_terms = 12;

/// Heights to the centimetre, or to the millimetre if they are not whole centimetres.
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
            text += fmt::format("{} x ", count);
        text += storey_metres(levels[first + 1] - levels[first]);
        first += count;
    }
    return text;
}

} // namespace

std::string count_of(std::size_t count, std::string_view noun)
{
    return fmt::format("{} {}{}", count, noun, count == 1 ? "" : "s");
}

std::string short_number(double number)
{
    return fmt::format("{:.7g}", number);
}

std::string fixed_number(double number, int digits)
{
    const std::string text = fmt::format("{:.{}f}", number, digits);
    const bool is_minus_zero = text.front() == '-' && text.find_first_not_of("-0.") == std::string::npos;
    return is_minus_zero ? text.substr(1) : text;
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
    const std::string base = storey_metres(levels.front());
    if (levels.size() == 1)
        return fmt::format("none (one level, at {} m)", base);
    return fmt::format("{} ({} m), base at {} m", levels.size() - 1, storey_terms(levels), base);
}

const char* load_type_word(STAAD::LoadCase::LoadType type) noexcept
{
    constexpr const char* words[] = {"unknown", "dead", "live", "wind", "seismic"};
    return words[type];
}

std::string run_list(const std::vector<int>& numbers)
{
    constexpr std::size_t most_runs = 10;
    constexpr std::size_t one_line = std::numeric_limits<std::size_t>::max();
    auto runs = STAAD::make_id_ranges(numbers);
    const bool is_cut = runs.size() > most_runs;
    if (is_cut)
        runs.resize(most_runs);
    return STAAD::format_id_ranges({}, runs, one_line) + (is_cut ? " ..." : "");
}

} // namespace tool
