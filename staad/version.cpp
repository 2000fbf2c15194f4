#include "staad/version.h"

namespace STAAD {

const char* version() noexcept
{
    return STAADKIT_VERSION;
}

} // namespace STAAD
