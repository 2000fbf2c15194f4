// The report of "info" for programs: numbers not rounded, texts in full.

#include "info/info_report.h"
#include "output/json_writer.h"
#include "output/phrases.h"
#include "output/structure_words.h"

#include <array>
#include <map>
#include <optional>
#include <string>
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

template<class Visit>
void each_field(const counted_text& counted, Visit visit)
{
    visit("kind", counted.text);
    visit("count", counted.count);
}

template<class Visit>
void each_field(const aside& each, Visit visit)
{
    std::vector<std::array<std::size_t, 2>> lines;
    for (const STAAD::FileLines& place : each.lines)
        lines.push_back({place.first, place.last});
    visit("code", each.code);
    visit("text", each.text);
    visit("count", each.count);
    visit("lines", lines);
}

template<class Visit>
void each_field(const case_summary& summary, Visit visit)
{
    visit("number", summary.load_case->number);
    visit("type", summary.load_case->type);
    visit("title", summary.load_case->title);
    visit("definitions", summary.kinds);
    visit("members_loaded", summary.members);
    visit("joints_loaded", summary.joints);
    visit("elements_loaded", summary.elements);
}

namespace {

struct material_item {
    const STAAD::Structure::Material& material;
};

template<class Visit>
void each_field(const material_item& item, Visit visit)
{
    const STAAD::Structure::Material& material = item.material;
    std::map<std::string, double> strengths;
    for (const STAAD::Structure::NamedValue& strength : material.strengths)
        strengths[strength.name] = strength.value;
    visit("name", material.name);
    visit("type", material.type);
    visit("e", material.e);
    visit("g", material.g);
    visit("poisson", material.poisson);
    visit("density", material.density);
    visit("alpha", material.alpha);
    visit("damping", material.damping);
    visit("strengths", strengths);
    visit("is_built_in", material.is_built_in);
}

struct term_item {
    const STAAD::Structure::CaseFactor& term;
};

template<class Visit>
void each_field(const term_item& item, Visit visit)
{
    visit("case", item.term.number);
    visit("is_reference", item.term.is_reference);
    visit("factor", item.term.factor);
}

struct combination_item {
    const STAAD::Structure::Combination& combination;
};

template<class Visit>
void each_field(const combination_item& item, Visit visit)
{
    visit("number", item.combination.number);
    visit("title", item.combination.title);
    visit("method", item.combination.method);
    visit("terms", streamed_list{[&item](auto add) {
              for (const STAAD::Structure::CaseFactor& term : item.combination.terms)
                  add(term_item{term});
          }});
}

struct deck_units_item {
    const STAAD::Structure::Head& head;
};

template<class Visit>
void each_field(const deck_units_item& item, Visit visit)
{
    visit("length", item.head.length_unit);
    visit("force", item.head.force_unit);
}

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
void visit_geometry(const model_summary& summary, Visit& visit)
{
    std::optional<extents_item> box;
    if (summary.joints != 0)
        box = extents_item{summary.box};
    visit("joints", summary.joints);
    visit("members", members_item{summary});
    visit("elements", summary.elements);
    visit("surfaces", summary.surfaces);
    visit("extents_mm", box);
    visit("storeys", storeys_item{summary.levels});
}

template<class Visit>
void visit_model(const STAAD::SdReader& model, const model_summary& summary, Visit& visit)
{
    visit("units", units_item{model});
    visit_geometry(summary, visit);
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

/// The same of a structure, with what only it has.
template<class Visit>
void visit_structure(const structure_summary& complete, const model_summary& summary, Visit& visit)
{
    const STAAD::Structure& structure = *complete.structure;
    visit("kind", word_of(structure.head.kind));
    visit("up", std::string(structure.head.up == STAAD::Structure::UpAxis::y ? "Y" : "Z"));
    visit("title", structure.head.title);
    visit("units", deck_units_item{structure.head});
    visit_geometry(summary, visit);
    visit("solids", structure.solids.size());
    visit("groups", complete.groups);
    visit("supports", complete.supports);
    visit("mats", complete.mats);
    visit("releases", items_of(summary.releases, "members"));
    visit("sections", summary.sections);
    visit("user_tables", summary.user_tables);
    visit("materials", streamed_list{[&structure](auto add) {
              for (const STAAD::Structure::Material& material : structure.materials)
                  add(material_item{material});
          }});
    visit("load_cases", complete.load_cases);
    visit("reference_cases", complete.reference_cases);
    visit("combinations", streamed_list{[&structure](auto add) {
              for (const STAAD::Structure::Combination& combination : structure.combinations)
                  add(combination_item{combination});
          }});
    visit("lost", complete.beside.lost);
    visit("kept_as_text", complete.beside.kept);
    visit("harmless", complete.beside.harmless);
}

struct document_item {
    const info_report& report;
};

template<class Visit>
void each_field(const document_item& item, Visit visit)
{
    const opened_deck& opened = item.report.opened;
    visit("file", opened.name);
    visit("was_read", opened.was_read);
    if (item.report.complete != nullptr && item.report.summary != nullptr)
        visit_structure(*item.report.complete, *item.report.summary, visit);
    else if (item.report.summary != nullptr)
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
