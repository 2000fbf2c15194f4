/// Reads whole files, pipes and open streams, opened for reading only.
#ifndef STAAD_IO_READ_FILE_H
#define STAAD_IO_READ_FILE_H

#include "staad/export.h"

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <string_view>
#include <system_error>

namespace STAAD {

/// The bytes of a file, or why there are none.
struct FileBytes {
    enum class Outcome {
        read,
        missing,    ///< there is no such file
        directory,  ///< it is a folder
        refused,    ///< it may not be opened
        unreadable, ///< it cannot be read to its end; `bytes` has what was read
    };

    Outcome outcome = Outcome::missing;
    std::error_code error;         ///< of the system, unless the file was read
    std::unique_ptr<char[]> bytes; ///< as they are in the file; null if nothing was read
    std::size_t size = 0;

    std::string_view text() const noexcept { return {bytes.get(), size}; }
};

/// Called after every 65,536 bytes with the bytes read, and all there are, 0 if that is unknown.
using ReadProgress = std::function<void(std::size_t done, std::size_t total)>;

/// Reads the whole of `path`, a device or a pipe to its end. Opens it for reading only. Throws:
/// std::bad_alloc, and what `progress` throws.
STAAD_API FileBytes read_file(const std::filesystem::path& path, const ReadProgress& progress = {});

/// Reads what is left of `stream`, which stays open. In a shared library for Windows the stream must be
/// one of the same C runtime.
STAAD_API FileBytes read_stream(std::FILE* stream, const ReadProgress& progress = {});

} // namespace STAAD

#endif
