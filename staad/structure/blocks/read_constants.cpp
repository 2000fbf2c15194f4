#include "staad/structure/blocks/blocks.h"

namespace STAAD::detail {

void read_constants(structure_reading& /*context*/) {}

} // namespace STAAD::detail
