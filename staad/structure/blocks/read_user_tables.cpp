#include "staad/structure/blocks/blocks.h"

namespace STAAD::detail {

void read_user_tables(structure_reading& /*context*/) {}

} // namespace STAAD::detail
