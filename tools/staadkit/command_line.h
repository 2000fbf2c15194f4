/// The command line: the verbs, their options and their help.
#ifndef TOOLS_STAADKIT_COMMAND_LINE_H
#define TOOLS_STAADKIT_COMMAND_LINE_H

#include "cli/verbs.h"

#include <string>
#include <vector>

namespace tool {

/// The verb that prints the help of other verbs.
inline constexpr const char* help_verb = "help";

/// In the order of the help.
std::vector<std::string> verb_names();

/// Adds all verbs and options to an empty `app`. Parsing then sets `action` to the chosen verb's work, and
/// display().
void set_up_command_line(CLI::App& app, verb_action& action);

/// With their dashes, short ones first, in the order of the help.
std::vector<std::string> option_names(const CLI::App& command);

} // namespace tool

#endif
