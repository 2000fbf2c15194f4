#include "command_line.h"

#include "cli/terminal.h"
#include "output/std_output.h"
#include "staad/version.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <memory>

namespace tool {
namespace {

verb_action set_up_help(CLI::App& command)
{
    const auto name = std::make_shared<std::string>();
    command.add_option("VERB", *name, "The verb; without it the help of the tool is printed")->option_text(" ");
    return [app = command.get_parent(), name] {
        const CLI::App* const asked = name->empty() ? app : app->get_subcommand(*name);
        const std::string call = name->empty() ? app->get_name() : app->get_name() + ' ' + *name;
        return print_result(asked->get_formatter()->make_help(asked, call, CLI::AppFormatMode::Normal), done);
    };
}

constexpr verb verbs[] = {
    {"info", "Show the contents of files: joints, members, storeys, sections, supports, loads", set_up_info},
    {"dump", "Print every field of a model as JSON, numbers exact to the last bit", set_up_dump},
    {"convert", "Write a model as normalised .std, with generated wind and seismic loads", set_up_convert},
    {"forces", "Show the internal forces of members that the analysis printed", set_up_forces},
    {"storeys", "Show the contents of each storey: joints, members, shells, sections", set_up_storeys},
    {"compare", "Show how a model differs from an earlier one, and take definitions over from it", set_up_compare},
    {help_verb, "Print this help, or that of a verb", set_up_help},
};

std::string exit_code_help()
{
    std::string text = "Exit codes:";
    for (const exit_code_meaning& each : exit_code_meanings)
        text += fmt::format("\n  {}  {}", static_cast<int>(each.code), each.meaning);
    return text;
}

constexpr struct {
    const char* word;
    color_choice choice;
} color_words[] = {{"auto", color_choice::automatic}, {"never", color_choice::never}, {"always", color_choice::always}};

/// Sets display().color; returns an error message, empty if there is none.
std::string choose_color(const std::string& word)
{
    for (const auto& each : color_words) {
        if (word == each.word) {
            display().color = each.choice;
            return {};
        }
    }
    return '\'' + word + "' is none of auto, never and always";
}

/// The options of every verb; they may also stand before the verb.
void add_display_options(CLI::App& command)
{
    command.add_option("--color", "Show colours; auto, the default: on a terminal, unless NO_COLOR is set")
        ->check(choose_color)
        ->take_last()
        ->type_name("WHEN")                 // in messages
        ->option_text("auto|never|always"); // in the help
    command.add_flag_callback(
        "-q,--quiet", [] { display().quiet = true; }, "Print no warnings, notes and progress, only errors");
}

} // namespace

std::vector<std::string> verb_names()
{
    std::vector<std::string> names;
    for (const verb& each : verbs)
        names.emplace_back(each.name);
    return names;
}

void set_up_command_line(CLI::App& app, verb_action& action)
{
    app.name("staadkit")->description("Reads STAAD .std files, shows their contents and converts them.");
    app.set_version_flag("--version", "staadkit " STAADKIT_VERSION, "Print the version and exit");
    app.set_help_flag("-h,--help", "Print this help and exit");
    add_display_options(app);
    app.require_subcommand(1);
    app.allow_windows_style_options(false); // "/" begins a path
    app.footer("Results go to standard output, messages to standard error.\n"
               "staadkit help VERB explains a verb.\n\n" +
               exit_code_help());
    app.get_formatter()->label("SUBCOMMAND", "VERB");
    app.get_formatter()->label("Positionals", "Arguments");
    for (const verb& each : verbs) {
        CLI::App* const command = app.add_subcommand(each.name, each.help)->group("Verbs")->footer(exit_code_help());
        const verb_action run = each.set_up(*command);
        add_display_options(*command);
        command->callback([&action, run] { action = run; });
    }
}

std::vector<std::string> option_names(const CLI::App& command)
{
    std::vector<std::string> names;
    for (const CLI::Option* option : command.get_options()) {
        for (const std::string& name : option->get_snames())
            names.push_back('-' + name);
        for (const std::string& name : option->get_lnames())
            names.push_back("--" + name);
    }
    return names;
}

} // namespace tool
