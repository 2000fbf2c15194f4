// Values that a parameter file must not have although their types are right, and values that will not be
// written.

#include "convert/parameter_file.h"

#include "cli/messages.h"
#include "cli/text_encoding.h"
#include "output/phrases.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

namespace tool {
namespace {

using STAAD::FindingCode;
using STAAD::ReadReport;

std::string element(const std::string& list, std::ptrdiff_t index)
{
    return fmt::format("{}[{}]", list, index);
}

/// Reports the first of the `values` that is below 0.
void check_not_negative(const std::string& list, const std::vector<double>& values, ReadReport& report)
{
    const auto is_negative = [](double value) { return value < 0; };
    const auto first = std::find_if(values.begin(), values.end(), is_negative);
    if (first != values.end())
        add_finding(report, FindingCode::field_value,
                    fmt::format("field {} must not be negative", element(list, first - values.begin())), 0,
                    static_cast<std::size_t>(std::count_if(first, values.end(), is_negative)));
}

void check_rising(const std::string& list, const std::vector<double>& values, ReadReport& report)
{
    const auto falls = [](double value, double next) { return next <= value; };
    const auto first = std::adjacent_find(values.begin(), values.end(), falls);
    if (first == values.end())
        return;
    const std::ptrdiff_t index = first - values.begin();
    add_finding(report, FindingCode::field_value,
                fmt::format("field {} must be more than {}", element(list, index + 1), element(list, index)));
}

void check_length(const std::string& list, std::size_t length, const char* count_name, long long count,
                  ReadReport& report)
{
    if (std::cmp_not_equal(length, count))
        add_finding(report, FindingCode::list_length,
                    fmt::format("field {} has {}, {} is {}", list, count_of(length, "value"), count_name, count));
}

// The words that a field may have, in UTF-8. An empty text is allowed.
constexpr std::string_view terrain_categories[] = {
    "A", "B", "C", "D", "A\xE7\xB1\xBB", "B\xE7\xB1\xBB", "C\xE7\xB1\xBB", "D\xE7\xB1\xBB", // "class" after the letter
};
constexpr std::string_view earthquake_types[] = {
    "\xE8\xBF\x9C",             // far
    "\xE8\xBF\x91",             // near
    "\xE5\xA4\x9A\xE9\x81\x87", // frequent
    "\xE7\xBD\x95\xE9\x81\x87", // rare
};
constexpr std::string_view design_groups[] = {
    "\xE7\xAC\xAC\xE4\xB8\x80\xE7\xBB\x84", // first
    "\xE7\xAC\xAC\xE4\xBA\x8C\xE7\xBB\x84", // second
    "\xE7\xAC\xAC\xE4\xB8\x89\xE7\xBB\x84", // third
};

template<std::size_t Count>
void check_word(const char* field, const std::string& gbk, const std::string_view (&known)[Count], ReadReport& report)
{
    const auto is_it = [&gbk](std::string_view word) { return gbk_from_utf8(word) == gbk; };
    if (gbk.empty() || std::any_of(std::begin(known), std::end(known), is_it))
        return;
    std::string words;
    for (const std::string_view word : known)
        words.append(words.empty() ? "" : ", ").append(word);
    add_finding(report, FindingCode::field_value, fmt::format("field {} must be one of {}", field, words));
}

void check_intensity(int intensity, ReadReport& report)
{
    constexpr int not_given = 0;
    constexpr int lowest = 6;
    constexpr int highest = 9;
    if (intensity != not_given && (intensity < lowest || intensity > highest))
        add_finding(report, FindingCode::field_value, "field eq_intensity must be 6, 7, 8 or 9, or 0 for none");
}

/// Each profile has a value for each height.
void check_profiles(const STAAD::WindLoadParam& wind, ReadReport& report)
{
    const auto& profiles = wind.intensities;
    const auto differs = [&](const std::vector<double>& profile) { return profile.size() != wind.heights.size(); };
    const auto first = std::find_if(profiles.begin(), profiles.end(), differs);
    if (first != profiles.end())
        add_finding(report, FindingCode::list_length,
                    fmt::format("field {} has {}, heights has {}", element("intensities", first - profiles.begin()),
                                count_of(first->size(), "value"), wind.heights.size()),
                    0, static_cast<std::size_t>(std::count_if(first, profiles.end(), differs)));
    for (std::size_t i = 0; i < profiles.size(); ++i)
        check_not_negative(element("intensities", static_cast<std::ptrdiff_t>(i)), profiles[i], report);
}

struct spectrum {
    const char* axis; ///< the last letter of its fields' names
    const std::string& title;
    const std::vector<double>& values;
    bool has_freedom; ///< without it no spectrum is written
};

void check_spectrum(int point_number, const spectrum& each, ReadReport& report)
{
    const std::string axis = each.axis;
    const bool has_title = !each.title.empty();
    if (!each.values.empty() || (has_title && each.has_freedom))
        check_length("spectrum_" + axis, each.values.size(), "point_number", point_number, report);
    std::string why;
    if (has_title && !each.has_freedom)
        why = "y_freedom is false";
    else if (!has_title && !each.values.empty())
        why = "spectrum_title_" + axis + " is empty";
    if (!why.empty())
        add_finding(report, FindingCode::spectrum, fmt::format("the spectrum of {} is not written: {}", axis, why));
}

} // namespace

void check_parameters(const STAAD::WindLoadParam& wind, ReadReport& report)
{
    if (wind.base_press < 0)
        add_finding(report, FindingCode::field_value, "field base_press must not be negative");
    check_word("soil_type", wind.soil_type, terrain_categories, report);
    check_length("heights", wind.heights.size(), "intensity_number", wind.intensity_number, report);
    check_rising("heights", wind.heights, report);
    check_profiles(wind, report);
}

void check_parameters(const STAAD::SeismicParam& seismic, ReadReport& report)
{
    check_word("eq_type", seismic.eq_type, earthquake_types, report);
    check_intensity(seismic.eq_intensity, report);
    check_word("eq_group", seismic.eq_group, design_groups, report);
    check_length("loadno", seismic.loadno.size(), "loadno_count", seismic.loadno_count, report);
    check_length("loadno_factor", seismic.loadno_factor.size(), "loadno_count", seismic.loadno_count, report);
    const int points = seismic.point_number;
    check_length("periods", seismic.periods.size(), "point_number", points, report);
    check_spectrum(points, {"x", seismic.spectrum_title_x, seismic.spectrum_x, true}, report);
    check_spectrum(points, {"y", seismic.spectrum_title_y, seismic.spectrum_y, seismic.y_freedom}, report);
    check_spectrum(points, {"z", seismic.spectrum_title_z, seismic.spectrum_z, true}, report);
}

} // namespace tool
