/// How far two words are apart, for messages that guess what was meant.
#ifndef STAAD_TEXT_EDIT_DISTANCE_H
#define STAAD_TEXT_EDIT_DISTANCE_H

#include "staad/export.h"

#include <cstddef>
#include <string_view>

namespace STAAD {

/// Fewest letters to insert, drop, replace or swap with their neighbour to turn `from` into `to`.
/// Swaps count once: they are the commonest slip at a keyboard ("inof"). Throws std::bad_alloc.
/// Cost: the product of both lengths.
STAAD_API std::size_t edit_distance(std::string_view from, std::string_view to);

} // namespace STAAD

#endif
