/// Cracked members, a part of what read_behaviour() reads.
#ifndef STAAD_STRUCTURE_BLOCKS_READ_CRACKED_H
#define STAAD_STRUCTURE_BLOCKS_READ_CRACKED_H

#include "staad/structure/reading.h"

namespace STAAD::detail {

/// MEMBER CRACKED: factors of stiffness. Members of one line share the record.
void read_cracked(structure_reading& context);

} // namespace STAAD::detail

#endif
