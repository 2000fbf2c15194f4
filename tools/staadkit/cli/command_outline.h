/// The command line as data: what the manual page and the completions of the shells are made from.
#ifndef TOOLS_STAADKIT_CLI_COMMAND_OUTLINE_H
#define TOOLS_STAADKIT_CLI_COMMAND_OUTLINE_H

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace tool {

/// What takes the place of a word such as FILE in the help.
enum class value_kind {
    none,   ///< of an option that takes no value
    word,   ///< one of a few
    number, ///< N in the help
    file
};

struct option_outline {
    std::vector<std::string> names; ///< with their dashes, short ones first
    value_kind kind = value_kind::none;
    bool value_may_lack = false;
    bool repeats = false;
    std::string placeholder;        ///< the value in the help
    std::vector<std::string> words; ///< all that the value can be, of kind word
    std::string help;
};

struct argument_outline {
    std::string name;
    bool repeats = false;
    std::string help;
};

struct command_outline {
    std::string name;
    std::string help;
    std::vector<option_outline> options;
    std::vector<argument_outline> arguments;
    std::vector<command_outline> verbs;
};

/// What `app` has been set up to understand, in the order of its help.
command_outline outline_of(const CLI::App& app);

/// The names of all options of a command, in their order.
std::vector<std::string> option_names(const command_outline& command);

} // namespace tool

#endif
