/// The listing that belongs to a ".std" file.
#ifndef STAAD_HOST_FORCE_FILE_H
#define STAAD_HOST_FORCE_FILE_H

#include "staad/export.h"

#include <string>
#include <string_view>

namespace STAAD {

/// `path` with its last four characters replaced by ".txt"; if it has fewer, ".txt" is appended.
STAAD_API std::string force_file_beside(std::string_view path);

/// The ".txt" file beside the model `path` if it can be opened, else the one that the user chooses in a
/// file dialog; empty if none was chosen.
STAAD_API std::string find_force_file(std::string_view path);

} // namespace STAAD

#endif
