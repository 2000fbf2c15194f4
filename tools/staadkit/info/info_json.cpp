// The report of "info" for programs: numbers not rounded, texts in full.

#include "info/info_report.h"
#include "output/json_writer.h"
#include "output/phrases.h"

#include <array>
#include <optional>
#include <vector>

namespace tool {

template<class Visit>
void each_field(const section_summary& section, Visit visit)
{
    visit("code", section.country);
    visit("text", section.text);
    visit("members", section.members);
    visit("family", section.family);
    visit("dimensions_mm", section.dimensions);
    visit("trouble", section.trouble);
}

template<class Visit>
void each_field(const user_table_summary& table, Visit visit)
{
    visit("number", table.number);
    visit("family", table.family);
    visit("unit", table.unit);
    visit("rows", table.rows);
}

template<class Visit>
void each_field(const group_summary& group, Visit visit)
{
    constexpr const char* counted[] = {"joints", "members", "elements"};
    visit("name", group.name);
    visit("kind", group.kind);
    visit(counted[group.type], group.numbers.known);
    visit("unknown_numbers", group.numbers.unknown);
}

template<class Visit>
void each_field(const kind_count& definitions, Visit visit)
{
    visit("kind", definitions.kind);
    visit("count", definitions.count);
}

template<class Visit>
void each_field(const load_case_summary& load_case, Visit visit)
{
    visit("number", load_case.number);
    visit("type", std::string(load_type_word(load_case.type)));
    visit("type_text", load_case.type_text);
    visit("title", load_case.title);
    visit("definitions", load_case.definitions);
    visit("members_loaded", load_case.members);
    visit("joints_loaded", load_case.joints);
}

template<class Visit>
void each_field(const skipped_summary& skipped, Visit visit)
{
    visit("words", skipped.words);
    visit("lines", skipped.lines);
}

namespace {

struct units_item {
    const STAAD::SdReader& model;
};

template<class Visit>
void each_field(const units_item& item, Visit visit)
{
    visit("text", item.model.unit_text);
    visit("length_factor", item.model.length_factor);
    visit("force_factor", item.model.force_factor);
    visit("force_length_factor", item.model.force_length_factor);
}

struct members_item {
    const model_summary& summary;
};

template<class Visit>
void each_field(const members_item& item, Visit visit)
{
    visit("total", item.summary.members);
    visit_kinds(item.summary.members_of, visit);
    visit("with_offsets", item.summary.members_with_offsets);
    visit("with_beta", item.summary.members_with_beta);
    visit("without_section", item.summary.members_without_section);
}

struct extents_item {
    extents box;
};

template<class Visit>
void each_field(const extents_item& item, Visit visit)
{
    const auto range = [&item](std::size_t axis) { return std::array{item.box.low[axis], item.box.high[axis]}; };
    visit("file_x", range(1));
    visit("file_z", range(0));
    visit("height", range(2));
}

struct storeys_item {
    const std::vector<double>& levels;
};

template<class Visit>
void each_field(const storeys_item& item, Visit visit)
{
    std::vector<double> heights;
    for (std::size_t i = 1; i < item.levels.size(); ++i)
        heights.push_back(item.levels[i] - item.levels[i - 1]);
    visit("levels_mm", item.levels);
    visit("heights_mm", heights);
}

/// Supports or releases.
struct description_item {
    const description_summary* summary;
    const char* counted;
};

template<class Visit>
void each_field(const description_item& item, Visit visit)
{
    visit("description", item.summary->description);
    visit(item.counted, item.summary->numbers.known);
    visit("unknown_numbers", item.summary->numbers.unknown);
}

std::vector<description_item> items_of(const std::vector<description_summary>& described, const char* counted)
{
    std::vector<description_item> items;
    items.reserve(described.size());
    for (const description_summary& each : described)
        items.push_back({&each, counted});
    return items;
}

template<class Visit>
void visit_model(const STAAD::SdReader& model, const model_summary& summary, Visit& visit)
{
    std::optional<extents_item> box;
    if (summary.joints != 0)
        box = extents_item{summary.box};
    visit("units", units_item{model});
    visit("joints", summary.joints);
    visit("members", members_item{summary});
    visit("elements", summary.elements);
    visit("surfaces", summary.surfaces);
    visit("extents_mm", box);
    visit("storeys", storeys_item{summary.levels});
    visit("concrete_density", model.concrete_density);
    visit("concrete_density_is_default", summary.has_default_density);
    visit("groups", summary.groups);
    visit("supports", items_of(summary.supports, "joints"));
    visit("releases", items_of(summary.releases, "members"));
    visit("sections", summary.sections);
    visit("user_tables", summary.user_tables);
    visit("load_cases", summary.load_cases);
    visit("not_in_the_model", summary.skipped);
}

struct document_item {
    const info_report& report;
};

template<class Visit>
void each_field(const document_item& item, Visit visit)
{
    const opened_model& opened = item.report.opened;
    visit("file", opened.name);
    visit("was_read", opened.was_read);
    if (item.report.summary != nullptr)
        visit_model(opened.model, *item.report.summary, visit);
    visit("findings", opened.report.findings);
}

} // namespace

void put_info_json(std_output& out, const info_report& report)
{
    json_writer(out).document(document_item{report});
}

void add_info_json(json_array& array, const info_report& report)
{
    array.add(document_item{report});
}

} // namespace tool
