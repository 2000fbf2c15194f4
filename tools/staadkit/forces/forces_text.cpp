// The report of "forces" for people.

#include "cli/text_encoding.h"
#include "forces/force_selection.h"
#include "forces/force_tables.h"
#include "forces/forces_report.h"
#include "output/phrases.h"
#include "output/table.h"

#include <fmt/format.h>

#include <cmath>
#include <string>
#include <string_view>
#include <vector>

namespace tool {
namespace {

constexpr std::size_t most_sections = 10;

/// Longer titles are cut: --json has the findings, the model has the titles.
std::string shown(std::string_view text)
{
    return cell_text(text, "");
}

/// With the decimals of the column; a number too large for it with a power of ten.
std::string table_number(double number, const force_column& column)
{
    constexpr double too_large = 1e9;
    return std::abs(number) < too_large ? fixed_number(number, column.decimals) : short_number(number);
}

const STAAD::LoadCase* find_case(const STAAD::SdReader& model, int number)
{
    const auto found = model.load_cases.find(number);
    return found != model.load_cases.end() ? &found->second : nullptr;
}

/// "dead", or as the file has it; empty if it has none.
std::string type_in_words(const STAAD::LoadCase& load_case)
{
    const STAAD::LoadCase::LoadType type = load_case.load_type();
    return type == STAAD::LoadCase::Unknown ? shown(load_case.type_text) : load_type_word(type);
}

constexpr const char* not_in_model = "not in the model";

/// ": dead, DEAD", to be put after the number of a load case.
std::string case_in_words(const STAAD::LoadCase* load_case)
{
    if (load_case == nullptr)
        return fmt::format(" ({})", not_in_model);
    const std::string type = type_in_words(*load_case);
    const std::string title = shown(load_case->title);
    const char* const between = type.empty() || title.empty() ? "" : ", ";
    return type.empty() && title.empty() ? std::string() : fmt::format(": {}{}{}", type, between, title);
}

void put_sections(std_output& out, const force_summary& summary)
{
    out.put(fmt::format("sections: {}\n", summary.section_count));
    table rows;
    std::size_t shown_sections = 0;
    for (const STAAD::Finding& section : summary.sections) {
        if (rows.size() == most_sections || section.count != 1)
            break;
        rows.add_row({fmt::format("line {}", section.first_line), shown(section.text)});
        ++shown_sections;
    }
    rows.put(out);
    if (shown_sections < summary.section_count)
        out.put(fmt::format("  and {} more\n", summary.section_count - shown_sections));
}

std::string members_in_words(const force_summary& summary)
{
    const std::string skipped = summary.unknown_member_lines == 0
                                    ? ""
                                    : fmt::format("; {} in the listing only, skipped", summary.unknown_member_lines);
    return fmt::format("members: {} of the {} in the model{}\n", summary.members, summary.members_in_model, skipped);
}

void put_cases(std_output& out, const force_summary& summary)
{
    out.put(fmt::format("load cases: {}\n", summary.cases.size()));
    table rows({align::right});
    for (const force_case_summary& each : summary.cases) {
        const bool is_known = each.of_model.has_value();
        const std::string type = is_known ? type_in_words(*each.of_model) : "-";
        const std::string title = is_known ? shown(each.of_model->title) : not_in_model;
        rows.add_row({std::to_string(each.number), type.empty() ? "-" : type, title.empty() ? "-" : title,
                      count_of(each.members, "member")});
    }
    rows.put(out);
}

void put_shown(std_output& out, const STAAD::SdReader& model)
{
    const force_summary shown = summarise_forces(model, {});
    out.put(fmt::format("shown: {}, {}, {}\n", count_of(shown.members, "member"),
                        count_of(shown.cases.size(), "load case"), count_of(shown.stations, "station")));
}

void put_summary(std_output& out, const forces_report& report)
{
    out.put(fmt::format("{}, forces of {}\n", printable_name(report.listing.name), printable_name(report.model.name)));
    put_sections(out, report.summary);
    out.put(members_in_words(report.summary));
    put_cases(out, report.summary);
    out.put(fmt::format("stations: {}\n", report.summary.stations));
    if (report.is_selection)
        put_shown(out, report.model.model);
    out.put("units: mm from the member's start, kN, kN*mm\n"
            "columns: forces F1 F2 F3, moments M1 M2 M3 in the order of the listing; axes are not turned\n");
}

/// Rows of names, units and numbers, aligned to the right.
class station_table {
public:
    station_table() : rows_(std::vector<align>(std::size(force_columns), align::right))
    {
        std::vector<std::string> names;
        std::vector<std::string> units;
        for (const force_column& column : force_columns) {
            names.emplace_back(column.name);
            units.emplace_back(column.unit);
        }
        rows_.add_heading(std::move(names));
        rows_.add_heading(std::move(units));
    }

