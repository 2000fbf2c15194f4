/// The terminal that results and messages go to, if there is one, and how they are shown there.
#ifndef TOOLS_STAADKIT_CLI_TERMINAL_H
#define TOOLS_STAADKIT_CLI_TERMINAL_H

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

namespace tool {

enum class color_choice { automatic, never, always };

/// What --color and --quiet say. There is one for the whole process, as there is one terminal.
struct display_choice {
    color_choice color = color_choice::automatic;
    bool quiet = false; ///< of the messages only errors are printed, and no progress
};

display_choice& display() noexcept;

bool is_terminal(std::FILE* stream) noexcept;

/// Cells of a line of the terminal; 0 if the stream is no terminal, or the terminal does not say.
std::size_t terminal_width(std::FILE* stream) noexcept;

enum class paint { error, warning, note, heading };

/// `text` in the colour for it if the stream is to show colours, else as it stands. By itself, without --color,
/// only a terminal that can show them does, and only while the environment has no NO_COLOR.
std::string painted(std::string_view text, paint use, std::FILE* stream);

} // namespace tool

#endif
