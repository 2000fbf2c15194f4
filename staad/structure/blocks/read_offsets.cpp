#include "staad/structure/blocks/blocks.h"

namespace STAAD::detail {

void read_offsets(structure_reading& /*context*/) {}

} // namespace STAAD::detail
