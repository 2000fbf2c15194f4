/// Which joint, member and shell of an earlier model each of this model is.
#include "staad/compare/hash_table.h"
#include "staad/compare/joint_grid.h"
#include "staad/model/sd_reader.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <numeric>
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

/// The counterpart of a joint of this model, 0 if it has none or is no joint.
int counterpart_of(int position, const counterparts& joint_matches)
{
    const bool is_joint = position > 0 && static_cast<std::size_t>(position) <= joint_matches.size();
    return is_joint ? joint_matches[static_cast<std::size_t>(position) - 1] : 0;
}

std::uint64_t mixed(std::uint64_t hash, int position) noexcept
{
    return detail::mixed(hash, static_cast<std::uint64_t>(position));
}

/// The joints that a member stands on; it is the same in either direction.
struct member_joints {
    explicit member_joints(const SdBeam& member) : low(member.node_start), high(member.node_end) { put_in_order(); }

    /// Into those of the earlier model; false if one has no counterpart.
    bool translate(const counterparts& joint_matches)
    {
        low = counterpart_of(low, joint_matches);
        high = counterpart_of(high, joint_matches);
        put_in_order();
        return low != 0;
    }
    std::uint64_t hash() const noexcept { return mixed(mixed(0, low), high); }
    bool operator==(const member_joints& other) const noexcept { return low == other.low && high == other.high; }

    int low;
    int high;

private:
    void put_in_order() noexcept
    {
        if (high < low)
            std::swap(low, high);
    }
};

/// The corners of a shell in order: with another first corner, or the other way round, it is another one.
struct shell_joints {
    explicit shell_joints(const SdShell& shell) : corners(shell.node_ids) {}

    bool translate(const counterparts& joint_matches)
    {
        for (int& corner : corners) {
            corner = counterpart_of(corner, joint_matches);
            if (corner == 0)
                return false;
        }
        return true;
    }
    std::uint64_t hash() const noexcept { return std::accumulate(corners.begin(), corners.end(), seed(), mixed); }
    bool operator==(const shell_joints& other) const noexcept { return corners == other.corners; }

    std::vector<int> corners;

private:
    std::uint64_t seed() const noexcept { return corners.size(); }
};

/// Finds records of an earlier model by the joints they stand on: the first of several. Keeps the joints
/// of every record beside each other: records are large, and far apart in memory.
template<class Joints>
class joints_index {
public:
    template<class Record>
    explicit joints_index(const std::vector<Record>& records)
        : joints_(records.begin(), records.end()), table_(records.size())
    {
        for (std::size_t i = 0; i < joints_.size(); ++i) {
            std::int32_t& first = table_.at(joints_[i].hash(), is(joints_[i]));
            if (first == detail::no_index)
                first = static_cast<std::int32_t>(i);
        }
    }

    /// 1-based position of the first record on these joints, 0 if there is none.
    int position(const Joints& joints) const { return table_.find(joints.hash(), is(joints)) + 1; }

private:
    auto is(const Joints& joints) const
    {
        return [this, &joints](std::int32_t index) { return joints_[static_cast<std::size_t>(index)] == joints; };
    }

    std::vector<Joints> joints_; // by record
    detail::hash_table table_;
};

template<class Joints, class Record>
counterparts match_by_joints(const std::vector<Record>& records, const std::vector<Record>& earlier,
                             const counterparts& joint_matches)
{
    const joints_index<Joints> index(earlier);
    counterparts matches;
    matches.reserve(records.size());
    for (const Record& record : records) {
        Joints joints(record);
        matches.push_back(joints.translate(joint_matches) ? index.position(joints) : 0);
    }
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
    const counterparts members = match_by_joints<member_joints>(beams, old.beams, joints);
    const counterparts elements = match_by_joints<shell_joints>(shells, old.shells, joints);
    OldProjMaps& maps = old_proj_maps;
    fill(maps.joints_new_to_old, maps.joints_old_to_new, joints, old.nodes.size());
    fill(maps.members_new_to_old, maps.members_old_to_new, members, old.beams.size());
    fill(maps.shells_new_to_old, maps.shells_old_to_new, elements, old.shells.size());
}

} // namespace STAAD
