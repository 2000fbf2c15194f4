#include "staad/compare/joint_grid.h"

#include "staad/compare/match.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>

namespace STAAD::detail {
namespace {

// A cell is 0.5 mm wide, more than twice the tolerance: a place reaches into two cells of each axis at most.
// Coordinates in whole and half mm, as nearly all are, lie in the middle of a cell.
constexpr double cells_per_mm = 2.0;

// A little wider than `same_place`: the sums below are rounded.
constexpr double reach = 0.1001;

/// The cell of a coordinate, never lower for a higher coordinate.
double cell_of(double coordinate) noexcept
{
    return std::floor(coordinate * cells_per_mm + 0.5);
}

std::array<double, 3> cell_of(const SdNode& joint) noexcept
{
    return {cell_of(joint.x), cell_of(joint.y), cell_of(joint.z)};
}

std::uint64_t hash_of(const std::array<double, 3>& cell) noexcept
{
    std::uint64_t hash = 0;
    for (const double part : cell)
        hash = mixed(hash, std::bit_cast<std::uint64_t>(part)); // never -0
    return hash;
}

bool has_place(const SdNode& joint) noexcept
{
    return std::isfinite(joint.x) && std::isfinite(joint.y) && std::isfinite(joint.z);
}

/// One cell, or two side by side.
struct cell_range {
    explicit cell_range(double coordinate) noexcept
        : cells{cell_of(coordinate - reach), cell_of(coordinate + reach)}, count(cells[0] == cells[1] ? 1 : 2)
    {
    }
    std::array<double, 2> cells;
    std::size_t count;
};

/// Whether the coordinates differ by less than `same_place` each.
bool is_same_place(const SdNode& left, const SdNode& right) noexcept
{
    return std::abs(left.x - right.x) < same_place && std::abs(left.y - right.y) < same_place &&
           std::abs(left.z - right.z) < same_place;
}

} // namespace

joint_grid::joint_grid(const std::vector<SdNode>& joints)
    : joints_(joints), cells_(joints.size()), nexts_(joints.size(), no_index), taken_(joints.size(), false)
{
    // Backward, so that every cell lists its joints in list order.
    for (std::size_t i = joints.size(); i-- > 0;) {
        if (!has_place(joints[i]))
            continue;
        std::int32_t& head = head_of(cell_of(joints[i]));
        nexts_[i] = head;
        head = static_cast<std::int32_t>(i);
    }
}

/// The first joint of a cell, `no_index` if the cell has none.
std::int32_t& joint_grid::head_of(const cell& key)
{
    return cells_.at(hash_of(key),
                     [&](std::int32_t other) { return cell_of(joints_[static_cast<std::size_t>(other)]) == key; });
}

/// Walks a cell and removes joints that were matched since the last walk, but never the last joint: `cells_`
/// finds a cell by the joints in it.
std::int32_t joint_grid::first_match(std::int32_t& head, const SdNode& joint)
{
    for (std::int32_t* link = &head; *link != no_index;) {
        const auto index = static_cast<std::size_t>(*link);
        if (taken_[index] && nexts_[index] != no_index) {
            *link = nexts_[index];
            continue;
        }
        if (!taken_[index] && is_same_place(joint, joints_[index]))
            return *link;
        link = &nexts_[index];
    }
    return no_index;
}

std::int32_t joint_grid::take_match(const SdNode& joint)
{
    if (!has_place(joint))
        return no_index;
    std::int32_t best = no_index;
    const cell_range xs(joint.x);
    const cell_range ys(joint.y);
    const cell_range zs(joint.z);
    for (std::size_t x = 0; x < xs.count; ++x) {
        for (std::size_t y = 0; y < ys.count; ++y) {
            for (std::size_t z = 0; z < zs.count; ++z) {
                const std::int32_t match = first_match(head_of({xs.cells[x], ys.cells[y], zs.cells[z]}), joint);
                if (match != no_index && (best == no_index || match < best))
                    best = match;
            }
        }
    }
    if (best != no_index)
        taken_[static_cast<std::size_t>(best)] = true;
    return best;
}

} // namespace STAAD::detail
