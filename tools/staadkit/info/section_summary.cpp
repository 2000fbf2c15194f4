// Sections with their members and dimensions, and the user tables that some of them name.

#include "info/model_summary.h"
#include "staad/text/number.h"
#include "staad/text/split_string.h"

#include <algorithm>
#include <map>
#include <stdexcept>
#include <string_view>
#include <tuple>
#include <utility>

namespace tool {
namespace {

using STAAD::SdBeam;
using STAAD::SdReader;

bool is_number(const std::string& word)
{
    return STAAD::parse_real(word).is_all_of(word);
}

/// "500X300" as numbers; empty unless every piece is one.
std::vector<double> numbers_between_x(const std::string& text)
{
    std::vector<double> numbers;
    for (const std::string& piece : STAAD::SplitString(text, "X")) {
        const auto parsed = STAAD::parse_real(piece);
        if (!parsed.is_all_of(piece))
            return {};
        numbers.push_back(parsed.value);
    }
    return numbers;
}

/// True if a "PRIS" property names nothing but depths and widths. Areas and inertias (AX, IZ) look like lengths
/// in the section text.
bool has_only_lengths(const std::string& property)
{
    const std::vector<std::string> words = STAAD::SplitString(property, " ");
    for (std::size_t i = 1; i < words.size(); i += 2) {
        const std::string& name = words[i];
        if (name != "YD" && name != "ZD" && name != "YB" && name != "ZB")
            return false;
    }
    return true;
}

/// True if the numbers in a section text are lengths in mm, made from what the property says. In names of a
/// catalogue (PIP1270, PIPX40) they have the meaning that the catalogue gives them.
bool has_dimensions(const SdBeam& member)
{
    const std::string_view text = member.sect_text;
    if (text.starts_with("PRIS"))
        return has_only_lengths(member.sect_name);
    if (text.starts_with("TABLE"))
        return member.sect_name.find("PIPE OD ") != std::string::npos;
    return text.starts_with("TAPERED");
}

/// The dimensions in a text such as "PRIS500X300" or "TABLE ST PIP200X10".
std::vector<double> dimensions_in(const std::string& text)
{
    for (const char* head : {"PRIS", "TAPERED", " PIP"}) {
        const std::size_t position = text.find(head);
        if (position != std::string::npos)
            return numbers_between_x(text.substr(position + std::string_view(head).size()));
    }
    return {};
}

/// False for families whose rows hold areas and inertias, which are not in mm.
bool is_of_lengths(STAAD::UsrDefineSectionType family)
{
    return family != STAAD::General && family != STAAD::Prismatic;
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
        if (is_of_lengths(family))
            section.dimensions = numbers_between_x(text);
        if (text.empty())
            section.trouble = "not found in the user tables";
    } catch (const std::out_of_range&) {
        section.trouble = "its row is blank";
    }
}

section_summary describe_section(const SdReader& model, const SdBeam& member, bool with_dimensions)
{
    section_summary section;
    section.country = member.sect_country;
    section.text = member.sect_text;
    if (section.text.starts_with("UPTABLE"))
        look_up_in_table(model, section);
    else if (with_dimensions)
        section.dimensions = dimensions_in(section.text);
    return section;
}

bool is_one_name(const std::vector<std::string>& words)
{
    return words.size() == 1 && !is_number(words.front());
}

bool begins_with_number(const std::vector<std::string>& words)
{
    return !words.empty() && is_number(words.front());
}

/// Rows that a section can name: one word, with a line of numbers after it. The lines of numbers are names in
/// the table too, and are not counted, not even those of a single number.
std::size_t count_rows(const STAAD::SdUserSectionTable& table)
{
    const auto is_row = [](const auto& record) {
        return is_one_name(STAAD::SplitString(record.first, " ")) &&
               begins_with_number(STAAD::SplitString(record.second, "X "));
    };
    return static_cast<std::size_t>(std::count_if(table.records.begin(), table.records.end(), is_row));
}

} // namespace

void summarise_sections(const SdReader& model, model_summary& summary)
{
    // Different properties may have the same text, which is one of lengths for some of them only.
    std::map<std::tuple<std::string_view, std::string_view, bool>, section_summary> sections;
    for (const SdBeam& member : model.beams) {
        if (member.sect_text.empty() && member.sect_name.empty()) {
            ++summary.members_without_section;
            continue;
        }
        const bool with_dimensions = has_dimensions(member);
        const auto [entry, is_new] = sections.try_emplace({member.sect_country, member.sect_text, with_dimensions});
        if (is_new)
            entry->second = describe_section(model, member, with_dimensions);
        ++entry->second.members;
    }
    for (auto& [key, section] : sections)
        summary.sections.push_back(std::move(section));
    for (const auto& [number, table] : model.usr_tables)
        summary.user_tables.push_back({number, table.type, table.unit, count_rows(table)});
}

} // namespace tool
