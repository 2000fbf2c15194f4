// Sections, user tables and materials that the analysis program cannot read from the written file.

#include "convert/conversion_notes.h"
#include "output/phrases.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <set>
#include <utility>

namespace tool {
namespace {

using STAAD::FindingCode;
using STAAD::SdBeam;
using STAAD::SdReader;
using STAAD::SdUserSectionTable;

/// True if the written text of the section no longer names its dimensions, or has nothing else: PRIS YD 0.5 ZD
/// 0.3 becomes PRIS500X300.
bool has_lost_names(const SdBeam& member)
{
    const bool is_pipe = member.sect_text.starts_with("TABLE") && member.sect_text != member.sect_name;
    return is_pipe || member.sect_name.starts_with("PRIS") || member.sect_name.starts_with("TAPERED");
}

line_pattern property_line(const SdBeam& member)
{
    return {.block = "MEMBER PROPERTY", .end = ' ' + member.sect_text};
}

template<class Matches>
void note_property(const SdReader& model, FindingCode code, const char* before, const char* after, Matches matches,
                   conversion_notes& notes)
{
    const auto first = std::find_if(model.beams.begin(), model.beams.end(), matches);
    if (first == model.beams.end())
        return;
    const auto count = static_cast<std::size_t>(std::count_if(first, model.beams.end(), matches));
    notes.push_back({code, fmt::format("{}{}{}", before, count_of(count, "member"), after), property_line(*first)});
}

/// The first few of many, joined by commas.
std::string shortened(const std::vector<std::string>& names)
{
    constexpr std::size_t most_named = 4;
    std::string text;
    for (std::size_t i = 0; i < std::min(names.size(), most_named); ++i)
        text += (i == 0 ? "" : ", ") + names[i];
    return names.size() > most_named ? text + ", ..." : text;
}

/// The text without the mark of a table that has no UNIT line.
std::string_view without_mark(std::string_view text)
{
    constexpr std::string_view mark = "00";
    return text.substr(text.starts_with(mark) ? mark.size() : 0);
}

/// Tables that get another family, because the family follows from the number of the table.
std::vector<std::string> changed_families(const SdReader& model)
{
    std::vector<std::string> changes;
    for (const auto& [number, table] : model.usr_tables) {
        SdUserSectionTable written = table;
        if (number >= STAAD::WideFlange && number <= STAAD::Prismatic)
            written.SetType(static_cast<STAAD::UsrDefineSectionType>(number));
        if (written.type != without_mark(table.type))
            changes.push_back(fmt::format("TABLE {} is {} and was {}", number, written.type, table.type));
    }
    return changes;
}

/// Tables whose numbers are in other units than those of the written UNIT line.
std::vector<std::string> lost_units(const SdReader& model)
{
    const SdUserSectionTable in_metres;
    std::vector<std::string> losses;
    for (const auto& [number, table] : model.usr_tables) {
        if (without_mark(table.unit) != in_metres.unit)
            losses.push_back(fmt::format("TABLE {} has lost its {}", number, table.unit));
    }
    return losses;
}

/// A line of numbers among the names of the rows, if a table has any.
line_pattern table_line(const SdReader& model)
{
    for (const auto& [number, table] : model.usr_tables) {
        if (!table.records.empty())
            return {.block = "START USER TABLE", .begin = table.records.begin()->first};
    }
    return {.block = "START USER TABLE"};
}

void note_user_tables(const SdReader& model, conversion_notes& notes)
{
    if (model.usr_tables.empty())
        return;
    std::string text = "user tables cannot be read: rows are sorted, lines of numbers stand among their names";
    for (const std::vector<std::string>& changes : {changed_families(model), lost_units(model)}) {
        if (!changes.empty())
            text += "; " + shortened(changes);
    }
    notes.push_back({FindingCode::user_tables, std::move(text), table_line(model)});
}

constexpr const char* no_name = "(no name)";

/// True for the materials that every written file defines.
bool is_in_library(const std::string& material)
{
    constexpr const char* names[] = {"STEEL", "C1", "CONCRETE", "STAINLESSSTEEL", "ALUMINUM"};
    return std::any_of(std::begin(names), std::end(names), [&](const char* name) { return material == name; });
}

std::set<std::string> unknown_materials(const SdReader& model)
{
    std::set<std::string> names;
    const auto look_at = [&](const auto& records) {
        for (const auto& record : records) {
            if (!is_in_library(record.material))
                names.insert(record.material.empty() ? no_name : record.material);
        }
    };
    look_at(model.beams);
    look_at(model.shells);
    return names;
}

void note_materials(const SdReader& model, conversion_notes& notes)
{
    const std::set<std::string> names = unknown_materials(model);
    if (names.empty())
        return;
    std::string text = "not in the material library that is written: " + shortened({names.begin(), names.end()});
    const std::string first = *names.begin() == no_name ? "" : *names.begin();
    notes.push_back(
        {FindingCode::materials, std::move(text), {.block = "CONSTANTS", .begin = "MATERIAL " + first + ' '}});
}

} // namespace

void note_sections(const SdReader& model, conversion_notes& notes)
{
    note_property(model, FindingCode::sections, "sections of ", " are bare mm, which the analysis program cannot read",
                  has_lost_names, notes);
    note_property(
        model, FindingCode::no_section, "the list of ", " without a section has nothing after it",
        [](const SdBeam& member) { return member.sect_text.empty() && member.sect_name.empty(); }, notes);
    note_user_tables(model, notes);
    note_materials(model, notes);
}

} // namespace tool
