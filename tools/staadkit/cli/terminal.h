/// The terminal that results and messages go to, if there is one: its width and colours.
#ifndef TOOLS_STAADKIT_CLI_TERMINAL_H
#define TOOLS_STAADKIT_CLI_TERMINAL_H

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

namespace tool {

enum class color_choice { automatic, never, always };

/// The choices of --color and --quiet, one for the whole process.
struct display_choice {
    color_choice color = color_choice::automatic;
    bool quiet = false; ///< prints errors only, and no progress
};

display_choice& display() noexcept;

bool is_terminal(std::FILE* stream) noexcept;

/// Cells of a line of the terminal; 0 if the stream is no terminal, or its width is unknown.
std::size_t terminal_width(std::FILE* stream) noexcept;

enum class paint { error, warning, note, heading };

/// `text` in its colour if the stream shows colours, else unchanged. Without --color only a terminal that can
/// show colours does, and only if the environment has no NO_COLOR.
std::string painted(std::string_view text, paint use, std::FILE* stream);

} // namespace tool

#endif
