/// The heights at which a structure has floors or column ends.
#ifndef STAAD_PROJECT_LEVELS_H
#define STAAD_PROJECT_LEVELS_H

#include "staad/model/sd_reader.h"

#include <vector>

namespace STAAD::detail {

/// Levels of `model` in whole mm, ascending, each once.
///
/// A column, its ends one exactly above the other, gives the heights of both ends; a member with
/// both ends at exactly the same height gives that height; inclined members give none. Members
/// with an end that is no joint give none either.
/// Cost: n log n in the number of members, memory for two heights of each.
std::vector<double> storey_levels(const SdReader& model);

} // namespace STAAD::detail

#endif
