/// The heights at which a structure has floors or column ends.
#ifndef STAAD_STOREYS_LEVELS_H
#define STAAD_STOREYS_LEVELS_H

#include "staad/model/sd_reader.h"
#include "staad/model/storey_layer.h"

#include <cstddef>
#include <vector>

namespace STAAD::detail {

/// Levels of `model` in whole mm, ascending, each once.
///
/// A column, its ends one exactly above the other, gives the heights of both ends; a member with
/// both ends at exactly the same height gives that height; inclined members give none. Members
/// with an end that is no joint give none either.
/// Cost: n log n in the number of members, memory for two heights of each.
std::vector<double> storey_levels(const SdReader& model);

/// Where everything of a model stands among its levels.
struct level_assignment {
    std::vector<double> levels;             ///< as storey_levels
    std::vector<NodeLevel> joint_levels;    ///< one per joint; `levels.size()` for one above every level
    std::vector<std::size_t> member_levels; ///< that of the higher end; 0 if no end is a joint
    std::vector<std::size_t> shell_levels;  ///< that of the highest corner; 0 if no corner is a joint
};

level_assignment assign_levels(const SdReader& model);

} // namespace STAAD::detail

#endif
