#include "tests/support/plain_match.h"

#include <cmath>
#include <cstddef>
#include <map>
#include <vector>

namespace STAAD::plain {
namespace {

using map = std::map<int, int>;

int position(std::size_t index)
{
    return static_cast<int>(index) + 1;
}

bool is_near(const SdNode& joint, const SdNode& other)
{
    return std::fabs(joint.x - other.x) < 0.1 && std::fabs(joint.y - other.y) < 0.1 &&
           std::fabs(joint.z - other.z) < 0.1;
}

map match_joints(const std::vector<SdNode>& joints, const std::vector<SdNode>& earlier)
{
    map found;
    std::vector<bool> matched(earlier.size(), false);
    for (std::size_t i = 0; i < joints.size(); ++i) {
        for (std::size_t j = 0; j < earlier.size(); ++j) {
            if (matched[j] || !is_near(joints[i], earlier[j]))
                continue;
            found[position(i)] = position(j);
            matched[j] = true;
            break;
        }
    }
    return found;
}

map match_members(const std::vector<SdBeam>& members, const std::vector<SdBeam>& earlier, const map& joints)
{
    map found;
    for (std::size_t i = 0; i < members.size(); ++i) {
        if (joints.count(members[i].node_start) == 0 || joints.count(members[i].node_end) == 0)
            continue;
        const int start = joints.at(members[i].node_start);
        const int end = joints.at(members[i].node_end);
        for (std::size_t j = 0; j < earlier.size(); ++j) {
            const bool same = earlier[j].node_start == start && earlier[j].node_end == end;
            const bool reversed = earlier[j].node_start == end && earlier[j].node_end == start;
            if (!same && !reversed)
                continue;
            found[position(i)] = position(j);
            break;
        }
    }
    return found;
}

/// The corners in the earlier model; false if one of them has no counterpart.
bool translate(const std::vector<int>& corners, const map& joints, std::vector<int>& translated)
{
    for (const int corner : corners) {
        if (joints.count(corner) == 0)
            return false;
        translated.push_back(joints.at(corner));
    }
    return true;
}

map match_shells(const std::vector<SdShell>& shells, const std::vector<SdShell>& earlier, const map& joints)
{
    map found;
    for (std::size_t i = 0; i < shells.size(); ++i) {
        std::vector<int> corners;
        if (!translate(shells[i].node_ids, joints, corners))
            continue;
        for (std::size_t j = 0; j < earlier.size(); ++j) {
            if (earlier[j].node_ids != corners)
                continue;
            found[position(i)] = position(j);
            break;
        }
    }
    return found;
}

map inverse(const map& positions)
{
    map turned;
    for (const auto& [key, value] : positions)
        turned[value] = key;
    return turned;
}

} // namespace

OldProjMaps match(const SdReader& model, const SdReader& earlier)
{
    OldProjMaps maps;
    maps.joints_new_to_old = match_joints(model.nodes, earlier.nodes);
    maps.members_new_to_old = match_members(model.beams, earlier.beams, maps.joints_new_to_old);
    maps.shells_new_to_old = match_shells(model.shells, earlier.shells, maps.joints_new_to_old);
    maps.joints_old_to_new = inverse(maps.joints_new_to_old);
    maps.members_old_to_new = inverse(maps.members_new_to_old);
    maps.shells_old_to_new = inverse(maps.shells_new_to_old);
    return maps;
}

} // namespace STAAD::plain
