// The groups of a structure, with what they list.

#include "info/structure_summary.h"
#include "output/structure_words.h"

#include <algorithm>
#include <string>
#include <vector>

namespace tool {
namespace {

using STAAD::SdGroup;
using STAAD::Structure;

/// The numbers of records, ascending.
template<class... Lists>
std::vector<int> sorted_numbers(const Lists&... lists)
{
    std::vector<int> numbers;
    const auto add_all = [&numbers](const auto& list) {
        for (const auto& record : list)
            numbers.push_back(record.number);
    };
    (add_all(lists), ...);
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

struct sorted_records {
    std::vector<int> joints;
    std::vector<int> members;
    std::vector<int> elements; ///< plates, solids and surfaces
};

listed_numbers count_numbers(std::vector<int> numbers, const std::vector<int>& records)
{
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    listed_numbers counted;
    for (const int number : numbers)
        ++(std::binary_search(records.begin(), records.end(), number) ? counted.known : counted.unknown);
    return counted;
}

SdGroup::IdType listed_by(Structure::GroupKind kind)
{
    switch (kind) {
    case Structure::GroupKind::joints:
        return SdGroup::JointId;
    case Structure::GroupKind::elements:
    case Structure::GroupKind::solids:
        return SdGroup::ElementId;
    default:
        return SdGroup::MemberId; // floors, too
    }
}

} // namespace

std::vector<group_summary> summarise_groups(const Structure& structure)
{
    const sorted_records records = {
        sorted_numbers(structure.joints),
        sorted_numbers(structure.members),
        sorted_numbers(structure.elements, structure.solids, structure.surfaces),
    };
    std::vector<group_summary> groups;
    for (const Structure::Group& group : structure.groups) {
        const SdGroup::IdType type = listed_by(group.kind);
        const auto& numbers = type == SdGroup::JointId    ? records.joints
                              : type == SdGroup::MemberId ? records.members
                                                          : records.elements;
        groups.push_back({group.name, word_of(group.kind), type, count_numbers(group.numbers, numbers)});
    }
    return groups;
}

} // namespace tool
