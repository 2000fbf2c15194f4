// The report of "forces" for programs: numbers exact, written member by member.

#include "forces/force_selection.h"
#include "forces/force_tables.h"
#include "forces/forces_report.h"
#include "output/json_writer.h"
#include "output/phrases.h"

#include <string>
#include <vector>

namespace tool {
namespace {

/// A station under the names and units of its columns.
struct station_item {
    STAAD::ForcePoint point;
};

template<class Visit>
void each_field(const station_item& item, Visit visit)
{
    for (const force_column& column : force_columns)
        visit(column.key, item.point.*column.value);
}

struct record_item {
    int member;
    int load_case;
    const STAAD::BeamLoadCaseRecord* record;
};

template<class Visit>
void each_field(const record_item& item, Visit visit)
{
    std::vector<station_item> stations;
    for (const STAAD::ForcePoint& point : item.record->points)
        stations.push_back({point});
    visit("member", item.member);
    visit("load_case", item.load_case);
    visit("stations", stations);
}

std::vector<record_item> records_of(const STAAD::SdReader& model)
{
    std::vector<record_item> items;
    each_record(model, [&items](int member, int load_case, const STAAD::BeamLoadCaseRecord& record) {
        items.push_back({member, load_case, &record});
    });
    return items;
}

struct extreme_item {
    force_extreme extreme;
};

template<class Visit>
void each_field(const extreme_item& item, Visit visit)
{
    const force_extreme& extreme = item.extreme;
    visit("component", std::string(extreme.component->name));
    visit("unit", std::string(extreme.component->unit));
    visit("extreme", std::string(extreme.word()));
    visit("value", extreme.value);
    visit("member", extreme.member);
    visit("load_case", extreme.load_case);
    visit(position_column.key, extreme.position);
}

std::vector<extreme_item> extremes_of(const STAAD::SdReader& model)
{
    std::vector<extreme_item> items;
    for (const force_extreme& extreme : find_extremes(model))
        items.push_back({extreme});
    return items;
}

/// The load cases of the four kinds.
struct list_cases_item {
    const member_list* list;
};

template<class Visit>
void each_field(const list_cases_item& item, Visit visit)
{
    for (std::size_t i = 0; i < std::size(list_kinds); ++i)
        visit(load_type_word(list_kinds[i].type), item.list->cases[i]);
}

struct list_station_item {
    const STAAD::BeamLoadList* station;
};

template<class Visit>
void each_field(const list_station_item& item, Visit visit)
{
    for (const list_kind& kind : list_kinds)
        visit(load_type_word(kind.type), station_item{item.station->*kind.point});
}

/// A member whose list is made when it is written.
struct list_item {
    const STAAD::SdReader* model;
    const STAAD::BeamForceAndMOM* forces;
};

template<class Visit>
void each_field(const list_item& item, Visit visit)
{
    const member_list list = list_of(*item.model, *item.forces);
    std::vector<list_station_item> stations;
    for (const STAAD::BeamLoadList& station : list.stations)
        stations.push_back({&station});
    visit("member", list.member);
    visit("load_cases", list_cases_item{&list});
    visit("stations", stations);
}

std::vector<list_item> lists_of(const STAAD::SdReader& model)
{
    std::vector<list_item> items;
    for (const auto& [position, forces] : model.beam_forces)
        items.push_back({&model, &forces});
    return items;
}

struct case_item {
    const force_case_summary* summary;
};

template<class Visit>
void each_field(const case_item& item, Visit visit)
{
    const force_case_summary& summary = *item.summary;
    std::optional<std::string> type;
    std::optional<std::string> title;
    if (summary.of_model) {
        type = load_type_word(summary.of_model->load_type());
        title = summary.of_model->title;
    }
    visit("number", summary.number);
    visit("type", type);
    visit("title", title);
    visit("members", summary.members);
}

std::vector<case_item> cases_of(const force_summary& summary)
{
    std::vector<case_item> items;
    for (const force_case_summary& each : summary.cases)
        items.push_back({&each});
    return items;
}

template<class Visit>
void visit_view(const forces_report& report, Visit& visit)
{
    const STAAD::SdReader& model = report.model.model;
    switch (report.view) {
    case forces_view::stations:
        visit("forces", records_of(model));
        break;
    case forces_view::extremes:
        visit("extremes", extremes_of(model));
        break;
    case forces_view::lists:
        visit("lists", lists_of(model));
        break;
    }
}

struct document_item {
    const forces_report* content;
};

template<class Visit>
void each_field(const document_item& item, Visit visit)
{
    const forces_report& report = *item.content;
    const force_summary& summary = report.summary;
    visit("model", report.model.name);
    visit("listing", report.listing.name);
    visit("was_read", report.listing.was_read);
    if (report.listing.was_read) {
        visit("sections", summary.section_count);
        visit("members", summary.members);
        visit("members_in_model", summary.members_in_model);
        visit("unknown_member_lines", summary.unknown_member_lines);
        visit("load_cases", cases_of(summary));
        visit("stations", summary.stations);
        visit_view(report, visit);
    }
    visit("model_findings", report.model.report.findings);
    visit("listing_findings", report.listing.report.findings);
}

} // namespace

void put_forces_json(std_output& out, const forces_report& report)
{
    json_writer(out).document(document_item{&report});
}

} // namespace tool
