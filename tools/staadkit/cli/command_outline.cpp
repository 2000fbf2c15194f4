#include "cli/command_outline.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstddef>

namespace tool {
namespace {

/// The value of an option as the help shows it, less the brackets around one that may lack.
std::string placeholder_of(const CLI::Option& option)
{
    std::string text = option.get_option_text();
    if (text.find_first_not_of(' ') == std::string::npos)
        text = option.get_type_name();
    text.erase(std::remove_if(text.begin(), text.end(), [](char c) { return c == '[' || c == ']'; }), text.end());
    return text;
}

/// "wind|seismic" names the only two values there are.
std::vector<std::string> words_of(const std::string& placeholder)
{
    std::vector<std::string> words;
    for (std::size_t start = 0, bar = placeholder.find('|'); bar != std::string::npos; start = bar + 1) {
        bar = placeholder.find('|', start);
        words.push_back(placeholder.substr(start, bar - start));
    }
    return words;
}

value_kind kind_of(const option_outline& option)
{
    if (!option.words.empty())
        return value_kind::word;
    return option.placeholder == "N" ? value_kind::number : value_kind::file;
}

option_outline outline_of(const CLI::Option& option)
{
    option_outline outline;
    for (const std::string& name : option.get_snames())
        outline.names.push_back('-' + name);
    for (const std::string& name : option.get_lnames())
        outline.names.push_back("--" + name);
    outline.help = option.get_description();
    if (option.get_items_expected_max() == 0)
        return outline;
    outline.value_may_lack = option.get_items_expected_min() == 0;
    outline.repeats = option.get_expected_max() > 1;
    outline.placeholder = placeholder_of(option);
    outline.words = words_of(outline.placeholder);
    outline.kind = kind_of(outline);
    return outline;
}

} // namespace

command_outline outline_of(const CLI::App& app)
{
    command_outline outline;
    outline.name = app.get_name();
    outline.help = app.get_description();
    for (const CLI::Option* option : app.get_options()) {
        if (option->get_positional())
            outline.arguments.push_back(
                {option->get_single_name(), option->get_expected_max() > 1, option->get_description()});
        else
            outline.options.push_back(outline_of(*option));
    }
    for (const CLI::App* verb : app.get_subcommands({}))
        outline.verbs.push_back(outline_of(*verb));
    return outline;
}

std::vector<std::string> option_names(const command_outline& command)
{
    std::vector<std::string> names;
    for (const option_outline& option : command.options)
        names.insert(names.end(), option.names.begin(), option.names.end());
    return names;
}

} // namespace tool
