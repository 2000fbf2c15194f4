#include "cli/progress_line.h"

#include "cli/terminal.h"
#include "cli/text_encoding.h"

#include <fmt/format.h>

#include <cstdio>
#include <string_view>
#include <utility>

namespace tool {
namespace {

using clock = std::chrono::steady_clock;

constexpr auto before_shown = std::chrono::seconds(1);
constexpr auto between_updates = std::chrono::milliseconds(100);

/// The one line that may be shown on the terminal, and the cells that it takes now.
const progress_line* current = nullptr;
std::size_t shown_width = 0;

void print(std::string_view text)
{
    static_cast<void>(std::fwrite(text.data(), 1, text.size(), stderr)); // a lost line does no harm
    static_cast<void>(std::fflush(stderr));
}

} // namespace

progress_line::progress_line(std::string name, unit counted)
    : name_(std::move(name)), counted_(counted),
      may_show_(current == nullptr && !display().quiet && is_terminal(stderr)), next_(clock::now() + before_shown)
{
    if (may_show_)
        current = this;
}

progress_line::~progress_line()
{
    if (current != this)
        return;
    clear_progress();
    current = nullptr;
}

void progress_line::update(std::size_t done, std::size_t total)
{
    if (!may_show_ || clock::now() < next_)
        return;
    next_ = clock::now() + between_updates;
    const std::size_t width = terminal_width(stderr);
    const std::string line = width > 1 ? clipped(text(done, total), width - 1) : text(done, total);
    clear_progress();
    print(line);
    shown_width = display_width(line);
}

std::string progress_line::text(std::size_t done, std::size_t total) const
{
    constexpr double megabyte = 1e6;
    if (counted_ == unit::files)
        return fmt::format("{} of {} files", done, total);
    const double read = static_cast<double>(done) / megabyte;
    if (total == 0)
        return fmt::format("reading {}: {:.0f} MB", printable_name(name_), read);
    return fmt::format("reading {}: {:.0f} of {:.0f} MB", printable_name(name_), read,
                       static_cast<double>(total) / megabyte);
}

void clear_progress()
{
    if (shown_width != 0)
        print('\r' + std::string(shown_width, ' ') + '\r');
    shown_width = 0;
}

} // namespace tool