    void add(const STAAD::ForcePoint& point)
    {
        std::vector<std::string> cells;
        for (const force_column& column : force_columns)
            cells.push_back(table_number(point.*column.value, column));
        rows_.add_row(std::move(cells));
    }

    void put(std_output& out) const { rows_.put(out); }

private:
    table rows_;
};

void put_record(std_output& out, const STAAD::SdReader& model, int member, int load_case,
                const STAAD::BeamLoadCaseRecord& record)
{
    out.put(
        fmt::format("\nMember {}, load case {}{}\n", member, load_case, case_in_words(find_case(model, load_case))));
    station_table rows;
    for (const STAAD::ForcePoint& point : record.points)
        rows.add(point);
    rows.put(out);
}

void put_stations(std_output& out, const STAAD::SdReader& model)
{
    for (const auto& [position, forces] : model.beam_forces) {
        const int member = member_number(model, forces);
        if (forces.records.empty())
            out.put(fmt::format("\nMember {}: no load case\n", member));
        for (const auto& [load_case, record] : forces.records)
            put_record(out, model, member, load_case, record);
    }
}

void put_extremes(std_output& out, const STAAD::SdReader& model)
{
    const std::vector<force_extreme> extremes = find_extremes(model);
    out.put(extremes.empty() ? "\nExtremes: none\n" : "\nExtremes\n");
    if (extremes.empty())
        return;
    const align left = align::left;
    const align right = align::right;
    table rows({left, left, right, left, right, right, right});
    rows.add_heading({"", "", "value", "unit", "member", "load case", "position, mm"});
    for (const force_extreme& each : extremes)
        rows.add_row({each.component->name, each.word(), table_number(each.value, *each.component),
                      each.component->unit, std::to_string(each.member), std::to_string(each.load_case),
                      table_number(each.position, position_column)});
    rows.put(out);
}

std::string title_of(const STAAD::SdReader& model, int load_case)
{
    const STAAD::LoadCase* const found = find_case(model, load_case);
    return found == nullptr || found->title.empty() ? std::string() : fmt::format(", {}", shown(found->title));
}

void put_list(std_output& out, const STAAD::SdReader& model, const member_list& list)
{
    const std::string member = fmt::format("\nMember {}", list.member);
    if (list.stations.empty()) {
        out.put(member + ": no list, as no dead, live, wind or seismic load case has two stations\n");
        return;
    }
    for (std::size_t i = 0; i < std::size(list_kinds); ++i) {
        const std::string heading = fmt::format("{}, {}: ", member, load_type_word(list_kinds[i].type));
        if (!list.cases[i]) {
            out.put(heading + "none, all zeros\n");
            continue;
        }
        out.put(fmt::format("{}load case {}{}\n", heading, *list.cases[i], title_of(model, *list.cases[i])));
        station_table rows;
        for (const STAAD::BeamLoadList& station : list.stations)
            rows.add(station.*list_kinds[i].point);
        rows.put(out);
    }
}

} // namespace

void put_forces_text(std_output& out, const forces_report& report)
{
    const STAAD::SdReader& model = report.model.model;
    put_summary(out, report);
    switch (report.view) {
    case forces_view::stations:
        put_stations(out, model);
        break;
    case forces_view::extremes:
        put_extremes(out, model);
        break;
    case forces_view::lists:
        for (const auto& [position, forces] : model.beam_forces)
            put_list(out, model, list_of(model, forces));
        break;
    }
}

} // namespace tool
