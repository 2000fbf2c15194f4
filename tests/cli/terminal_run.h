/// Runs the built tool with a terminal before it, at which somebody types.
#ifndef TESTS_CLI_TERMINAL_RUN_H
#define TESTS_CLI_TERMINAL_RUN_H

#include "tool_run.h"

#include <string>
#include <string_view>
#include <vector>

namespace cli_test {

/// Standard input and standard error are a terminal, at which `typed` is typed; standard output is a file of the
/// folder of `tool`. `err` of the result is what the terminal shows, the echo of what is typed included.
tool_result at_terminal(const tool_run& tool, const std::vector<std::string>& arguments, std::string_view typed);

} // namespace cli_test

#endif
