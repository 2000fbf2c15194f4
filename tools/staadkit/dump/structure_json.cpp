#include "dump/structure_json.h"

#include "dump/load_items.h"
#include "dump/record_items.h"

namespace tool {
namespace {

struct structure_item {
    const Structure& structure;
    const numbered_structure& numbered;
};

/// A list of the records of one or more lists as they stand.
template<class... Lists>
auto records(const Structure& structure, const Lists&... lists)
{
    return streamed_list{[&structure, &lists...](auto add) {
        const auto add_all = [&structure, &add](const auto& list) {
            for (const auto& record : list)
                add(item_of{structure, record});
        };
        (add_all(lists), ...);
    }};
}

/// Those of a list that JSON numbers from 1, and the records of another after them.
template<class Counted, class... Others>
auto counted_records(const Structure& structure, const Counted& counted, const Others&... others)
{
    return streamed_list{[&structure, &counted, &others...](auto add) {
        int number = 0;
        for (const auto& record : counted)
            add(counted_item{structure, record, ++number});
        (records(structure, others).fill(add), ...);
    }};
}

auto cases(const numbered_structure& numbered, const std::vector<Structure::LoadCase>& load_cases)
{
    return streamed_list{[&numbered, &load_cases](auto add) {
        for (const Structure::LoadCase& load_case : load_cases)
            add(case_item{numbered, load_case});
    }};
}

template<class Visit>
void each_field(const structure_item& item, Visit visit)
{
    const Structure& structure = item.structure;
    visit("head", item_of{structure, structure.head});
    visit("joints", records(structure, structure.joints));
    visit("members", records(structure, structure.members));
    visit("elements", records(structure, structure.elements, structure.solids, structure.surfaces));
    visit("sections", counted_records(structure, structure.sections, structure.user_tables));
    visit("materials", counted_records(structure, structure.materials));
    visit("supports", streamed_list{[&structure](auto add) {
              records(structure, structure.supports).fill(add);
              counted_records(structure, structure.mats).fill(add);
          }});
    visit("groups", records(structure, structure.groups));
    visit("load_cases", cases(item.numbered, structure.load_cases));
    visit("reference_cases", cases(item.numbered, structure.reference_cases));
    visit("combinations", streamed_list{[&structure](auto add) {
              for (const Structure::Combination& combination : structure.combinations)
                  add(combination_item{structure, combination});
          }});
    visit("kept", streamed_list{[&structure](auto add) {
              int number = 0;
              for (const Structure::Kept& kept : structure.kept)
                  add(kept_item{structure, kept, ++number});
          }});
}

} // namespace

void put_structure_json(std_output& out, const Structure& structure)
{
    const numbered_structure numbered(structure);
    json_writer(out).document(structure_item{structure, numbered});
}

} // namespace tool
