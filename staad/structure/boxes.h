/// Ranges of space, "XRANGE a b YRANGE c d", and the records in them.
#ifndef STAAD_STRUCTURE_BOXES_H
#define STAAD_STRUCTURE_BOXES_H

#include "staad/structure/reading.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace STAAD::detail {

enum class record_kind : std::uint8_t { joints, members, elements };

/// Takes "XRANGE a b", "YR a b" and their like off the front, as many as there are: what they share; none at
/// another word, which stays. Axes are those of the file, lengths in the units of the statement.
std::optional<Structure::Box> take_box(const structure_reading& context, row_words& words, std::size_t statement);

/// Positions of the records all of whose joints lie in the box, a thousandth of a mm more or less; ascending.
/// Cost: the records within the narrowest of the three ranges, which count against the budget.
std::vector<int> positions_within(structure_reading& context, record_kind kind, const Structure::Box& box);

} // namespace STAAD::detail

#endif
