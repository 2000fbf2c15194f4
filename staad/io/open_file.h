/// Opening files by paths, and asking beforehand whether that is possible.
#ifndef STAAD_IO_OPEN_FILE_H
#define STAAD_IO_OPEN_FILE_H

#include "staad/io/read_file.h"

#include <cstdio>
#include <filesystem>
#include <memory>

namespace STAAD::detail {

/// As std::fopen; null and errno if the system refuses.
std::FILE* open_stream(const std::filesystem::path& path, const char* mode);

struct close_file {
    void operator()(std::FILE* file) const noexcept
    {
        static_cast<void>(std::fclose(file)); // nothing was written, so nothing can be lost
    }
};
using open_file = std::unique_ptr<std::FILE, close_file>;

/// Reads the whole of `path`, opened with `mode` as by std::fopen.
FileBytes read_opened(const std::filesystem::path& path, const char* mode, const ReadProgress& progress = {});

/// Reads the whole of `path`, opened for reading and writing although nothing is written: a file that is
/// missing or write-protected is refused, and so is a pipe. A null path is missing.
FileBytes read_updatable_file(const char* path);

/// Whether a file of that name is there and may be read; false for a null path.
bool can_read(const char* path);
bool can_read(const std::filesystem::path& path);

/// Whether `path` can be opened for reading as a file.
bool can_be_opened(const char* path);
bool can_be_opened(const std::filesystem::path& path);

} // namespace STAAD::detail

#endif
