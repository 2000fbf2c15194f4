/// The option that chooses how a deck is read.
#ifndef TOOLS_STAADKIT_CLI_READING_OPTION_H
#define TOOLS_STAADKIT_CLI_READING_OPTION_H

namespace CLI {
class App;
}

namespace tool {

/// How a deck is read: as hosts get it, or as its author meant it.
enum class reading_choice { host, complete };

/// Adds --reading, which sets `reading`; what it holds before is the default, and the help says so.
void add_reading_option(CLI::App& command, reading_choice& reading);

} // namespace tool

#endif
