// staadkit: shows the contents of .std files, and converts them.

#include "cli/messages.h"
#include "cli/suggest.h"
#include "cli/terminal_services.h"
#include "cli/text_encoding.h"
#include "command_line.h"
#include "output/std_output.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <csignal>
#include <exception>
#include <new>
#include <string>
#include <vector>

#ifdef _WIN32
#    include <windows.h>
#endif

namespace tool {
namespace {

/// Prints what is wrong, the word probably meant, and where to find help: with `command`.
exit_code refuse(const CLI::App& command, const std::string& message, const std::string& nearest = {})
{
    const std::string meant = nearest.empty() ? "" : fmt::format("; did you mean '{}'?", nearest);
    const std::string verb = command.get_parent() != nullptr ? command.get_name() + ' ' : "";
    print_error(fmt::format("{}{}\nTry: staadkit {}--help", printable_name(message), meant, verb));
    return wrong_usage;
}

bool takes_value(const CLI::App& app, const std::string& word)
{
    const CLI::Option* const option = app.get_option_no_throw(word);
    return option != nullptr && option->get_items_expected_min() > 0;
}

/// The first word that is neither an option nor its value must be a verb; after "help" so must the next one.
const std::string* unknown_verb(const CLI::App& app, const std::vector<std::string>& arguments)
{
    const std::vector<std::string> verbs = verb_names();
    bool is_value = false;
    for (const std::string& word : arguments) {
        const bool is_option = word[0] == '-';
        if (!is_option && !is_value) {
            if (std::find(verbs.begin(), verbs.end(), word) == verbs.end())
                return &word;
            if (word != help_verb)
                return nullptr;
        }
        is_value = is_option && takes_value(app, word);
    }
    return nullptr;
}

const CLI::App& chosen_command(const CLI::App& app)
{
    const std::vector<CLI::App*> chosen = app.get_subcommands();
    return chosen.empty() ? app : *chosen.front();
}

exit_code refuse_extras(const CLI::App& app)
{
    const std::vector<std::string> extras = app.remaining(true);
    const std::string& word = extras.front();
    const CLI::App& command = chosen_command(app);
    if (word[0] != '-')
        return refuse(command, "one argument too many: '" + word + "'");
    const std::string nearest = nearest_word(word, option_names(command));
    if (nearest == word)
        return refuse(app, "option '" + word + "' belongs after the verb");
    return refuse(command, "unknown option '" + word + "'", nearest);
}

exit_code run(int argc, const char* const* argv)
{
    CLI::App app;
    verb_action action;
    set_up_command_line(app, action);
    const std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);
    if (const std::string* word = unknown_verb(app, arguments))
        return refuse(app, "unknown verb '" + *word + "'", nearest_word(*word, verb_names()));
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        return print_result(app.help(), done);
    } catch (const CLI::CallForVersion& version) {
        return print_result(std::string(version.what()) + '\n', done);
    } catch (const CLI::ExtrasError&) {
        return refuse_extras(app);
    } catch (const CLI::RequiredError& error) {
        const bool has_verb = !app.get_subcommands().empty();
        return refuse(chosen_command(app), has_verb ? error.what() : "no verb given");
    } catch (const CLI::ParseError& error) {
        return refuse(chosen_command(app), error.what());
    }
    return action();
}

} // namespace
} // namespace tool

/// A limit on the size of files must show as a failed write, not end the process halfway.
static void ignore_size_signal()
{
#ifdef SIGXFSZ
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
#endif
}

#ifdef _WIN32
/// Makes the console show UTF-8, in which all output is, for as long as it lives.
class utf8_console {
public:
    utf8_console() : before_(GetConsoleOutputCP()) { SetConsoleOutputCP(CP_UTF8); }
    ~utf8_console() { SetConsoleOutputCP(before_); }
    utf8_console(const utf8_console&) = delete;
    utf8_console& operator=(const utf8_console&) = delete;

private:
    UINT before_;
};
#endif

// Only a message for which there is no memory can throw here, and the process ends anyway.
int main(int argc, char** argv) // NOLINT(bugprone-exception-escape)
{
    ignore_size_signal();
#ifdef _WIN32
    const utf8_console console;
#endif
    tool::terminal_services services(STAAD::GetPlatformServices());
    STAAD::SetPlatformServices(&services);
    try {
        return tool::run(argc, argv);
    } catch (const std::bad_alloc&) {
        tool::print_error("not enough memory");
        return tool::no_model;
    } catch (const std::exception& error) {
        tool::print_error(error.what());
        return tool::no_model;
    }
}
