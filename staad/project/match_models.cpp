/// Which joint, member and shell of an earlier model each of this model is.
#include "staad/model/sd_reader.h"
#include "staad/project/hash_table.h"
#include "staad/project/joint_grid.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

/// 1-based positions of the counterparts in the order of this model's records; 0 for none.
using counterparts = std::vector<int>;

counterparts match_joints(const std::vector<SdNode>& joints, const std::vector<SdNode>& earlier)
{
    detail::joint_grid grid(earlier);
    counterparts matches;
    matches.reserve(joints.size());
    for (const SdNode& joint : joints)
        matches.push_back(grid.take_match(joint) + 1);
    return matches;
}

/// Positions of the joints that a member or shell stands on, in the order that makes two the same.
using joint_list = std::vector<int>;

/// A member is the same in either direction.
struct member_shape {
    static void list_joints(const SdBeam& member, joint_list& joints)
    {
        joints.assign({member.node_start, member.node_end});
    }
    static void put_in_order(joint_list& joints)
    {
        if (joints[1] < joints[0])
            std::swap(joints[0], joints[1]);
    }
};

/// A shell with another first corner, or listed the other way round, is another one.
struct shell_shape {
    static void list_joints(const SdShell& shell, joint_list& joints) { joints = shell.node_ids; }
    static void put_in_order(joint_list&) {}
};

/// Turns joints of this model into their counterparts; false if one has none.
bool translate(joint_list& joints, const counterparts& joint_matches)
{
    for (int& position : joints) {
        const bool is_joint = position > 0 && static_cast<std::size_t>(position) <= joint_matches.size();
        position = is_joint ? joint_matches[static_cast<std::size_t>(position) - 1] : 0;
        if (position == 0)
            return false;
    }
    return true;
}

std::uint64_t hash_of(const joint_list& joints) noexcept
{
    std::uint64_t hash = joints.size();
    for (const int position : joints)
        hash = detail::mixed(hash, static_cast<std::uint64_t>(position));
    return hash;
}

/// Finds records of an earlier model by the joints they stand on: the first of several.
template<class Shape, class Record>
class shape_index {
public:
    explicit shape_index(const std::vector<Record>& records) : records_(records), table_(records.size())
    {
        for (std::size_t i = 0; i < records.size(); ++i) {
            Shape::list_joints(records[i], wanted_);
            Shape::put_in_order(wanted_);
            std::int32_t& first = table_.at(hash_of(wanted_), is_wanted());
            if (first == detail::no_index)
                first = static_cast<std::int32_t>(i);
        }
    }

    /// 1-based position of the counterpart of `record`, 0 if it has none.
    int match(const Record& record, const counterparts& joint_matches)
    {
        Shape::list_joints(record, wanted_);
        if (!translate(wanted_, joint_matches))
            return 0;
        Shape::put_in_order(wanted_);
        return table_.find(hash_of(wanted_), is_wanted()) + 1;
    }

private:
    auto is_wanted()
    {
        return [this](std::int32_t index) {
            Shape::list_joints(records_[static_cast<std::size_t>(index)], met_);
            Shape::put_in_order(met_);
            return met_ == wanted_;
        };
    }

    const std::vector<Record>& records_;
    detail::hash_table table_;
    joint_list wanted_;
    joint_list met_;
};

template<class Shape, class Record>
counterparts match_shapes(const std::vector<Record>& records, const std::vector<Record>& earlier,
                          const counterparts& joint_matches)
{
    shape_index<Shape, Record> index(earlier);
    counterparts matches;
    matches.reserve(records.size());
    for (const Record& record : records)
        matches.push_back(index.match(record, joint_matches));
    return matches;
}

/// The entries and their inverse: of several with one counterpart the last stands in the inverse.
void fill(std::map<int, int>& new_to_old, std::map<int, int>& old_to_new, const counterparts& matches,
          std::size_t earlier_count)
{
    new_to_old.clear();
    old_to_new.clear();
    counterparts inverse(earlier_count, 0);
    for (std::size_t i = 0; i < matches.size(); ++i) {
        if (matches[i] == 0)
            continue;
        const int position = static_cast<int>(i) + 1;
        new_to_old.emplace_hint(new_to_old.end(), position, matches[i]);
        inverse[static_cast<std::size_t>(matches[i]) - 1] = position;
    }
    for (std::size_t i = 0; i < inverse.size(); ++i) {
        if (inverse[i] != 0)
            old_to_new.emplace_hint(old_to_new.end(), static_cast<int>(i) + 1, inverse[i]);
    }
}

} // namespace

void SdReader::MakeMap(const SdReader& old)
{
    const counterparts joints = match_joints(nodes, old.nodes);
    const counterparts members = match_shapes<member_shape>(beams, old.beams, joints);
    const counterparts elements = match_shapes<shell_shape>(shells, old.shells, joints);
    OldProjMaps& maps = old_proj_maps;
    fill(maps.joints_new_to_old, maps.joints_old_to_new, joints, old.nodes.size());
    fill(maps.members_new_to_old, maps.members_old_to_new, members, old.beams.size());
    fill(maps.shells_new_to_old, maps.shells_old_to_new, elements, old.shells.size());
}

} // namespace STAAD
