#include "staad/io/open_file.h"

#include "staad/io/native_path.h"

#include <cerrno>
#include <system_error>

#ifdef _WIN32
#    include "staad/io/windows_path.h"

#    include <io.h>
#else
#    include <unistd.h>
#endif

namespace STAAD::detail {

std::FILE* open_stream(const std::filesystem::path& path, const char* mode)
{
#ifdef _WIN32
    return _wfopen(long_path(path.native()).c_str(), wide_text(mode).c_str());
#else
    return std::fopen(path.c_str(), mode);
#endif
}

FileBytes read_updatable_file(const char* path)
{
    FileBytes nothing;
    if (path == nullptr)
        return nothing;
    const std::filesystem::path file = native_path(path);
    std::error_code error;
    if (!std::filesystem::is_fifo(file, error))
        return read_opened(file, "r+b");
    // A pipe opened for reading and writing never ends: this program itself could still write to it.
    nothing.outcome = FileBytes::Outcome::refused;
    return nothing;
}

bool can_read(const char* path)
{
    return path != nullptr && can_read(native_path(path));
}

bool can_read(const std::filesystem::path& path)
{
#ifdef _WIN32
    constexpr int for_reading = 4;
    return _waccess(long_path(path.native()).c_str(), for_reading) == 0;
#else
    return access(path.c_str(), R_OK) == 0;
#endif
}

bool can_be_opened(const char* path)
{
    return path != nullptr && can_be_opened(native_path(path));
}

bool can_be_opened(const std::filesystem::path& path)
{
    std::error_code error;
    return !std::filesystem::is_directory(path, error) && open_file(open_stream(path, "r")) != nullptr;
}

} // namespace STAAD::detail
