#include "staad/structure/structure.h"

namespace STAAD {

FileLines origin(const Structure& structure, Structure::Source source) noexcept
{
    return source == 0 || source > structure.sources.size() ? FileLines() : structure.sources[source - 1];
}

} // namespace STAAD
