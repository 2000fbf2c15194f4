// Sections with their members and dimensions, and the user tables behind some of them.

#include "model_summary.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <stdexcept>
#include <string_view>
#include <tuple>
#include <utility>

namespace tool {
namespace {

using STAAD::SdBeam;
using STAAD::SdReader;

/// The words of a text, blanks between them.
std::vector<std::string_view> words_of(std::string_view text)
{
    std::vector<std::string_view> words;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        if (end > 0)
            words.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return words;
}

bool is_number(std::string_view text, double& number)
{
    const std::from_chars_result end = std::from_chars(text.data(), text.data() + text.size(), number);
    return !text.empty() && end.ec == std::errc() && end.ptr == text.data() + text.size();
}

/// "500X300" as numbers; nothing unless every piece is one.
std::vector<double> numbers_between_x(std::string_view text)
{
    std::vector<double> numbers;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('X'), text.size());
        double number = 0.0;
        if (!is_number(text.substr(0, end), number))
            return {};
        numbers.push_back(number);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return numbers;
}

bool starts_with(std::string_view text, std::string_view head)
{
    return text.substr(0, head.size()) == head;
}

/// True if a "PRIS" property names nothing but depths and widths. Areas and inertias (AX, IZ) stand
/// in the section text like lengths, but are none.
bool has_only_lengths(std::string_view property)
{
    const std::vector<std::string_view> words = words_of(property);
    for (std::size_t i = 1; i < words.size(); i += 2) {
        const std::string_view name = words[i];
        if (name != "YD" && name != "ZD" && name != "YB" && name != "ZB")
            return false;
    }
    return true;
}

/// "TABLE ST PIP200X10": outer diameter and wall.
std::vector<double> pipe_dimensions(std::string_view text)
{
    for (const std::string_view word : words_of(text)) {
        if (starts_with(word, "PIP"))
            return numbers_between_x(word.substr(3));
    }
    return {};
}

std::vector<double> dimensions_in_text(const SdBeam& member)
{
    const std::string_view text = member.sect_text;
    if (starts_with(text, "TABLE"))
        return pipe_dimensions(text);
    if (starts_with(text, "TAPERED"))
        return numbers_between_x(text.substr(7));
    if (starts_with(text, "PRIS") && has_only_lengths(member.sect_name))
        return numbers_between_x(text.substr(4));
    return {};
}

const char* family_words(STAAD::UsrDefineSectionType family)
{
    constexpr const char* words[] = {"",     "wide flange", "channel", "angle",     "double angle", "tee",
                                     "pipe", "tube",        "general", "I section", "prismatic"};
    return words[family];
}

void look_up_in_table(const SdReader& model, section_summary& section)
{
    try {
        const auto [family, text] = model.GetSectionFromUsrTable(section.text);
        section.family = family_words(family);
        section.dimensions = numbers_between_x(text);
        if (text.empty())
            section.trouble = "not found in the user tables";
    } catch (const std::out_of_range&) {
        section.trouble = "its row is blank";
    }
}

section_summary describe_section(const SdReader& model, const SdBeam& member)
{
    section_summary section;
    section.country = member.sect_country;
    section.text = member.sect_text;
    if (starts_with(section.text, "UPTABLE"))
        look_up_in_table(model, section);
    else
        section.dimensions = dimensions_in_text(member);
    return section;
}

/// Rows that a section can name: one word, with a line of numbers after it. The lines of numbers
/// stand in the table as names, too, and are none.
std::size_t count_rows(const STAAD::SdUserSectionTable& table)
{
    const auto is_row = [](const auto& record) {
        const std::vector<std::string_view> numbers = words_of(record.second);
        double number = 0.0;
        return words_of(record.first).size() == 1 && !numbers.empty() && is_number(numbers.front(), number);
    };
    return static_cast<std::size_t>(std::count_if(table.records.begin(), table.records.end(), is_row));
}

} // namespace

void summarise_sections(const SdReader& model, model_summary& summary)
{
    std::map<std::pair<std::string_view, std::string_view>, section_summary> sections;
    for (const SdBeam& member : model.beams) {
        if (member.sect_text.empty() && member.sect_name.empty()) {
            ++summary.members_without_section;
            continue;
        }
        const auto [entry, is_new] = sections.try_emplace({member.sect_country, member.sect_text});
        if (is_new)
            entry->second = describe_section(model, member);
        ++entry->second.members;
    }
    for (auto& [key, section] : sections)
        summary.sections.push_back(std::move(section));
    for (const auto& [number, table] : model.usr_tables)
        summary.user_tables.push_back({number, table.type, table.unit, count_rows(table)});
}

} // namespace tool
