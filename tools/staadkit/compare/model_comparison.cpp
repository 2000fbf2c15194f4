#include "compare/model_comparison.h"

#include "compare/record_matcher.h"
#include "output/element_count.h"
#include "staad/model/positions.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <utility>

namespace tool {
namespace {

using STAAD::SdReader;

/// Surfaces have numbers of their own: no element may be taken for one of the same number.
constexpr std::int64_t surface_numbers = std::int64_t{1} << 40U;

int number_in_file(std::int64_t number)
{
    return static_cast<int>(static_cast<std::uint32_t>(number));
}

std::vector<std::int64_t> shell_numbers(const SdReader& model)
{
    std::vector<std::int64_t> numbers = numbers_of(model.shells);
    for (std::size_t i = element_count(model); i < numbers.size(); ++i)
        numbers[i] += surface_numbers;
    return numbers;
}

/// The three lists of a model, each compared with itself: that tells who stands at one place, by the same
/// rule as between models.
struct own_places {
    explicit own_places(SdReader& model) : own_places((model.MakeMap(model), model.old_proj_maps), model) {}

    record_list joints;
    record_list members;
    record_list shells;

private:
    own_places(const STAAD::OldProjMaps& maps, const SdReader& model)
        : joints{numbers_of(model.nodes), {maps.joints_new_to_old, model.nodes.size()}},
          members{numbers_of(model.beams), {maps.members_new_to_old, model.beams.size()}},
          shells{shell_numbers(model), {maps.shells_new_to_old, model.shells.size()}}
    {
    }
};

/// Whether members or shells that lack a joint are the same as far as they have joints.
class same_joints {
public:
    same_joints(const SdReader& now, const SdReader& earlier, const record_pairs& joints)
        : now_(now), earlier_(earlier), joints_(joints)
    {
    }

    bool members(int position, int old) const
    {
        const STAAD::SdBeam& member = *STAAD::detail::at_position(now_.beams, position);
        const STAAD::SdBeam& other = *STAAD::detail::at_position(earlier_.beams, old);
        return is_same(member.node_start, other.node_start) && is_same(member.node_end, other.node_end);
    }

    bool shells(int position, int old) const
    {
        const std::vector<int>& corners = STAAD::detail::at_position(now_.shells, position)->node_ids;
        const std::vector<int>& others = STAAD::detail::at_position(earlier_.shells, old)->node_ids;
        return std::equal(corners.begin(), corners.end(), others.begin(), others.end(),
                          [this](int corner, int other) { return is_same(corner, other); });
    }

private:
    bool is_same(int joint, int old) const
    {
        const bool is_joint = STAAD::detail::at_position(now_.nodes, joint) != nullptr;
        const bool was_joint = STAAD::detail::at_position(earlier_.nodes, old) != nullptr;
        return is_joint == was_joint && (!is_joint || joints_.old_of_new[joint] == old);
    }

    const SdReader& now_;
    const SdReader& earlier_;
    const record_pairs& joints_;
};

/// Positions from `first` to `last`.
struct position_range {
    int first = 1;
    int last = 0;

