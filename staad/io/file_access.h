/// Reading and writing files, behind one small interface. Knows neither texts nor models.
#ifndef STAAD_IO_FILE_ACCESS_H
#define STAAD_IO_FILE_ACCESS_H

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

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

/// Reads the whole of `path`, opened for reading alone: a device or pipe to its end.
file_bytes read_file(const std::filesystem::path& path);

/// Whether a file of that name is there and may be read; false for a null path.
bool can_read(const char* path);
bool can_read(const std::filesystem::path& path);

/// Whether `path` can be opened for reading as a file.
bool can_be_opened(const char* path);
bool can_be_opened(const std::filesystem::path& path);

/// A text file written from its beginning: what stood in it is gone. Line feeds become the line ends of
/// the platform. After the first failure it takes everything and writes nothing.
class output_file {
public:
    /// A null path cannot be opened.
    explicit output_file(const char* path);
    explicit output_file(const std::filesystem::path& path);
    ~output_file();
    output_file(const output_file&) = delete;
    output_file& operator=(const output_file&) = delete;

    void write(std::string_view text) noexcept;

    /// Closes the file. No error if every byte was written, else the first that was met.
    std::error_code close() noexcept;

private:
    void open(const std::filesystem::path& path);
    void fail() noexcept;

    std::FILE* file_ = nullptr;
    std::error_code error_;
};

} // namespace STAAD::detail

#endif
