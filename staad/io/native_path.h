/// Narrow names of files as paths for the standard library's file functions.
#ifndef STAAD_IO_NATIVE_PATH_H
#define STAAD_IO_NATIVE_PATH_H

#include "staad/export.h"

#include <filesystem>
#include <string_view>

namespace STAAD {

/// The path that the library opens for a narrow name: on Windows names are in the ANSI code page, and a path
/// too long for the system gets the prefix for long paths; elsewhere the bytes are the path. Throws
/// std::bad_alloc.
STAAD_API std::filesystem::path native_path(std::string_view name);

} // namespace STAAD

#endif
