#include "cli/progress_line.h"

#include "cli/native_path.h"
#include "cli/terminal.h"
#include "cli/text_encoding.h"

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace tool {
namespace {

constexpr std::uintmax_t megabyte = 1'000'000;
constexpr std::uintmax_t long_file = 16 * megabyte;

void print(std::string_view text)
{
    static_cast<void>(std::fwrite(text.data(), 1, text.size(), stderr)); // a lost line does no harm
    static_cast<void>(std::fflush(stderr));
}

} // namespace

progress_line::progress_line(const std::string& path)
{
    std::error_code no_file;
    const std::uintmax_t size = std::filesystem::file_size(native_path(path), no_file);
    if (no_file || size <= long_file || display().quiet || !is_terminal(stderr))
        return;
    const std::string text = "reading " + printable_name(path) + ", " + std::to_string(size / megabyte) + " MB ...";
    width_ = display_width(text);
    print(text);
}

progress_line::~progress_line()
{
    if (width_ != 0)
        print('\r' + std::string(width_, ' ') + '\r');
}

} // namespace tool
