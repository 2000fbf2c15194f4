/// The joints of an earlier model by place, each to be matched once.
#ifndef STAAD_COMPARE_JOINT_GRID_H
#define STAAD_COMPARE_JOINT_GRID_H

#include "staad/compare/hash_table.h"
#include "staad/model/geometry.h"

#include <array>
#include <cstdint>
#include <vector>

namespace STAAD::detail {

/// Cells of space with the joints in them that are not matched yet.
class joint_grid {
public:
    /// `joints` must outlive the grid.
    explicit joint_grid(const std::vector<SdNode>& joints);

    /// Takes the first free joint in list order at the place of `joint`: its index, `no_index` if there
    /// is none. Cost: the joints in at most eight cells, one cell for coordinates in whole or half mm.
    std::int32_t take_match(const SdNode& joint);

private:
    using cell = std::array<double, 3>;

    std::int32_t& head_of(const cell& key);
    std::int32_t first_match(std::int32_t& head, const SdNode& joint);

    const std::vector<SdNode>& joints_;
    hash_table cells_;                // the first joint of each cell
    std::vector<std::int32_t> nexts_; // the next one of the same cell
    std::vector<bool> taken_;
};

} // namespace STAAD::detail

#endif
