#include "staad/io/file_access.h"

#include "staad/io/native_path.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

#ifdef _WIN32
#    include "staad/io/windows_path.h"

#    include <io.h>
#else
#    include <unistd.h>
#endif

namespace STAAD::detail {
namespace {

#ifdef _WIN32
/// Windows has wide names for files: narrow ones stop at 260 characters.
std::FILE* open_stream(const std::filesystem::path& path, const char* mode)
{
    return _wfopen(long_path(path.native()).c_str(), wide_text(mode).c_str());
}
#else
std::FILE* open_stream(const std::filesystem::path& path, const char* mode)
{
    return std::fopen(path.c_str(), mode);
}
#endif

struct close_file {
    void operator()(std::FILE* file) const noexcept
    {
        static_cast<void>(std::fclose(file)); // nothing was written, so nothing can be lost
    }
};
using open_file = std::unique_ptr<std::FILE, close_file>;

constexpr std::size_t first_guess = 1 << 16;

/// A named pipe opened for reading and writing never ends: this program itself could still write to it.
bool is_pipe(const std::filesystem::path& path)
{
    std::error_code error;
    return std::filesystem::is_fifo(path, error);
}

/// Size of a file that can be measured, 0 of one that cannot (a device).
std::size_t measured_size(std::FILE* file) noexcept
{
    if (std::fseek(file, 0, SEEK_END) != 0)
        return 0;
    const long size = std::ftell(file);
    std::rewind(file);
    return size > 0 ? static_cast<std::size_t>(size) : 0;
}

std::unique_ptr<char[]> uninitialised(std::size_t size)
{
    return std::unique_ptr<char[]>(new char[size]);
}

/// Reads to the end, whatever the file said of its size: it may grow meanwhile.
void read_to_end(std::FILE* file, file_bytes& result)
{
    std::size_t capacity = measured_size(file) + 1; // one more, so that the end is met in one read
    if (capacity == 1)
        capacity = first_guess;
    result.bytes = uninitialised(capacity);
    for (;;) {
        const std::size_t room = capacity - result.size;
        const std::size_t taken = std::fread(result.bytes.get() + result.size, 1, room, file);
        result.size += taken;
        if (taken < room)
            return;
        std::unique_ptr<char[]> larger = uninitialised(capacity * 2);
        std::memcpy(larger.get(), result.bytes.get(), result.size);
        result.bytes = std::move(larger);
        capacity *= 2;
    }
}

file_bytes read_opened(const std::filesystem::path& path, const char* mode)
{
    file_bytes result;
    errno = 0;
    const open_file file(open_stream(path, mode));
    if (!file) {
        result.outcome = errno == ENOENT ? file_bytes::state::missing : file_bytes::state::not_accessible;
        return result;
    }
    static_cast<void>(std::setvbuf(file.get(), nullptr, _IONBF, 0)); // read in one piece, past the stream's own buffer
    read_to_end(file.get(), result);
    result.outcome = std::ferror(file.get()) != 0 ? file_bytes::state::unreadable : file_bytes::state::read;
    return result;
}

} // namespace

file_bytes read_updatable_file(const char* path)
{
    if (path != nullptr && !is_pipe(native_path(path)))
        return read_opened(native_path(path), "r+b");
    file_bytes nothing;
    nothing.outcome = path == nullptr ? file_bytes::state::missing : file_bytes::state::not_accessible;
    return nothing;
}

file_bytes read_file(const std::filesystem::path& path)
{
    return read_opened(path, "rb");
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

output_file::output_file(const char* path)
{
    if (path == nullptr)
        error_ = std::make_error_code(std::errc::invalid_argument);
    else
        open(native_path(path));
}

output_file::output_file(const std::filesystem::path& path)
{
    open(path);
}

void output_file::open(const std::filesystem::path& path)
{
    errno = 0;
    file_ = open_stream(path, "w");
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
