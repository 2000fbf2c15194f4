#include "staad/structure/blocks/blocks.h"

namespace STAAD::detail {

void read_combinations(structure_reading& /*context*/) {}

} // namespace STAAD::detail
