#include "staad/structure/blocks/blocks.h"

namespace STAAD::detail {

void read_load_cases(structure_reading& /*context*/) {}

} // namespace STAAD::detail
