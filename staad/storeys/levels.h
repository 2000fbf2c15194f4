/// The heights at which a structure has floors or column ends.
#ifndef STAAD_STOREYS_LEVELS_H
#define STAAD_STOREYS_LEVELS_H

#include "staad/export.h"
#include "staad/model/storey_layer.h"

#include <cstddef>
#include <vector>

namespace STAAD {

class SdReader;

/// Levels of `model` in whole mm, ascending, each once.
///
/// A column, its ends one exactly above the other, gives the heights of both ends; a member with both ends
/// at exactly the same height gives that height; inclined members give none, nor do members with an end
/// that is no joint.
/// Throws: std::bad_alloc. Cost: n log n in the number of members, memory for two heights of each.
STAAD_API std::vector<double> storey_levels(const SdReader& model);

/// The level of every joint, member and shell of a model: an index in `levels`, from 0.
struct LevelAssignment {
    std::vector<double> levels;             ///< as storey_levels
    std::vector<NodeLevel> joint_levels;    ///< by index in SdReader::nodes
    std::vector<std::size_t> member_levels; ///< by index in `beams`: that of the higher end
    std::vector<std::size_t> shell_levels;  ///< by index in `shells`: that of the highest corner
};

/// A joint belongs to the lowest level that is not below it, compared in whole mm; above the highest level its
/// level is `levels.size()`. Ends and corners without a joint are left out; a record without any joint has
/// level 0.
/// Throws: std::bad_alloc. Cost: that of storey_levels, and a binary search for each joint.
STAAD_API LevelAssignment assign_levels(const SdReader& model);

} // namespace STAAD

#endif
