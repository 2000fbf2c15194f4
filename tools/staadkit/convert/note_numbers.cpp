// Joints, members and elements get new numbers; the lists of some blocks keep the old ones.

#include "convert/conversion_notes.h"
#include "staad/query/lookup.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <utility>

namespace tool {
namespace {

using STAAD::FindingCode;
using STAAD::SdGroup;
using STAAD::SdReader;

/// From the old numbers of joints, members or elements to the new ones.
struct renumbering {
    const char* noun;
    const char* block; ///< where they are defined
    const std::map<int, int>& positions;
    std::size_t size;        ///< of their list
    int before_first;        ///< the new number minus the position
    std::size_t changed = 0; ///< how many have a different number now
    int first_old = 0;       ///< the first of these
    int first_new = 0;

    int new_number(int number) const
    {
        const auto entry = positions.find(number);
        return entry == positions.end() || entry->second < 1 ? 0 : entry->second + before_first;
    }

    /// True if the number now belongs to another record, or to one where it belonged to none.
    bool misleads(int number) const
    {
        const int now = new_number(number);
        if (now != 0)
            return now != number;
        return number > before_first && static_cast<std::size_t>(number - before_first) <= size;
    }
};

template<class Records>
renumbering renumber(const char* noun, const char* block, const Records& records, std::size_t size,
                     const std::map<int, int>& positions, int before_first)
{
    renumbering result{noun, block, positions, records.size(), before_first};
    for (std::size_t i = 0; i < size; ++i) {
        const int now = before_first + static_cast<int>(i) + 1;
        if (records[i].id == now)
            continue;
        if (result.changed++ == 0) {
            result.first_old = records[i].id;
            result.first_new = now;
        }
    }
    return result;
}

/// The three renumberings of a model. Copies of surfaces are no elements here: their old numbers are those of
/// surfaces, which no list names.
struct renumberings {
    explicit renumberings(const SdReader& model)
        : joints(renumber("joint", "JOINT COORDINATES", model.nodes, model.nodes.size(), model.node_index, 0)),
          members(renumber("member", "MEMBER INCIDENCES", model.beams, model.beams.size(), model.beam_index, 0)),
          elements(renumber("element", "ELEMENT INCIDENCES SHELL", model.shells, STAAD::element_count(model),
                            model.shell_index, static_cast<int>(model.beams.size())))
    {
    }

    const renumbering& of(SdGroup::IdType type) const
    {
        if (type == SdGroup::MemberId)
            return members;
        return type == SdGroup::ElementId ? elements : joints;
    }

    renumbering joints;
    renumbering members;
    renumbering elements;
};

template<class Number>
bool any_misleads(const std::vector<Number>& numbers, const renumbering& numbering)
{
    return std::any_of(numbers.begin(), numbers.end(),
                       [&](Number number) { return numbering.misleads(static_cast<int>(number)); });
}

/// The names of the lists that now name other joints, members or elements, and the place of the first of them.
struct misleading_lists {
    std::vector<std::string> names;
    line_pattern first;

    void add(const char* name, line_pattern pattern)
    {
        if (names.empty())
            first = std::move(pattern);
        names.emplace_back(name);
    }

    void add_described(const char* name, const char* block, const std::map<std::string, std::vector<unsigned>>& lists,
                       const renumbering& numbering)
    {
        for (const auto& [description, numbers] : lists) {
            if (any_misleads(numbers, numbering))
                return add(name, {.block = block, .end = ' ' + description});
        }
    }
};

misleading_lists find_misleading_lists(const SdReader& model, const renumberings& all)
{
    misleading_lists lists;
    lists.add_described("supports", "SUPPORTS", model.supports, all.joints);
    lists.add_described("releases", "MEMBER RELEASE", model.releases, all.members);
    const auto group = std::find_if(model.groups.begin(), model.groups.end(), [&](const SdGroup& each) {
        return any_misleads(each.ids, all.of(each.GetIdType()));
    });
    if (group != model.groups.end())
        lists.add("groups", {.block = "START GROUP DEFINITION", .begin = group->name + ' '});
    return lists;
}

} // namespace

void note_numbers(const SdReader& model, conversion_notes& notes)
{
    const renumberings all(model);
    std::vector<std::string> changed;
    std::vector<std::string> examples;
    line_pattern example;
    for (const renumbering* each : {&all.joints, &all.members, &all.elements}) {
        if (each->changed == 0)
            continue;
        if (changed.empty())
            example = {.block = each->block};
        changed.push_back(std::string(each->noun) + 's');
        examples.push_back(fmt::format("{} {} is {}", each->noun, each->first_old, each->first_new));
    }
    if (changed.empty())
        return;
    const misleading_lists lists = find_misleading_lists(model, all);
    std::string text = fmt::format("{} have new numbers ({})", enumerated(changed), enumerated(examples));
    if (!lists.names.empty()) {
        text += "; " + enumerated(lists.names) + " still name the old ones";
        example = lists.first;
    }
    notes.push_back({FindingCode::numbers, std::move(text), std::move(example)});
}

} // namespace tool
