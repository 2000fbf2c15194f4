#include "cli/terminal.h"

#include <cstdlib>

#ifdef _WIN32
#    include <io.h> // _isatty
#    include <windows.h>
#else
#    include <sys/ioctl.h>
#    include <unistd.h> // isatty
#endif

namespace tool {
namespace {

#ifdef _WIN32
HANDLE console_of(std::FILE* stream) noexcept
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
}

/// The shell restores its own mode when the program has ended.
bool can_show_colors(std::FILE* stream) noexcept
{
    constexpr DWORD sequences = 0x0004; // ENABLE_VIRTUAL_TERMINAL_PROCESSING, which older headers lack
    DWORD mode = 0;
    return GetConsoleMode(console_of(stream), &mode) != 0 && SetConsoleMode(console_of(stream), mode | sequences) != 0;
}
#else
bool can_show_colors(std::FILE* stream) noexcept
{
    const char* const kind = std::getenv("TERM");
    return is_terminal(stream) && kind != nullptr && std::string_view(kind) != "dumb";
}
#endif

bool shows_colors(std::FILE* stream) noexcept
{
    const bool can = can_show_colors(stream);
    if (display().color != color_choice::automatic)
        return display().color == color_choice::always;
    const char* const refused = std::getenv("NO_COLOR");
    return can && (refused == nullptr || *refused == '\0');
}

const char* sequence_of(paint use) noexcept
{
    switch (use) {
    case paint::error:
        return "\x1B[1;31m"; // bold red
    case paint::warning:
        return "\x1B[1;33m"; // bold yellow
    case paint::note:
        return "\x1B[36m"; // cyan
    case paint::heading:
        break;
    }
    return "\x1B[1m"; // bold
}

} // namespace

display_choice& display() noexcept
{
    static display_choice choice;
    return choice;
}

bool is_terminal(std::FILE* stream) noexcept
{
#ifdef _WIN32
    return _isatty(_fileno(stream)) != 0;
#else
    return isatty(fileno(stream)) != 0;
#endif
}

std::size_t terminal_width(std::FILE* stream) noexcept
{
#ifdef _WIN32
    CONSOLE_SCREEN_BUFFER_INFO console{};
    if (GetConsoleScreenBufferInfo(console_of(stream), &console) == 0)
        return 0;
    return static_cast<std::size_t>(console.srWindow.Right - console.srWindow.Left + 1);
#else
    winsize size{};
    return isatty(fileno(stream)) != 0 && ioctl(fileno(stream), TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
#endif
}

std::string painted(std::string_view text, paint use, std::FILE* stream)
{
    if (!shows_colors(stream))
        return std::string(text);
    return sequence_of(use) + std::string(text) + "\x1B[0m";
}

} // namespace tool
