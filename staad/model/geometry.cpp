#include "staad/model/geometry.h"

namespace STAAD {

SdShell::SdShell(const SdSurface& surface)
    : id(surface.id), node_ids(surface.node_ids), thickness(surface.thickness), material(surface.material)
{
}

} // namespace STAAD
