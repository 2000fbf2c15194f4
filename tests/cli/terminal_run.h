/// Runs the built tool at a terminal.
#ifndef TESTS_CLI_TERMINAL_RUN_H
#define TESTS_CLI_TERMINAL_RUN_H

#include "tool_run.h"

#include <string>
#include <string_view>
#include <vector>

namespace cli_test {

/// Standard input and standard error are a terminal without colours, at which `typed` is typed; standard output is
/// a file of the folder of `tool`. `err` of the result is what the terminal shows, the echo of what is typed included.
tool_result at_terminal(const tool_run& tool, const std::vector<std::string>& arguments, std::string_view typed);

/// All three streams are a terminal of so many columns, whatever NO_COLOR was before; `environment` holds
/// "TERM=dumb" and the like. `out` of the result is what the terminal shows.
tool_result on_screen(unsigned short columns, const std::vector<std::string>& environment,
                      const std::vector<std::string>& arguments);

} // namespace cli_test

#endif
