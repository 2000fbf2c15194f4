#include "pages.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstddef>

namespace pages {
namespace {

/// The value of an option as the help shows it, without the brackets of an optional value.
std::string placeholder_of(const CLI::Option& option)
{
    std::string text = option.get_option_text();
    if (text.find_first_not_of(' ') == std::string::npos)
        text = option.get_type_name();
    text.erase(std::remove_if(text.begin(), text.end(), [](char c) { return c == '[' || c == ']'; }), text.end());
    return text;
}

/// A placeholder such as "wind|seismic" lists all values.
words choices_in(const std::string& placeholder)
{
    words choices;
    for (std::size_t start = 0, bar = placeholder.find('|'); bar != std::string::npos; start = bar + 1) {
        bar = placeholder.find('|', start);
        choices.push_back(placeholder.substr(start, bar - start));
    }
    return choices;
}

value_kind kind_of(const option_outline& option)
{
    if (!option.choices.empty())
        return value_kind::word;
    return option.placeholder == "N" || option.placeholder == "LIST" ? value_kind::number : value_kind::file;
}

option_outline outline_of(const CLI::Option& option)
{
    option_outline outline;
    outline.help = option.get_description();
    outline.repeats = option.get_expected_max() > 1;
    if (option.get_positional()) {
        outline.names = {option.get_single_name()};
        outline.kind = value_kind::file;
        outline.value_may_lack = !option.get_required();
        return outline;
    }
    for (const std::string& name : option.get_snames())
        outline.names.push_back('-' + name);
    for (const std::string& name : option.get_lnames())
        outline.names.push_back("--" + name);
    if (option.get_items_expected_max() == 0)
        return outline;
    outline.value_may_lack = option.get_items_expected_min() == 0;
    outline.placeholder = placeholder_of(option);
    outline.choices = choices_in(outline.placeholder);
    outline.kind = kind_of(outline);
    return outline;
}

} // namespace

command_outline outline_of(const CLI::App& app)
{
    command_outline outline;
    outline.name = app.get_name();
    outline.help = app.get_description();
    for (const CLI::Option* option : app.get_options())
        (option->get_positional() ? outline.arguments : outline.options).push_back(outline_of(*option));
    for (const CLI::App* verb : app.get_subcommands({}))
        outline.verbs.push_back(outline_of(*verb));
    // The argument with this name is one of the verbs.
    for (command_outline& verb : outline.verbs) {
        for (option_outline& argument : verb.arguments) {
            if (argument.names.front() != "VERB")
                continue;
            argument.kind = value_kind::word;
            argument.choices = verb_names(outline);
        }
    }
    return outline;
}

words verb_names(const command_outline& app)
{
    words names;
    for (const command_outline& verb : app.verbs)
        names.push_back(verb.name);
    return names;
}

words option_names(const command_outline& command)
{
    words names;
    for (const option_outline& option : command.options)
        names.insert(names.end(), option.names.begin(), option.names.end());
    return names;
}

std::string joined(const words& list, std::string_view between)
{
    std::string text;
    for (const std::string& word : list)
        text.append(text.empty() ? "" : between).append(word);
    return text;
}

} // namespace pages
