/// Writing files completely or not at all.
#ifndef STAAD_IO_WHOLE_FILE_H
#define STAAD_IO_WHOLE_FILE_H

#include "staad/export.h"

#include <filesystem>
#include <string_view>
#include <system_error>

namespace STAAD {

/// Makes `text` the content of the file at `path`, with the line ends of the platform. No error if all of it
/// was written.
///
/// The text goes to a temporary file in the same folder, which replaces the target once all of it is on the
/// disk: a failure before that leaves an earlier file as it was. The new file gets the permissions of the one
/// it replaces; a symbolic link stays, and the file it points at is replaced. A device or a pipe is written to
/// directly.
STAAD_API std::error_code write_whole_file(const std::filesystem::path& path, std::string_view text);

/// Why write_whole_file() cannot write to `path`, as far as can be seen before writing: it is a folder, the
/// folder of the file is missing, or file or folder may not be written to.
STAAD_API std::error_code obstacle_to_writing(const std::filesystem::path& path);

} // namespace STAAD

#endif
