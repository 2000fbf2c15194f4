// The report of "info" for people.

#include "info/info_report.h"

#include "cli/text_encoding.h"
#include "info/structure_text.h"
#include "output/phrases.h"
#include "output/table.h"
#include "staad/query/lookup.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace tool {
namespace {

using STAAD::SdReader;

/// Longer texts of the file are cut: --json has them in full.
std::string shown(std::string_view text)
{
    return cell_text(text, "");
}

template<class Text>
std::string line(std::string_view name, const Text& text)
{
    return fmt::format("{}: {}\n", name, text);
}

/// A heading with the number of rows, and the rows.
void put_block(std_output& out, std::string_view name, const table& rows)
{
    out.put(line(name, rows.size() == 0 ? "none" : std::to_string(rows.size())));
    rows.put(out);
}

std::string units(const SdReader& model)
{
    return line("units", shown(model.unit_text)) +
           fmt::format("factors: length x {} (mm), force x {} (kN), moment x {} (kN*mm)\n",
                       short_number(model.length_factor), short_number(model.force_factor),
                       short_number(model.force_length_factor));
}

std::string members(const model_summary& summary)
{
    const auto of = [&summary](STAAD::BeamType type) { return summary.members_of[static_cast<std::size_t>(type)]; };
    return fmt::format("{} ({}, {}, {}, {})", summary.members, count_of(of(STAAD::Column), "column"),
                       count_of(of(STAAD::Beam), "beam"), count_of(of(STAAD::Brace), "brace"),
                       count_of(of(STAAD::HorizontalBrace), "horizontal brace"));
}

std::string extents_in_words(const model_summary& summary)
{
    if (summary.joints == 0)
        return "none";
    if (!summary.box.are_finite())
        return "not finite";
    // Plan as the file has it, X by Z.
    return fmt::format("plan {} m x {} m, height {} m", metres(summary.box.size(1)), metres(summary.box.size(0)),
                       metres(summary.box.size(2)));
}

std::string geometry(const model_summary& summary)
{
    return line("joints", summary.joints) + line("members", members(summary)) + line("elements", summary.elements) +
           line("surfaces", summary.surfaces) + line("extents", extents_in_words(summary)) +
           line("storeys", storeys_in_words(summary.levels));
}

std::string density(const SdReader& model, const model_summary& summary)
{
    const char* origin = summary.has_default_density ? " (default)" : " (as written after ISOTROPIC CONCRETE)";
    return line("concrete density", short_number(model.concrete_density) + origin);
}

std::string member_extras(const model_summary& summary)
{
    return line("offsets", count_of(summary.members_with_offsets, "member")) +
           line("beta angles", count_of(summary.members_with_beta, "member"));
}

/// Adds "9 joints" and, in another cell, "and 1 number without a joint" if there is such a number.
void add_numbers(std::vector<std::string>& row, const listed_numbers& numbers, std::string_view noun)
{
    row.push_back(count_of(numbers.known, noun));
    if (numbers.unknown == 0)
        return;
    const char* const article = noun == "element" ? "an" : "a";
    row.push_back(fmt::format("and {} without {} {}", count_of(numbers.unknown, "number"), article, noun));
}

void put_groups(std_output& out, const std::vector<group_summary>& groups)
{
    constexpr const char* nouns[] = {"joint", "member", "element"};
    table rows;
    for (const group_summary& group : groups) {
        std::vector<std::string> row = {shown(group.name), cell_text(group.kind, "(no kind)")};
        add_numbers(row, group.numbers, nouns[group.type]);
        rows.add_row(std::move(row));
    }
    put_block(out, "groups", rows);
}

void put_descriptions(std_output& out, std::string_view name, const std::vector<description_summary>& described,
                      std::string_view noun)
{
    table rows;
    for (const description_summary& each : described) {
        std::vector<std::string> row = {cell_text(each.description, "(no description)")};
        add_numbers(row, each.numbers, noun);
        rows.add_row(std::move(row));
    }
    put_block(out, name, rows);
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

void put_sections(std_output& out, const model_summary& summary)
{
    table rows;
    for (const section_summary& section : summary.sections)
        rows.add_row({cell_text(section.country, "(no code)"), cell_text(section.text, "(empty)"),
                      count_of(section.members, "member"), cell_text(dimensions(section), "")});
    put_block(out, "sections", rows);
    if (summary.members_without_section != 0)
        out.put(line("without section", count_of(summary.members_without_section, "member")));
}

void put_user_tables(std_output& out, const model_summary& summary)
{
    table rows;
    for (const user_table_summary& each : summary.user_tables)
        rows.add_row({std::to_string(each.number), cell_text(each.family, "(no family)"), count_of(each.rows, "row"),
                      shown(each.unit)});
    put_block(out, "user tables", rows);
}

std::string load_type(const load_case_summary& load_case)
{
    return load_case.type == STAAD::LoadCase::Unknown ? cell_text(load_case.type_text, "-")
                                                      : load_type_word(load_case.type);
}

/// "UNI" for "MEMBER LOAD UNI": most loads are member loads, and lines are short.
std::string short_kind(const std::string& kind)
{
    const std::string member_load = "MEMBER LOAD ";
    return cell_text(kind.rfind(member_load, 0) == 0 ? kind.substr(member_load.size()) : kind, "not understood");
}

std::string definitions(const load_case_summary& load_case)
{
    std::string text;
    for (const kind_count& each : load_case.definitions) {
        text += text.empty() ? "" : ", ";
        text += fmt::format("{} {}", each.count, short_kind(each.kind));
    }
    return text.empty() ? "no loads" : text;
}

std::string loaded(const load_case_summary& load_case)
{
    if (load_case.definitions.empty())
        return {};
    // Self weight needs no list: "0 members" would mean that nothing is loaded.
    const auto& kinds = load_case.definitions;
    if (load_case.members + load_case.joints == 0 && kinds.size() == 1 && kinds.front().kind == "SELFWEIGHT")
        return "-";
    return count_of(load_case.members, "member") + ", " + count_of(load_case.joints, "joint");
}

bool is_load_case_0(const load_case_summary& load_case)
{
    return load_case.number == 0;
}

void put_load_cases(std_output& out, const model_summary& summary)
{
    table rows({align::right});
    for (const load_case_summary& each : summary.load_cases)
        rows.add_row({std::to_string(each.number), load_type(each), cell_text(each.title, "-"), loaded(each),
                      cell_text(definitions(each), "")});
    put_block(out, "load cases", rows);
    if (std::any_of(summary.load_cases.begin(), summary.load_cases.end(), is_load_case_0))
        out.put(line("load case 0", "loads under headers without a number (LOAD R1) or with 0"));
}

void put_skipped(std_output& out, const model_summary& summary)
{
    table rows;
    std::size_t lines = 0;
    for (const skipped_summary& each : summary.skipped) {
        rows.add_row({shown(each.words), count_of(each.lines, "line")});
        lines += each.lines;
    }
    out.put(line("in the file, not in the model", lines == 0 ? "nothing" : count_of(lines, "line")));
    rows.put(out);
}

} // namespace

void put_info_text(std_output& out, const info_report& report)
{
    const opened_deck& opened = report.opened;
    const model_summary& summary = *report.summary;
    const structure_summary* const complete = report.complete;
    out.put(printable_name(opened.name) + '\n');
    if (complete != nullptr)
        put_structure_head(out, *complete);
    else
        out.put(units(opened.model));
    out.put(geometry(summary));
    if (complete != nullptr && !complete->structure->solids.empty())
        out.put(line("solids", complete->structure->solids.size()));
    if (complete == nullptr)
        out.put(density(opened.model, summary));
    out.put(member_extras(summary));
    put_groups(out, complete != nullptr ? complete->groups : summary.groups);
    if (complete != nullptr)
        put_structure_supports(out, *complete);
    else
        put_descriptions(out, "supports", summary.supports, "joint");
    put_descriptions(out, "releases", summary.releases, "member");
    put_sections(out, summary);
    put_user_tables(out, summary);
    if (complete != nullptr) {
        put_structure_materials(out, *complete);
        put_structure_loads(out, *complete);
        put_structure_asides(out, *complete);
    } else {
        put_load_cases(out, summary);
        put_skipped(out, summary);
    }
}

std::string info_line(const opened_deck& opened)
{
    if (!opened.was_read)
        return fmt::format("{}: error: {}\n", printable_name(opened.name), printable_text(first_error(opened.report)));
    const SdReader& model = opened.model;
    const std::size_t load_cases = opened.structure ? opened.structure->load_cases.size() : model.load_cases.size();
    return fmt::format("{}: {}, {}, {}, {}, {}\n", printable_name(opened.name), count_of(model.nodes.size(), "joint"),
                       count_of(model.beams.size(), "member"), count_of(STAAD::element_count(model), "element"),
                       count_of(model.surfaces.size(), "surface"), count_of(load_cases, "load case"));
}

} // namespace tool
