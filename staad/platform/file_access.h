/// Reading files, behind one small interface. Knows neither texts nor models.
#ifndef STAAD_PLATFORM_FILE_ACCESS_H
#define STAAD_PLATFORM_FILE_ACCESS_H

#include <cstddef>
#include <memory>

namespace STAAD::detail {

/// The bytes of a file, or why there are none.
struct file_bytes {
    enum class state { read, missing, not_accessible, unreadable };

    state outcome = state::missing;
    std::unique_ptr<char[]> bytes;
    std::size_t size = 0;
};

/// Reads the whole of `path`, opened for reading and writing although nothing is written: a file that
/// is missing or write-protected is refused. A null path is missing.
file_bytes read_updatable_file(const char* path);

} // namespace STAAD::detail

#endif