    std::size_t size() const { return static_cast<std::size_t>(last) - static_cast<std::size_t>(first) + 1; }
};

position_range all_of(const record_list& list)
{
    return {1, list.like.size()};
}

kind_comparison tell(const record_list& now, position_range new_range, const record_list& earlier,
                     position_range old_range, const record_pairs& pairs)
{
    kind_comparison told;
    told.in_new = new_range.size();
    told.in_old = old_range.size();
    for (int position = new_range.first; position <= new_range.last; ++position) {
        const std::int64_t number = now.number(position);
        if (const int old = pairs.old_of_new[position]; old != 0) {
            ++told.matched;
            told.renumbered += earlier.number(old) != number ? 1U : 0U;
        } else {
            (pairs.moved_of_new[position] != 0 ? told.moved : told.added).push_back(number_in_file(number));
        }
    }
    for (int old = old_range.first; old <= old_range.last; ++old) {
        if (pairs.new_of_old[old] == 0 && pairs.moved_of_old[old] == 0)
            told.gone.push_back(number_in_file(earlier.number(old)));
    }
    return told;
}

kind_comparison tell(const record_list& now, const record_list& earlier, const record_pairs& pairs)
{
    return tell(now, all_of(now), earlier, all_of(earlier), pairs);
}

/// The axes of the file: X, Y, Z.
std::array<double, 3> place_in_file(const STAAD::SdNode& joint)
{
    return {joint.y, joint.z, joint.x};
}

std::vector<moved_joint> moved_joints(const SdReader& now, const SdReader& earlier, const record_pairs& pairs)
{
    std::vector<moved_joint> moved;
    for (int position = 1; position <= pairs.moved_of_new.size(); ++position) {
        const STAAD::SdNode* const old = STAAD::detail::at_position(earlier.nodes, pairs.moved_of_new[position]);
        if (old == nullptr)
            continue;
        const STAAD::SdNode& joint = *STAAD::detail::at_position(now.nodes, position);
        moved.push_back({joint.id, place_in_file(*old), place_in_file(joint)});
    }
    return moved;
}

/// The text by which the library tells sections apart.
std::string property_of(const STAAD::SdBeam& member)
{
    return STAAD::Section({}, member.sect_text).property;
}

std::vector<section_change> resectioned(const SdReader& now, const SdReader& earlier, const record_pairs& pairs)
{
    std::map<std::pair<std::string, std::string>, std::vector<int>> changes;
    for (int position = 1; position <= pairs.old_of_new.size(); ++position) {
        const STAAD::SdBeam* const old = STAAD::detail::at_position(earlier.beams, pairs.old_of_new[position]);
        const STAAD::SdBeam& member = *STAAD::detail::at_position(now.beams, position);
        if (old == nullptr || old->sect_text == member.sect_text)
            continue;
        std::pair texts(property_of(*old), property_of(member));
        if (texts.first != texts.second)
            changes[std::move(texts)].push_back(member.id);
    }
    std::vector<section_change> listed;
    listed.reserve(changes.size());
    for (auto& [texts, members] : changes)
        listed.push_back({texts.first, texts.second, std::move(members)});
    return listed;
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

model_comparison compare_models(SdReader& now, SdReader& earlier)
{
    const own_places old_lists(earlier);
    earlier.old_proj_maps = {};
    const own_places lists(now);
    now.MakeMap(earlier);
    const STAAD::OldProjMaps& maps = now.old_proj_maps;

    const auto by_number = [](int, int) { return true; };
    const record_pairs joints =
        match(lists.joints, old_lists.joints, {maps.joints_new_to_old, now.nodes.size()}, by_number);
    const same_joints same(now, earlier, joints);
    const record_pairs members = match(lists.members, old_lists.members, {maps.members_new_to_old, now.beams.size()},
                                       [&same](int position, int old) { return same.members(position, old); });
    const record_pairs shells = match(lists.shells, old_lists.shells, {maps.shells_new_to_old, now.shells.size()},
                                      [&same](int position, int old) { return same.shells(position, old); });

    const int elements = static_cast<int>(element_count(now));
    const int old_elements = static_cast<int>(element_count(earlier));
    model_comparison told;
    told.joints = tell(lists.joints, old_lists.joints, joints);
    told.members = tell(lists.members, old_lists.members, members);
    told.elements = tell(lists.shells, {1, elements}, old_lists.shells, {1, old_elements}, shells);
    told.surfaces = tell(lists.shells, {elements + 1, shells.old_of_new.size()}, old_lists.shells,
                         {old_elements + 1, shells.new_of_old.size()}, shells);
    told.moved_joints = moved_joints(now, earlier, joints);
    told.resectioned = resectioned(now, earlier, members);
    return told;
}

} // namespace tool
