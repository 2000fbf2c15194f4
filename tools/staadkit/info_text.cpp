#include "info_text.h"

#include "text_encoding.h"
#include "words.h"

#include <algorithm>
#include <string_view>

namespace tool {
namespace {

using STAAD::SdReader;
using table_rows = std::vector<std::vector<std::string>>;

std::string shown_or(std::string_view text, const char* instead)
{
    return text.empty() ? instead : printable_text(text);
}

std::string line(std::string_view name, const std::string& text)
{
    return std::string(name) + ": " + text + '\n';
}

/// A heading with the number of rows, and the rows.
std::string block(std::string_view name, const table_rows& rows)
{
    return line(name, rows.empty() ? "none" : std::to_string(rows.size())) + aligned_rows(rows);
}

std::string units(const SdReader& model)
{
    return line("units", printable_text(model.unit_text)) +
           line("factors", "length x " + short_number(model.length_factor) + " (mm), force x " +
                               short_number(model.force_factor) + " (kN), moment x " +
                               short_number(model.force_length_factor) + " (kN*mm)");
}

std::string members(const model_summary& summary)
{
    const auto of = [&summary](STAAD::BeamType type) { return summary.members_of[static_cast<std::size_t>(type)]; };
    return std::to_string(summary.members) + " (" + count_of(of(STAAD::Column), "column") + ", " +
           count_of(of(STAAD::Beam), "beam") + ", " + count_of(of(STAAD::Brace), "brace") + ", " +
           count_of(of(STAAD::HorizontalBrace), "horizontal brace") + ")";
}

std::string extents_in_words(const model_summary& summary)
{
    if (summary.joints == 0)
        return "none";
    // Plan as the file has it, X by Z.
    return "plan " + metres(summary.box.size(1)) + " m x " + metres(summary.box.size(0)) + " m, height " +
           metres(summary.box.size(2)) + " m";
}

std::string geometry(const model_summary& summary)
{
    return line("joints", std::to_string(summary.joints)) + line("members", members(summary)) +
           line("shells", count_of(summary.elements, "element")) + line("surfaces", std::to_string(summary.surfaces)) +
           line("extents", extents_in_words(summary)) + line("storeys", storeys_in_words(summary.levels));
}

std::string member_extras(const SdReader& model, const model_summary& summary)
{
    return line("concrete density", short_number(model.concrete_density) + " (in the units of the file)") +
           line("offsets", count_of(summary.members_with_offsets, "member")) +
           line("beta angles", count_of(summary.members_with_beta, "member"));
}

std::string groups(const SdReader& model)
{
    constexpr const char* nouns[] = {"joint", "member", "element"};
    table_rows rows;
    for (const STAAD::SdGroup& group : model.groups)
        rows.push_back({printable_text(group.name), shown_or(group.kind, "(no kind)"),
                        count_of(group.ids.size(), nouns[group.GetIdType()])});
    return block("groups", rows);
}

std::string descriptions(std::string_view name, const std::vector<description_summary>& described, const char* noun)
{
    table_rows rows;
    for (const description_summary& each : described) {
        rows.push_back({shown_or(each.description, "(no description)"), count_of(each.count, noun)});
        if (each.unknown != 0)
            rows.back().push_back("and " + count_of(each.unknown, "number") + " without a " + noun);
    }
    return block(name, rows);
}

std::string dimensions(const section_summary& section)
{
    std::string size;
    for (const double dimension : section.dimensions)
        size += (size.empty() ? "" : " x ") + short_number(dimension);
    std::string text = section.family;
    if (!size.empty())
        text += (text.empty() ? "" : " ") + size + " mm";
    if (!section.trouble.empty())
        text += (text.empty() ? "" : ": ") + section.trouble;
    return text;
}

std::string sections(const model_summary& summary)
{
    table_rows rows;
    for (const section_summary& section : summary.sections)
        rows.push_back({shown_or(section.country, "(no code)"), shown_or(section.text, "(empty)"),
                        count_of(section.members, "member"), dimensions(section)});
    std::string text = block("sections", rows);
    if (summary.members_without_section != 0)
        text += line("without section", count_of(summary.members_without_section, "member"));
    return text;
}

std::string user_tables(const model_summary& summary)
{
    table_rows rows;
    for (const user_table_summary& table : summary.user_tables)
        rows.push_back({std::to_string(table.number), shown_or(table.family, "(no family)"),
                        count_of(table.rows, "row"), printable_text(table.unit)});
    return block("user tables", rows);
}

std::string load_type(const load_case_summary& load_case)
{
    constexpr const char* words[] = {"", "dead", "live", "wind", "seismic"};
    return load_case.type == STAAD::LoadCase::Unknown ? shown_or(load_case.type_text, "-") : words[load_case.type];
}

/// "UNI" for "MEMBER LOAD UNI": most loads are member loads, and a line has only so much room.
std::string short_kind(const std::string& kind)
{
    const std::string member_load = "MEMBER LOAD ";
    return shown_or(kind.rfind(member_load, 0) == 0 ? kind.substr(member_load.size()) : kind, "not understood");
}

std::string definitions(const load_case_summary& load_case)
{
    std::string text;
    for (const kind_count& each : load_case.definitions) {
        text += text.empty() ? "" : ", ";
        text += std::to_string(each.count) + ' ' + short_kind(each.kind);
    }
    return text.empty() ? "no definitions" : text;
}

std::string loaded(const load_case_summary& load_case)
{
    if (load_case.definitions.empty())
        return {};
    return count_of(load_case.members, "member") + ", " + count_of(load_case.joints, "joint");
}

std::string load_cases(const model_summary& summary)
{
    table_rows rows;
    for (const load_case_summary& each : summary.load_cases)
        rows.push_back(
            {std::to_string(each.number), load_type(each), shown_or(each.title, "-"), loaded(each), definitions(each)});
    return block("load cases", rows);
}

std::string skipped(const model_summary& summary)
{
    table_rows rows;
    std::size_t lines = 0;
    for (const skipped_summary& each : summary.skipped) {
        rows.push_back({printable_text(each.words), count_of(each.lines, "line")});
        lines += each.lines;
    }
    return line("in the file, not in the model", lines == 0 ? "nothing" : count_of(lines, "line")) + aligned_rows(rows);
}

} // namespace

std::string full_report(const opened_model& opened, const model_summary& summary)
{
    return opened.name + '\n' + units(opened.model) + geometry(summary) + member_extras(opened.model, summary) +
           groups(opened.model) + descriptions("supports", summary.supports, "joint") +
           descriptions("releases", summary.releases, "member") + sections(summary) + user_tables(summary) +
           load_cases(summary) + skipped(summary);
}

std::string one_line_report(const opened_model& opened)
{
    if (!opened.was_read)
        return opened.name + ": error: " + printable_text(first_error(opened.report)) + '\n';
    const SdReader& model = opened.model;
    const std::size_t surfaces = model.surfaces.size();
    return opened.name + ": " + count_of(model.nodes.size(), "joint") + ", " + count_of(model.beams.size(), "member") +
           ", " + count_of(model.shells.size() - std::min(model.shells.size(), surfaces), "element") + ", " +
           count_of(surfaces, "surface") + ", " + count_of(model.load_cases.size(), "load case") + '\n';
}

} // namespace tool
