#include "staad/structure/blocks/blocks.h"

namespace STAAD::detail {

void keep_statements(structure_reading& /*context*/) {}

} // namespace STAAD::detail
