#include "output/std_output.h"

#include "cli/messages.h"
#include "cli/progress_line.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstring>

namespace tool {
namespace {

constexpr std::size_t buffer_size = 1U << 16U;

} // namespace

std_output::std_output()
{
    buffer_.reserve(buffer_size);
}

void std_output::put(std::string_view text)
{
    if (buffer_.size() + text.size() > buffer_size)
        flush();
    if (text.size() > buffer_size)
        write(text);
    else
        buffer_.append(text);
}

void std_output::put(char c)
{
    if (buffer_.size() == buffer_size)
        flush();
    buffer_.push_back(c);
}

void std_output::flush()
{
    write(buffer_);
    buffer_.clear();
}

void std_output::write(std::string_view text)
{
    clear_progress();
    if (!failed_ && std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) {
        error_ = errno;
        failed_ = true;
    }
}

exit_code std_output::close(exit_code so_far)
{
    flush();
    if (!failed_ && std::fflush(stdout) != 0) {
        error_ = errno;
        failed_ = true;
    }
    if (!failed_)
        return so_far;
    print_error(fmt::format("standard output: {}", std::strerror(error_)));
    return not_written;
}

exit_code print_result(std::string_view text, exit_code so_far)
{
    std_output out;
    out.put(text);
    return out.close(so_far);
}

} // namespace tool
