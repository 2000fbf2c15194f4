// The report of "forces" for spreadsheets. No cell needs quotes: all are numbers and fixed words.

#include "forces/force_selection.h"
#include "forces/force_tables.h"
#include "forces/forces_report.h"
#include "output/phrases.h"

#include <fmt/format.h>

#include <string>
#include <string_view>

namespace tool {
namespace {

/// `first` and the columns of a station.
void put_header(std_output& out, std::string_view first)
{
    out.put(first);
    for (const force_column& column : force_columns) {
        out.put(',');
        out.put(column.key);
    }
    out.put('\n');
}

/// `first` and the numbers of a station, as the fewest digits that read back to the same bits.
void put_row(std_output& out, std::string_view first, const STAAD::ForcePoint& point)
{
    out.put(first);
    for (const force_column& column : force_columns)
        out.put(fmt::format(",{}", point.*column.value));
    out.put('\n');
}

/// Empty for a load case that the model does not have.
std::string_view load_type(const STAAD::SdReader& model, int load_case)
{
    const auto found = model.load_cases.find(load_case);
    return found == model.load_cases.end() ? std::string_view() : load_type_word(found->second.load_type());
}

void put_stations(std_output& out, const STAAD::SdReader& model)
{
    put_header(out, "member,load_case,load_type");
    each_record(model, [&](int member, int load_case, const STAAD::BeamLoadCaseRecord& record) {
        const std::string first = fmt::format("{},{},{}", member, load_case, load_type(model, load_case));
        for (const STAAD::ForcePoint& point : record.points)
            put_row(out, first, point);
    });
}

void put_extremes(std_output& out, const STAAD::SdReader& model)
{
    out.put("component,unit,extreme,value,member,load_case,position_mm\n");
    for (const force_extreme& each : find_extremes(model))
        out.put(fmt::format("{},{},{},{},{},{},{}\n", each.component->name, each.component->unit, each.word(),
                            each.value, each.member, each.load_case, each.position));
}

void put_list(std_output& out, const member_list& list)
{
    for (std::size_t i = 0; i < list.stations.size(); ++i) {
        for (std::size_t kind = 0; kind < std::size(list_kinds); ++kind) {
            const list_kind& of = list_kinds[kind];
            if (list.cases[kind])
                put_row(out, fmt::format("{},{},{},{}", list.member, i + 1, load_type_word(of.type), *list.cases[kind]),
                        list.stations[i].*of.point);
        }
    }
}

void put_lists(std_output& out, const STAAD::SdReader& model)
{
    put_header(out, "member,station,load_type,load_case");
    for (const auto& [position, forces] : model.beam_forces)
        put_list(out, list_of(model, forces));
}

} // namespace

void put_forces_csv(std_output& out, const forces_report& report)
{
    const STAAD::SdReader& model = report.model.model;
    switch (report.view) {
    case forces_view::stations:
        put_stations(out, model);
        break;
    case forces_view::extremes:
        put_extremes(out, model);
        break;
    case forces_view::lists:
        put_lists(out, model);
        break;
    }
}

} // namespace tool
