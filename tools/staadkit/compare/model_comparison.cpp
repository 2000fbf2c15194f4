#include "compare/model_comparison.h"

#include "staad/compare/pairs.h"
#include "staad/query/lookup.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace tool {
namespace {

using STAAD::Pairs;
using STAAD::SdReader;

/// The records of one kind in a list: indexes from `first` up to `end`.
struct index_range {
    std::size_t first;
    std::size_t end;

    bool has(std::size_t index) const noexcept { return index >= first && index < end; }
};

std::size_t index_of(int position)
{
    return static_cast<std::size_t>(position) - 1;
}

template<class Record>
kind_comparison compare_kind(const std::vector<Record>& now, index_range new_part, const std::vector<Record>& earlier,
                             index_range old_part, const Pairs& pairs)
{
    kind_comparison compared;
    compared.in_new = new_part.end - new_part.first;
    compared.in_old = old_part.end - old_part.first;
    for (std::size_t i = new_part.first; i < new_part.end; ++i) {
        if (const int old = pairs.old_of_new[i]; old != 0) {
            // Elements and surfaces are numbered apart: an element that became a surface has a new number.
            const bool has_old_number = old_part.has(index_of(old)) && earlier[index_of(old)].id == now[i].id;
            ++compared.matched;
            compared.renumbered += has_old_number ? 0U : 1U;
        } else {
            (pairs.moved_of_new[i] != 0 ? compared.moved : compared.added).push_back(now[i].id);
        }
    }
    for (std::size_t i = old_part.first; i < old_part.end; ++i) {
        if (pairs.new_of_old[i] == 0 && pairs.moved_of_old[i] == 0)
            compared.gone.push_back(earlier[i].id);
    }
    return compared;
}

template<class Record>
kind_comparison compare_kind(const std::vector<Record>& now, const std::vector<Record>& earlier, const Pairs& pairs)
{
    return compare_kind(now, {0, now.size()}, earlier, {0, earlier.size()}, pairs);
}

/// The axes of the file: X, Y, Z.
std::array<double, 3> place_in_file(const STAAD::SdNode& joint)
{
    return {joint.y, joint.z, joint.x};
}

std::vector<moved_joint> moved_joints(const SdReader& now, const SdReader& earlier, const Pairs& pairs)
{
    std::vector<moved_joint> moved;
    for (std::size_t i = 0; i < now.nodes.size(); ++i) {
        if (const int old = pairs.moved_of_new[i]; old != 0)
            moved.push_back(
                {now.nodes[i].id, place_in_file(earlier.nodes[index_of(old)]), place_in_file(now.nodes[i])});
    }
    return moved;
}

/// The text that identifies a section.
std::string property_of(const STAAD::SdBeam& member)
{
    return STAAD::Section({}, member.sect_text).property;
}

std::vector<section_change> resectioned(const SdReader& now, const SdReader& earlier, const Pairs& pairs)
{
    std::map<std::pair<std::string, std::string>, std::vector<int>> changes;
    for (std::size_t i = 0; i < now.beams.size(); ++i) {
        const STAAD::SdBeam& member = now.beams[i];
        if (pairs.old_of_new[i] == 0)
            continue;
        const STAAD::SdBeam& old = earlier.beams[index_of(pairs.old_of_new[i])];
        if (old.sect_text == member.sect_text)
            continue;
        std::pair texts(property_of(old), property_of(member));
        if (texts.first != texts.second)
            changes[std::move(texts)].push_back(member.id);
    }
    std::vector<section_change> listed;
    listed.reserve(changes.size());
    for (auto& [texts, members] : changes)
        listed.push_back({texts.first, texts.second, std::move(members)});
    return listed;
}

model_comparison compare_places(const SdReader& now, const SdReader& earlier, const STAAD::ModelMatch& matched)
{
    const STAAD::ModelPairs pairs = STAAD::pair_records(now, earlier, matched);
    const std::size_t elements = STAAD::element_count(now);
    const std::size_t old_elements = STAAD::element_count(earlier);
    model_comparison compared;
    compared.joints = compare_kind(now.nodes, earlier.nodes, pairs.joints);
    compared.members = compare_kind(now.beams, earlier.beams, pairs.members);
    compared.elements = compare_kind(now.shells, {0, elements}, earlier.shells, {0, old_elements}, pairs.shells);
    compared.surfaces = compare_kind(now.shells, {elements, now.shells.size()}, earlier.shells,
                                     {old_elements, earlier.shells.size()}, pairs.shells);
    compared.moved_joints = moved_joints(now, earlier, pairs.joints);
    compared.resectioned = resectioned(now, earlier, pairs.members);
    return compared;
}

replaced_lists find_replaced(const SdReader& now, const SdReader& earlier)
{
    replaced_lists replaced;
    for (const STAAD::SdGroup& group : now.groups)
        replaced.groups.push_back(group.name);
    for (const auto& [description, joints] : now.supports)
        replaced.supports.push_back(description);
    for (const auto& [description, members] : now.releases) {
        if (earlier.releases.count(description) != 0)
            replaced.releases.push_back(description);
    }
    return replaced;
}

} // namespace

double moved_joint::largest_shift() const
{
    double largest = 0.0;
    for (std::size_t axis = 0; axis < new_place.size(); ++axis)
        largest = std::max(largest, std::fabs(new_place[axis] - old_place[axis]));
    return largest;
}

std::size_t model_comparison::resectioned_members() const noexcept
{
    std::size_t sum = 0;
    for (const section_change& change : resectioned)
        sum += change.members.size();
    return sum;
}

bool model_comparison::differ() const noexcept
{
    return joints.differs() || members.differs() || elements.differs() || surfaces.differs() || !resectioned.empty();
}

compared_models compare_models(const SdReader& now, const SdReader& earlier)
{
    const STAAD::ModelMatch matched = STAAD::match(now, earlier);
    return {compare_places(now, earlier, matched), STAAD::definitions_to_take_over(now, earlier, matched),
            find_replaced(now, earlier)};
}

} // namespace tool
