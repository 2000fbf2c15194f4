// Normals of shell elements.

#include "staad/model/positions.h"
#include "staad/model/sd_reader.h"

#include <algorithm>
#include <cmath>

namespace STAAD {
namespace {

/// A normal that points further down than this is turned over.
constexpr double downward_limit = -0.01;

struct vector_3 {
    double x = 0.0;
    double y = 0.0;
    double z = 1.0;
};

/// Newell's sums over the corners, started at (0, 0, 1): a shell without area gets an upward normal, and the 1
/// is negligible against the area of a real shell in mm2. Every corner must be a joint.
vector_3 newell_sums(const std::vector<SdNode>& nodes, const std::vector<int>& corners)
{
    const auto joint = [&](int position) -> const SdNode& { return nodes[static_cast<std::size_t>(position) - 1]; };
    vector_3 sum;
    const SdNode* previous = &joint(corners.back());
    for (const int position : corners) {
        const SdNode& corner = joint(position);
        sum.x += (previous->y - corner.y) * (previous->z + corner.z);
        sum.y += (previous->x + corner.x) * (previous->z - corner.z);
        sum.z += (corner.y + previous->y) * (previous->x - corner.x);
        previous = &corner;
    }
    return sum;
}

bool are_joints(const std::vector<SdNode>& nodes, const std::vector<int>& corners)
{
    return std::all_of(corners.begin(), corners.end(),
                       [&](int position) { return at_position(nodes, position) != nullptr; });
}

} // namespace

void SdReader::NormalOfShell(int index, double& nx, double& ny, double& nz) const
{
    nx = 0.0;
    ny = 0.0;
    nz = 1.0;
    const SdShell* const shell = at_position(shells, index);
    if (shell == nullptr || shell->node_ids.empty() || !are_joints(nodes, shell->node_ids))
        return;
    const vector_3 sum = newell_sums(nodes, shell->node_ids);
    const double length = std::sqrt(sum.x * sum.x + sum.y * sum.y + sum.z * sum.z);
    if (!std::isfinite(length) || length == 0.0)
        return;
    const double turn = sum.z / length < downward_limit ? -1.0 : 1.0;
    nx = turn * (sum.x / length);
    ny = turn * (sum.y / length);
    nz = turn * (sum.z / length);
}

} // namespace STAAD
