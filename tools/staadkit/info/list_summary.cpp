// Supports, releases and groups: how many of their numbers the model has.

#include "info/model_summary.h"

#include <algorithm>
#include <map>

namespace tool {
namespace {

using STAAD::SdGroup;
using STAAD::SdReader;

/// From the numbers of a file to 1-based positions in a list of `size` records.
struct number_index {
    const std::map<int, int>& positions;
    std::size_t size;

    bool knows(int number) const
    {
        const auto entry = positions.find(number);
        return entry != positions.end() && entry->second >= 1 && static_cast<std::size_t>(entry->second) <= size;
    }
};

template<class Number>
listed_numbers count_numbers(std::vector<Number> numbers, const number_index& index)
{
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    listed_numbers counted;
    for (const Number number : numbers)
        ++(index.knows(static_cast<int>(number)) ? counted.known : counted.unknown);
    return counted;
}

std::vector<description_summary> count_descriptions(const std::map<std::string, std::vector<unsigned>>& described,
                                                    const number_index& index)
{
    std::vector<description_summary> counted;
    counted.reserve(described.size());
    for (const auto& [description, numbers] : described)
        counted.push_back({description, count_numbers(numbers, index)});
    return counted;
}

} // namespace

void summarise_lists(const SdReader& model, model_summary& summary)
{
    const number_index joints = {model.node_index, model.nodes.size()};
    const number_index members = {model.beam_index, model.beams.size()};
    const number_index elements = {model.shell_index, model.shells.size()};
    const auto index_of = [&](SdGroup::IdType type) -> const number_index& {
        if (type == SdGroup::MemberId)
            return members;
        return type == SdGroup::ElementId ? elements : joints;
    };
    summary.supports = count_descriptions(model.supports, joints);
    summary.releases = count_descriptions(model.releases, members);
    for (const SdGroup& group : model.groups) {
        const SdGroup::IdType type = group.GetIdType();
        summary.groups.push_back({group.name, group.kind, type, count_numbers(group.ids, index_of(type))});
    }
}

} // namespace tool
