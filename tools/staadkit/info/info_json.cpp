#include "info/info_json.h"

#include "cli/messages.h"
#include "cli/text_encoding.h"
#include "info/load_words.h"

namespace tool {
namespace {

using json = nlohmann::ordered_json;

json findings(const STAAD::ReadReport& report)
{
    json list = json::array();
    for (const STAAD::Finding& finding : report.findings)
        list.push_back({{"severity", severity_word(finding.severity)},
                        {"code", finding.code},
                        {"first_line", finding.first_line},
                        {"last_line", finding.last_line},
                        {"text", utf8_text(finding.text)},
                        {"count", finding.count}});
    return list;
}

json units(const STAAD::SdReader& model)
{
    return {{"text", utf8_text(model.unit_text)},
            {"length_factor", model.length_factor},
            {"force_factor", model.force_factor},
            {"force_length_factor", model.force_length_factor}};
}

json members(const model_summary& summary)
{
    const auto of = [&summary](STAAD::BeamType type) { return summary.members_of[static_cast<std::size_t>(type)]; };
    return {{"total", summary.members},
            {"columns", of(STAAD::Column)},
            {"beams", of(STAAD::Beam)},
            {"braces", of(STAAD::Brace)},
            {"horizontal_braces", of(STAAD::HorizontalBrace)},
            {"with_offsets", summary.members_with_offsets},
            {"with_beta", summary.members_with_beta},
            {"without_section", summary.members_without_section}};
}

json extents_mm(const model_summary& summary)
{
    if (summary.joints == 0)
        return nullptr;
    const extents& box = summary.box;
    return {{"file_x", {box.low[1], box.high[1]}},
            {"file_z", {box.low[0], box.high[0]}},
            {"height", {box.low[2], box.high[2]}}};
}

json storeys(const model_summary& summary)
{
    json heights = json::array();
    for (std::size_t i = 1; i < summary.levels.size(); ++i)
        heights.push_back(summary.levels[i] - summary.levels[i - 1]);
    return {{"levels_mm", summary.levels}, {"heights_mm", std::move(heights)}};
}

json groups(const model_summary& summary)
{
    constexpr const char* counted[] = {"joints", "members", "elements"};
    json list = json::array();
    for (const group_summary& group : summary.groups)
        list.push_back({{"name", utf8_text(group.name)},
                        {"kind", utf8_text(group.kind)},
                        {counted[group.type], group.numbers.known},
                        {"unknown_numbers", group.numbers.unknown}});
    return list;
}

json descriptions(const std::vector<description_summary>& described, const char* counted)
{
    json list = json::array();
    for (const description_summary& each : described)
        list.push_back({{"description", utf8_text(each.description)},
                        {counted, each.numbers.known},
                        {"unknown_numbers", each.numbers.unknown}});
    return list;
}

json sections(const model_summary& summary)
{
    json list = json::array();
    for (const section_summary& section : summary.sections)
        list.push_back({{"code", utf8_text(section.country)},
                        {"text", utf8_text(section.text)},
                        {"members", section.members},
                        {"family", section.family},
                        {"dimensions_mm", section.dimensions},
                        {"trouble", section.trouble}});
    return list;
}

json user_tables(const model_summary& summary)
{
    json list = json::array();
    for (const user_table_summary& table : summary.user_tables)
        list.push_back({{"number", table.number},
                        {"family", utf8_text(table.family)},
                        {"unit", utf8_text(table.unit)},
                        {"rows", table.rows}});
    return list;
}

json load_case(const load_case_summary& summary)
{
    json definitions = json::array();
    for (const kind_count& each : summary.definitions)
        definitions.push_back({{"kind", utf8_text(each.kind)}, {"count", each.count}});
    return {{"number", summary.number},
            {"type", load_type_word(summary.type)},
            {"type_text", utf8_text(summary.type_text)},
            {"title", utf8_text(summary.title)},
            {"definitions", std::move(definitions)},
            {"members_loaded", summary.members},
            {"joints_loaded", summary.joints}};
}

json load_cases(const model_summary& summary)
{
    json list = json::array();
    for (const load_case_summary& each : summary.load_cases)
        list.push_back(load_case(each));
    return list;
}

json skipped(const model_summary& summary)
{
    json list = json::array();
    for (const skipped_summary& each : summary.skipped)
        list.push_back({{"words", utf8_text(each.words)}, {"lines", each.lines}});
    return list;
}

void add_model(json& report, const STAAD::SdReader& model, const model_summary& summary)
{
    report["units"] = units(model);
    report["joints"] = summary.joints;
    report["members"] = members(summary);
    report["elements"] = summary.elements;
    report["surfaces"] = summary.surfaces;
    report["extents_mm"] = extents_mm(summary);
    report["storeys"] = storeys(summary);
    report["concrete_density"] = model.concrete_density;
    report["concrete_density_is_default"] = summary.has_default_density;
    report["groups"] = groups(summary);
    report["supports"] = descriptions(summary.supports, "joints");
    report["releases"] = descriptions(summary.releases, "members");
    report["sections"] = sections(summary);
    report["user_tables"] = user_tables(summary);
    report["load_cases"] = load_cases(summary);
    report["not_in_the_model"] = skipped(summary);
}

} // namespace

json json_report(const opened_model& opened, const model_summary* summary)
{
    json report;
    report["file"] = utf8_text(opened.name);
    report["was_read"] = opened.was_read;
    if (summary != nullptr)
        add_model(report, opened.model, *summary);
    report["findings"] = findings(opened.report);
    return report;
}

} // namespace tool
