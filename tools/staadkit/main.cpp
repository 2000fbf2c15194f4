// staadkit: shows what .std files hold, and writes them anew.

#include "cli/command_pages.h"
#include "cli/messages.h"
#include "cli/suggest.h"
#include "cli/terminal_services.h"
#include "cli/text_encoding.h"
#include "cli/verbs.h"
#include "output/std_output.h"

#include <CLI/CLI.hpp>

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

constexpr verb verbs[] = {
    {"info", "Show what files hold: joints, members, storeys, sections, supports, loads", set_up_info},
    {"dump", "Print every field of a model as JSON, numbers exact to the last bit", set_up_dump},
    {"convert", "Write a model as normalised .std, with generated wind and seismic loads", set_up_convert},
    {"forces", "Show the internal forces of members that the analysis printed", set_up_forces},
    {"storeys", "Show what stands in which storey: joints, members, shells, sections", set_up_storeys},
    {"compare", "Show how a model differs from an earlier one, and take definitions over from it", set_up_compare},
};

std::string exit_code_help()
{
    std::string text = "Exit codes:";
    for (const exit_code_meaning& each : exit_code_meanings)
        text += "\n  " + std::to_string(each.code) + "  " + each.meaning;
    return text;
}

/// Thrown once --print is read: nothing else is asked of the arguments then, as with --help.
struct call_for_page {
    const command_page& page;
};

std::string why_no_page(const std::string& name)
{
    return find_page(name) == nullptr ? '\'' + name + "' is none of " + page_names() : std::string();
}

/// What was wrong, the word that may have been meant, and whose help tells more: that of `command`.
exit_code refuse(const CLI::App& command, const std::string& message, const std::string& nearest = {})
{
    std::string text = printable_name(message);
    if (!nearest.empty())
        text += "; did you mean '" + nearest + "'?";
    text += "\nTry: staadkit ";
    if (command.get_parent() != nullptr)
        text += command.get_name() + ' ';
    print_error(text + "--help");
    return wrong_usage;
}

constexpr const char* print_option = "--print";

bool is_verb(const std::string& word)
{
    return std::any_of(std::begin(verbs), std::end(verbs), [&word](const verb& each) { return word == each.name; });
}

/// The first word that is no option, nor the value of one, must be a verb.
const std::string* unknown_verb(const std::vector<std::string>& arguments)
{
    const std::string* before = nullptr;
    for (const std::string& word : arguments) {
        if (word[0] != '-' && (before == nullptr || *before != print_option))
            return is_verb(word) ? nullptr : &word;
        before = &word;
    }
    return nullptr;
}

std::vector<std::string> verb_names()
{
    std::vector<std::string> names;
    for (const verb& each : verbs)
        names.emplace_back(each.name);
    return names;
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
    const std::string nearest = nearest_word(word, option_names(outline_of(command)));
    if (nearest == word)
        return refuse(app, "option '" + word + "' belongs after the verb");
    return refuse(command, "unknown option '" + word + "'", nearest);
}

void set_up_app(CLI::App& app, verb_action& action)
{
    app.set_version_flag("--version", "staadkit " STAADKIT_VERSION, "Print the version and exit");
    app.set_help_flag("-h,--help", "Print this help and exit");
    app.add_option_function<std::string>(
           print_option, [](const std::string& name) { throw call_for_page{*find_page(name)}; },
           "Print the manual page or the completions of a shell and exit")
        ->check(why_no_page)
        ->type_name("NAME")          // in messages
        ->option_text(page_names()); // in the help
    app.require_subcommand(1);
    app.allow_windows_style_options(false); // "/" begins a path
    app.footer(std::string("Results go to standard output, messages to standard error.\n") +
               "staadkit VERB --help tells more about a verb.\n\n" + exit_code_help());
    app.get_formatter()->label("SUBCOMMAND", "VERB");
    app.get_formatter()->label("Positionals", "Arguments");
    for (const verb& each : verbs) {
        CLI::App* const command = app.add_subcommand(each.name, each.help)->group("Verbs")->footer(exit_code_help());
        const verb_action run = each.set_up(*command);
        command->callback([&action, run] { action = run; });
    }
}

exit_code run(int argc, const char* const* argv)
{
    CLI::App app("Reads STAAD .std files, shows what they hold and writes them anew.", "staadkit");
    verb_action action;
    set_up_app(app, action);
    const std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);
    if (const std::string* word = unknown_verb(arguments))
        return refuse(app, "unknown verb '" + *word + "'", nearest_word(*word, verb_names()));
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        return print_result(app.help(), done);
    } catch (const CLI::CallForVersion& version) {
        return print_result(std::string(version.what()) + '\n', done);
    } catch (const call_for_page& call) {
        return print_result(call.page.make(outline_of(app)), done);
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

/// A limit on the size of files is to show as a failed write, not to end the process halfway.
static void ignore_size_signal()
{
#ifdef SIGXFSZ
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
#endif
}

#ifdef _WIN32
/// Shows UTF-8, which all output is in, on the console for as long as it lives.
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

// What is left to throw here is a message that memory does not suffice for: the run ends all the same.
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
