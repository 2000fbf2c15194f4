#include "staad/compare/match.h"

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

/// As Counterparts::of_new.
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

/// The counterpart of a joint of the new model, 0 if it has none or is no joint.
int counterpart_of(int position, const counterparts& joint_matches)
{
    const bool is_joint = position > 0 && static_cast<std::size_t>(position) <= joint_matches.size();
    return is_joint ? joint_matches[static_cast<std::size_t>(position) - 1] : 0;
}

std::uint64_t mixed(std::uint64_t hash, int position) noexcept
{
    return detail::mixed(hash, static_cast<std::uint64_t>(position));
}

/// The joints that a member stands on, the same in either direction.
struct member_joints {
    explicit member_joints(const SdBeam& member) : low(member.node_start), high(member.node_end) { put_in_order(); }

    /// Replaces them by their counterparts; false if one has none.
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

/// The corners of a shell in order: one that begins at another corner, or goes the other way round, is another shell.
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

/// Finds the first record of an earlier model on given joints. Keeps copies of the joints side by side: the
/// records are large, and their joints far apart in memory.
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

Counterparts with_inverse(counterparts matches, std::size_t earlier_count)
{
    Counterparts result;
    result.of_old.resize(earlier_count);
    for (std::size_t i = 0; i < matches.size(); ++i) {
        if (matches[i] != 0)
            result.of_old[static_cast<std::size_t>(matches[i]) - 1] = static_cast<int>(i) + 1;
    }
    result.of_new = std::move(matches);
    return result;
}

std::map<int, int> to_map(const std::vector<int>& positions)
{
    std::map<int, int> entries;
    for (std::size_t i = 0; i < positions.size(); ++i) {
        if (positions[i] != 0)
            entries.emplace_hint(entries.end(), static_cast<int>(i) + 1, positions[i]);
    }
    return entries;
}

} // namespace

ModelMatch match(const SdReader& now, const SdReader& earlier)
{
    counterparts joints = match_joints(now.nodes, earlier.nodes);
    counterparts members = match_by_joints<member_joints>(now.beams, earlier.beams, joints);
    counterparts shells = match_by_joints<shell_joints>(now.shells, earlier.shells, joints);
    return {with_inverse(std::move(joints), earlier.nodes.size()),
            with_inverse(std::move(members), earlier.beams.size()),
            with_inverse(std::move(shells), earlier.shells.size())};
}

OldProjMaps to_maps(const ModelMatch& matched)
{
    return {to_map(matched.joints.of_new), to_map(matched.members.of_new), to_map(matched.shells.of_new),
            to_map(matched.joints.of_old), to_map(matched.members.of_old), to_map(matched.shells.of_old)};
}

void SdReader::MakeMap(const SdReader& old)
{
    old_proj_maps = to_maps(match(*this, old));
}

} // namespace STAAD
