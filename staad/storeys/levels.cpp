#include "staad/storeys/levels.h"

#include "staad/model/positions.h"
#include "staad/model/sd_reader.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace STAAD {
namespace {

/// To the nearest whole number, halves upward.
double rounded(double value)
{
    return std::floor(value + 0.5);
}

void add_level(std::vector<double>& levels, double height)
{
    // A host's model may hold a NaN, which cannot be sorted.
    if (!std::isnan(height))
        levels.push_back(rounded(height));
}

void add_levels_of(std::vector<double>& levels, const SdNode& start, const SdNode& end)
{
    const bool is_upright = start.x == end.x && start.y == end.y && start.z != end.z;
    if (is_upright || start.z == end.z)
        add_level(levels, start.z);
    if (is_upright)
        add_level(levels, end.z);
}

std::vector<NodeLevel> levels_of_joints(const std::vector<SdNode>& joints, const std::vector<double>& levels)
{
    std::vector<NodeLevel> result;
    result.reserve(joints.size());
    for (const SdNode& joint : joints) {
        NodeLevel entry;
        entry.position = static_cast<int>(result.size()) + 1;
        entry.rx = rounded(joint.x);
        entry.ry = rounded(joint.y);
        entry.rz = rounded(joint.z);
        entry.level = static_cast<int>(std::lower_bound(levels.begin(), levels.end(), entry.rz) - levels.begin());
        result.push_back(entry);
    }
    return result;
}

/// The highest level among joints by position; positions without a joint are left out.
template<class Positions>
std::size_t highest_level(const Positions& positions, const std::vector<NodeLevel>& joint_levels)
{
    int highest = 0;
    for (const int position : positions) {
        if (const NodeLevel* joint = at_position(joint_levels, position))
            highest = std::max(highest, joint->level);
    }
    return static_cast<std::size_t>(highest);
}

} // namespace

std::vector<double> storey_levels(const SdReader& model)
{
    std::vector<double> levels;
    for (const SdBeam& member : model.beams) {
        const SdNode* start = at_position(model.nodes, member.node_start);
        const SdNode* end = at_position(model.nodes, member.node_end);
        if (start && end)
            add_levels_of(levels, *start, *end);
    }
    std::sort(levels.begin(), levels.end());
    levels.erase(std::unique(levels.begin(), levels.end()), levels.end());
    return levels;
}

LevelAssignment assign_levels(const SdReader& model)
{
    LevelAssignment result;
    result.levels = storey_levels(model);
    result.joint_levels = levels_of_joints(model.nodes, result.levels);
    result.member_levels.reserve(model.beams.size());
    for (const SdBeam& member : model.beams)
        result.member_levels.push_back(
            highest_level(std::array{member.node_start, member.node_end}, result.joint_levels));
    result.shell_levels.reserve(model.shells.size());
    for (const SdShell& shell : model.shells)
        result.shell_levels.push_back(highest_level(shell.node_ids, result.joint_levels));
    return result;
}

} // namespace STAAD
