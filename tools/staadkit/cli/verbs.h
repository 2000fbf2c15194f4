/// The verbs of the tool, and its exit codes.
#ifndef TOOLS_STAADKIT_CLI_VERBS_H
#define TOOLS_STAADKIT_CLI_VERBS_H

#include <functional>

namespace CLI {
class App;
}

namespace tool {

/// Exit codes of the process; scripts rely on the numbers. Graver outcomes have larger ones.
enum exit_code : int {
    done = 0,               ///< warnings included
    done_with_findings = 1, ///< for verbs that check or compare
    wrong_usage = 2,
    no_model = 3,
    not_written = 4
};

struct exit_code_meaning {
    exit_code code;
    const char* meaning; ///< of the help
};

inline constexpr exit_code_meaning exit_code_meanings[] = {
    {done, "done, warnings included"},
    {done_with_findings, "done, with findings or differences, by a verb that checks"},
    {wrong_usage, "wrong usage"},
    {no_model, "no model in the input"},
    {not_written, "output not written"}};

/// Does the work of a verb; called when its arguments are read.
using verb_action = std::function<exit_code()>;

/// One verb: `set_up` adds its options to `command` and returns what to run when they are read.
struct verb {
    const char* name;
    const char* help; ///< one line
    verb_action (*set_up)(CLI::App& command);
};

verb_action set_up_info(CLI::App& command);
verb_action set_up_dump(CLI::App& command);
verb_action set_up_convert(CLI::App& command);
verb_action set_up_forces(CLI::App& command);
verb_action set_up_storeys(CLI::App& command);
verb_action set_up_compare(CLI::App& command);

} // namespace tool

#endif
