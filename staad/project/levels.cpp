#include "staad/project/levels.h"

#include "staad/units/positions.h"

#include <algorithm>
#include <cmath>

namespace STAAD::detail {
namespace {

void add_level(std::vector<double>& levels, double height)
{
    // A host may hand over anything, and a NaN has no place in an order.
    if (!std::isnan(height))
        levels.push_back(std::floor(height + 0.5));
}

void add_levels_of(std::vector<double>& levels, const SdNode& start, const SdNode& end)
{
    const bool is_upright = start.x == end.x && start.y == end.y && start.z != end.z;
    if (is_upright || start.z == end.z)
        add_level(levels, start.z);
    if (is_upright)
        add_level(levels, end.z);
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

} // namespace STAAD::detail
