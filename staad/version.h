/// Which version of the library this is. CMake reads the project's version from here.
#ifndef STAAD_VERSION_H
#define STAAD_VERSION_H

#include "staad/export.h"

#define STAADKIT_VERSION_MAJOR 0
#define STAADKIT_VERSION_MINOR 1
#define STAADKIT_VERSION_PATCH 0

/// The version as a text, "MAJOR.MINOR.PATCH".
#define STAADKIT_VERSION                                                                                               \
    STAADKIT_DETAIL_TEXT(STAADKIT_VERSION_MAJOR)                                                                       \
    "." STAADKIT_DETAIL_TEXT(STAADKIT_VERSION_MINOR) "." STAADKIT_DETAIL_TEXT(STAADKIT_VERSION_PATCH)
#define STAADKIT_DETAIL_TEXT(number) STAADKIT_DETAIL_QUOTED(number)
#define STAADKIT_DETAIL_QUOTED(number) #number

namespace STAAD {

/// STAADKIT_VERSION of the library that is linked, which may differ from that of the headers.
STAAD_API const char* version() noexcept;

} // namespace STAAD

#endif
