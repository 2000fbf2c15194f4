#include "staad/io/output_file.h"

#include "staad/io/native_path.h"
#include "staad/io/open_file.h"

#include <cerrno>
#include <utility>

#ifdef _WIN32
#    include <io.h> // _commit
#else
#    include <unistd.h> // fsync
#endif

namespace STAAD::detail {
namespace {

bool reaches_disk(std::FILE* file) noexcept
{
#ifdef _WIN32
    return std::fflush(file) == 0 && _commit(_fileno(file)) == 0;
#else
    return std::fflush(file) == 0 && fsync(fileno(file)) == 0;
#endif
}

} // namespace

output_file::output_file(const char* path)
{
    if (path == nullptr)
        error_ = std::make_error_code(std::errc::invalid_argument);
    else
        open(native_path(path), "w");
}

output_file::output_file(const std::filesystem::path& path, const char* mode)
{
    open(path, mode);
}

void output_file::open(const std::filesystem::path& path, const char* mode)
{
    errno = 0;
    file_ = open_stream(path, mode);
    if (file_ == nullptr)
        fail();
}

output_file::~output_file()
{
    static_cast<void>(close());
}

void output_file::write(std::string_view text) noexcept
{
    if (error_)
        return;
    errno = 0;
    if (std::fwrite(text.data(), 1, text.size(), file_) != text.size())
        fail();
}

void output_file::flush_to_disk() noexcept
{
    errno = 0;
    if (!error_ && !reaches_disk(file_))
        fail();
}

std::error_code output_file::close() noexcept
{
    if (file_ != nullptr) {
        errno = 0;
        if (std::fclose(std::exchange(file_, nullptr)) != 0 && !error_)
            fail();
    }
    return error_;
}

void output_file::fail() noexcept
{
    error_ = errno != 0 ? std::error_code(errno, std::generic_category()) : std::make_error_code(std::errc::io_error);
}

} // namespace STAAD::detail
