/// Writing a text file.
#ifndef STAAD_IO_OUTPUT_FILE_H
#define STAAD_IO_OUTPUT_FILE_H

#include <cstdio>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace STAAD::detail {

/// A text file written from its beginning; earlier content is lost. Line feeds become the line ends of the
/// platform. After the first failure nothing more is written.
class output_file {
public:
    /// A null path cannot be opened.
    explicit output_file(const char* path);
    /// `mode` as std::fopen has it.
    explicit output_file(const std::filesystem::path& path, const char* mode = "w");
    ~output_file();
    output_file(const output_file&) = delete;
    output_file& operator=(const output_file&) = delete;

    bool is_open() const noexcept { return file_ != nullptr; }
    void write(std::string_view text) noexcept;
    /// Waits until what was written is on the disk: otherwise a rename could reach the disk before the content.
    void flush_to_disk() noexcept;
    /// Closes the file. No error if every byte was written, else the first one.
    std::error_code close() noexcept;

private:
    void open(const std::filesystem::path& path, const char* mode);
    void fail() noexcept;

    std::FILE* file_ = nullptr;
    std::error_code error_;
};

} // namespace STAAD::detail

#endif
