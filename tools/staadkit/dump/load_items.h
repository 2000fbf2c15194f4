/// Load cases, combinations and kept statements as JSON.
#ifndef TOOLS_STAADKIT_DUMP_LOAD_ITEMS_H
#define TOOLS_STAADKIT_DUMP_LOAD_ITEMS_H

#include "dump/number_runs.h"
#include "dump/structure_items.h"
#include "output/structure_words.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace tool {

/// A structure with what finding the numbers of its loads takes.
struct numbered_structure {
    explicit numbered_structure(const Structure& of)
        : structure(of), joints(of.joints), members(of.members), elements(of.elements)
    {
    }

    const Structure& structure;
    number_runs joints;
    number_runs members;
    number_runs elements;
};

struct box_item {
    const Structure::Box& box;
};

template<class Visit>
void each_field(const box_item& item, Visit visit)
{
    visit("low", components(item.box.low));
    visit("high", components(item.box.high));
}

struct load_item {
    const numbered_structure& numbered;
    const Structure::Load& load;

    run_list_of_numbers loaded(const char* records) const
    {
        const std::string on = loaded_records(load.kind);
        if (on != records)
            return {};
        return (on == "joints" ? numbered.joints : on == "members" ? numbered.members : numbered.elements).of(load.on);
    }
    run_list_of_numbers elements() const
    {
        return load.on_elements.empty() ? loaded("elements") : numbered.elements.of(load.on_elements);
    }
    std::vector<double> values() const
    {
        const auto count = std::min<std::size_t>(load.value_count, load.values.size());
        return {load.values.begin(), load.values.begin() + static_cast<std::ptrdiff_t>(count)};
    }
};

template<class Visit>
void each_field(const load_item& item, Visit visit)
{
    const Structure& structure = item.numbered.structure;
    const Structure::Load& load = item.load;
    std::optional<box_item> box;
    if (load.box)
        box.emplace(box_item{*load.box});
    std::optional<std::string> group;
    if (has_position(structure.groups, load.group))
        group = structure.groups[static_cast<std::size_t>(load.group)].name;
    visit("kind", word_of(load.kind));
    visit("direction", word_of(load.direction));
    visit("values", item.values());
    visit("along", std::string(load.along == 0 ? 0 : 1, load.along));
    visit("joints", item.loaded("joints"));
    visit("members", item.loaded("members"));
    visit("elements", item.elements());
    visit("box", box);
    visit("group", group);
    visit("towards", number_at(structure.members, load.towards));
    visit("cases", load.sum);
    visit("kept", counted(load.kept));
    visit("text", load.text);
    visit("lines", lines_of(structure, load.source));
}

struct case_item {
    const numbered_structure& numbered;
    const Structure::LoadCase& load_case;
};

template<class Visit>
void each_field(const case_item& item, Visit visit)
{
    visit("number", item.load_case.number);
    visit("type", item.load_case.type);
    visit("title", item.load_case.title);
    visit("loads", streamed_list{[&item](auto add) {
              for (const Structure::Load& load : item.load_case.loads)
                  add(load_item{item.numbered, load});
          }});
    visit("lines", lines_of(item.numbered.structure, item.load_case.source));
}

struct combination_item {
    const Structure& structure;
    const Structure::Combination& combination;
};

template<class Visit>
void each_field(const combination_item& item, Visit visit)
{
    visit("number", item.combination.number);
    visit("title", item.combination.title);
    visit("method", item.combination.method);
    visit("terms", item.combination.terms);
    visit("lines", lines_of(item.structure, item.combination.source));
}

struct kept_item {
    const Structure& structure;
    const Structure::Kept& kept;
    int number;
};

template<class Visit>
void each_field(const kept_item& item, Visit visit)
{
    visit("number", item.number);
    visit("command", item.kept.command);
    visit("text", item.kept.text);
    visit("length_unit", item.kept.length_unit);
    visit("force_unit", item.kept.force_unit);
    visit("is_load", item.kept.is_load);
    visit("lines", lines_of(item.structure, item.kept.source));
}

} // namespace tool

#endif
