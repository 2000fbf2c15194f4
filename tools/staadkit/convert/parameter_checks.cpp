#include "convert/parameter_checks.h"

#include "cli/text_encoding.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tool {
namespace {

using STAAD::Finding;

void warn(STAAD::ReadReport& report, std::string code, std::string text)
{
    report.findings.push_back({Finding::Warning, std::move(code), 0, 0, std::move(text)});
}

std::string length_in_words(const std::string& name, std::size_t length)
{
    return name + " has " + std::to_string(length);
}

// The texts that have a number in the written file, in UTF-8.
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
void check_word(const char* field, const std::string& gbk, const std::string_view (&known)[Count], const char* line,
                STAAD::ReadReport& report)
{
    const auto is_it = [&gbk](std::string_view word) { return gbk_from_utf8(word) == gbk; };
    if (gbk.empty() || std::any_of(std::begin(known), std::end(known), is_it))
        return;
    std::string words;
    for (const std::string_view word : known)
        words.append(words.empty() ? "" : ", ").append(word);
    warn(report, "field-word", std::string(field) + " is none of " + words + ": no " + line + " line is written");
}

struct spectrum {
    std::string axis; ///< the end of the names of its fields
    const std::string& title;
    const std::vector<double>& values;
};

/// Why a spectrum that has a title is not written; empty if it is.
std::string why_left_out(const STAAD::SeismicParam& record, const spectrum& each)
{
    if (each.axis == "y" && !record.y_freedom)
        return "y_freedom is false";
    const std::size_t periods = record.periods.size();
    const std::size_t values = each.values.size();
    if (record.point_number >= 0 && static_cast<std::size_t>(record.point_number) == periods && periods == values)
        return {};
    return "point_number is " + std::to_string(record.point_number) + ", " + length_in_words("periods", periods) +
           " values, " + length_in_words("spectrum_" + each.axis, values);
}

void check_spectrum(const STAAD::SeismicParam& record, const spectrum& each, STAAD::ReadReport& report)
{
    std::string why = "spectrum_title_" + each.axis + " is empty";
    if (!each.title.empty())
        why = why_left_out(record, each);
    else if (each.values.empty())
        return; // not wanted
    if (!why.empty())
        warn(report, "spectrum", "the spectrum of " + each.axis + " is not written: " + why);
}

} // namespace

void check_parameters(const STAAD::WindLoadParam& record, STAAD::ReadReport& report)
{
    const auto& profiles = record.intensities;
    const auto differs = [&](const std::vector<double>& profile) { return profile.size() != record.heights.size(); };
    const auto first = std::find_if(profiles.begin(), profiles.end(), differs);
    if (first == profiles.end())
        return;
    const std::string name = "intensities[" + std::to_string(first - profiles.begin()) + ']';
    Finding finding{Finding::Warning, "list-length", 0, 0, {}};
    finding.text = length_in_words("heights", record.heights.size()) + " values, " +
                   length_in_words(name, first->size()) + ": the profile is written so";
    finding.count = static_cast<std::size_t>(std::count_if(first, profiles.end(), differs));
    report.findings.push_back(std::move(finding));
}

void check_parameters(const STAAD::SeismicParam& record, STAAD::ReadReport& report)
{
    check_word("eq_type", record.eq_type, earthquake_types, "EQ TYPE", report);
    check_word("eq_group", record.eq_group, design_groups, "EQ GROUP", report);
    const std::size_t shortest = std::min(record.loadno.size(), record.loadno_factor.size());
    if (record.loadno_count < 0 || static_cast<std::size_t>(record.loadno_count) > shortest ||
        record.loadno.size() != record.loadno_factor.size())
        warn(report, "list-length",
             "loadno_count is " + std::to_string(record.loadno_count) + ", " +
                 length_in_words("loadno", record.loadno.size()) + " numbers, " +
                 length_in_words("loadno_factor", record.loadno_factor.size()) + ": the smallest counts");
    check_spectrum(record, {"x", record.spectrum_title_x, record.spectrum_x}, report);
    check_spectrum(record, {"y", record.spectrum_title_y, record.spectrum_y}, report);
    check_spectrum(record, {"z", record.spectrum_title_z, record.spectrum_z}, report);
}

} // namespace tool
