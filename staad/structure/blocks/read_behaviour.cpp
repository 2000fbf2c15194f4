#include "staad/structure/blocks/blocks.h"

namespace STAAD::detail {

void read_behaviour(structure_reading& /*context*/) {}

} // namespace STAAD::detail
