#include "staad/io/read_file.h"

#include "staad/io/open_file.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace STAAD {
namespace {

constexpr std::size_t first_block = std::size_t{1} << 16U;
constexpr std::size_t progress_step = std::size_t{1} << 16U;

/// Bytes from here to the end as the system states them, 0 for a pipe or a device. Not reliable: a folder
/// states the largest number there is.
std::size_t bytes_left(std::FILE* file) noexcept
{
    const long here = std::ftell(file);
    if (here < 0 || std::fseek(file, 0, SEEK_END) != 0)
        return 0;
    const long end = std::ftell(file);
    static_cast<void>(std::fseek(file, here, SEEK_SET));
    return end > here ? static_cast<std::size_t>(end - here) : 0;
}

/// A buffer that grows without setting its bytes to 0: to `expected` at once when the first block has been
/// read.
class byte_buffer {
public:
    explicit byte_buffer(FileBytes& result, std::size_t expected)
        : result_(result), capacity_(std::min(first_block, expected)), expected_(expected)
    {
        result_.bytes.reset(new char[capacity_]);
    }
    /// Reads at most `most` bytes; false at the end.
    bool read(std::FILE* file, std::size_t most)
    {
        if (result_.size == capacity_)
            grow();
        const std::size_t wanted = std::min(most, capacity_ - result_.size);
        const std::size_t taken = std::fread(result_.bytes.get() + result_.size, 1, wanted, file);
        result_.size += taken;
        return taken == wanted;
    }

private:
    void grow()
    {
        const std::size_t capacity = std::max(capacity_ * 2, expected_);
        std::unique_ptr<char[]> larger(new char[capacity]);
        std::memcpy(larger.get(), result_.bytes.get(), result_.size);
        result_.bytes = std::move(larger);
        capacity_ = capacity;
    }

    FileBytes& result_;
    std::size_t capacity_;
    std::size_t expected_;
};

std::error_code system_error_of(int number)
{
    return {number != 0 ? number : EIO, std::generic_category()};
}

FileBytes nothing_for(int error)
{
    using Outcome = FileBytes::Outcome;
    FileBytes result;
    result.outcome = error == ENOENT ? Outcome::missing : error == EISDIR ? Outcome::directory : Outcome::refused;
    result.error = system_error_of(error);
    return result;
}

} // namespace

FileBytes read_stream(std::FILE* stream, const ReadProgress& progress)
{
    FileBytes result;
    const std::size_t total = bytes_left(stream);
    // One more than there is, so that a single read meets the end. The file may grow meanwhile.
    byte_buffer buffer(result, total == 0 ? first_block : total + 1);
    const std::size_t step = progress ? progress_step : static_cast<std::size_t>(-1);
    errno = 0;
    while (buffer.read(stream, step)) {
        if (progress)
            progress(result.size, total == 0 ? total : std::max(total, result.size));
    }
    result.outcome = FileBytes::Outcome::read;
    if (std::ferror(stream) != 0) {
        result.outcome = errno == EISDIR ? FileBytes::Outcome::directory : FileBytes::Outcome::unreadable;
        result.error = system_error_of(errno);
    }
    return result;
}

FileBytes detail::read_opened(const std::filesystem::path& path, const char* mode, const ReadProgress& progress)
{
    errno = 0;
    const open_file file(open_stream(path, mode));
    if (!file)
        return nothing_for(errno);
    static_cast<void>(
        std::setvbuf(file.get(), nullptr, _IONBF, 0)); // read in one piece, without the stream's own buffer
    return read_stream(file.get(), progress);
}

FileBytes read_file(const std::filesystem::path& path, const ReadProgress& progress)
{
    std::error_code error;
    if (std::filesystem::is_directory(path, error))
        return nothing_for(EISDIR); // elsewhere it might open and read as empty
    return detail::read_opened(path, "rb", progress);
}

} // namespace STAAD
