// The report of "forces" for spreadsheets. No cell needs quotes: all are numbers and words of ours.

#include "forces/force_selection.h"
#include "forces/force_tables.h"
#include "forces/forces_report.h"
#include "output/phrases.h"

#include <charconv>
#include <initializer_list>
#include <string>
#include <string_view>

namespace tool {
namespace {

/// The fewest digits that read back to the same bits.
std::string exact_number(double number)
{
    char digits[32];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, number);
    return {digits, end.ptr};
}

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

void put_row(std_output& out, std::initializer_list<std::string_view> first, const STAAD::ForcePoint& point)
{
    for (const std::string_view cell : first) {
        out.put(cell);
        out.put(',');
    }
    for (const force_column& column : force_columns) {
        out.put(exact_number(point.*column.value));
        out.put(&column == &force_columns[std::size(force_columns) - 1] ? '\n' : ',');
    }
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
        const std::string member_text = std::to_string(member);
        const std::string case_text = std::to_string(load_case);
        for (const STAAD::ForcePoint& point : record.points)
            put_row(out, {member_text, case_text, load_type(model, load_case)}, point);
    });
}

void put_extremes(std_output& out, const STAAD::SdReader& model)
{
    out.put("component,unit,extreme,value,member,load_case,position_mm\n");
    for (const force_extreme& each : find_extremes(model))
        out.put(std::string(each.component->name) + ',' + each.component->unit + ',' + each.word() + ',' +
                exact_number(each.value) + ',' + std::to_string(each.member) + ',' + std::to_string(each.load_case) +
                ',' + exact_number(each.position) + '\n');
}

void put_list(std_output& out, const member_list& list)
{
    const std::string member = std::to_string(list.member);
    for (std::size_t i = 0; i < list.stations.size(); ++i) {
        const std::string station = std::to_string(i + 1);
        for (std::size_t kind = 0; kind < std::size(list_kinds); ++kind) {
            if (list.cases[kind])
                put_row(out,
                        {member, station, load_type_word(list_kinds[kind].type), std::to_string(*list.cases[kind])},
                        list.stations[i].*list_kinds[kind].point);
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
