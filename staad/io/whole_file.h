/// Files that are there whole or not at all.
#ifndef STAAD_IO_WHOLE_FILE_H
#define STAAD_IO_WHOLE_FILE_H

#include "staad/export.h"

#include <filesystem>
#include <string_view>
#include <system_error>

namespace STAAD {

/// Makes `text` the content of the file at `path`, lines ended as the platform has them. No error if all
/// of it is there.
///
/// The text goes to a temporary file in the same folder, which takes the place of the target once all of
/// it is on the disk: whatever goes wrong before that leaves an earlier file as it was. A file that is
/// replaced hands on its permissions; a symbolic link stays, and the file it points at is replaced. What
/// is no file, such as a device or a pipe, is written to directly.
STAAD_API std::error_code write_whole_file(const std::filesystem::path& path, std::string_view text);

/// Why write_whole_file() cannot write to `path`, as far as that shows before a byte is written: it is a
/// folder, the folder of the file is missing, or one of them may not be written to.
STAAD_API std::error_code obstacle_to_writing(const std::filesystem::path& path);

} // namespace STAAD

#endif
