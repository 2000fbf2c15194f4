// Completions: what the shells offer after "staadkit". Shells complete names of files by themselves.

#include "pages.h"

#include <fmt/format.h>

#include <cstddef>
#include <string_view>

namespace pages {
namespace {

/// The text with a backslash before each of the `special` characters.
std::string escaped(std::string_view text, std::string_view special)
{
    std::string result;
    for (const char c : text) {
        if (special.find(c) != std::string_view::npos)
            result += '\\';
        result += c;
    }
    return result;
}

/// In single quotes, as bash and zsh read them.
std::string in_quotes(std::string_view text)
{
    std::string result = "'";
    for (const char c : text)
        result += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return result + '\'';
}

// ---- bash ----

/// The values offered for the options of a verb; with an empty `verb` for options before the verb.
std::string bash_values(const command_outline& command, const std::string& verb)
{
    std::string cases;
    for (const option_outline& option : command.options) {
        std::string head = "    ";
        for (const std::string& name : option.names)
            head.append(&name == &option.names.front() ? "" : " | ").append(verb).append(":").append(name);
        // Where nothing is offered here, readline offers files.
        if (option.kind == value_kind::word)
            cases += head + ") words='" + joined(option.choices) + "' ;;\n";
        else if (option.kind == value_kind::number)
            cases += head + ") compopt +o default 2>/dev/null; return ;;\n";
        else if (option.kind == value_kind::file && !option.value_may_lack)
            cases += head + ") return ;;\n";
    }
    return cases;
}

std::string bash_case(const std::string& pattern, const words& offered)
{
    return "        " + pattern + ") words='" + joined(offered) + "' ;;\n";
}

/// The names of a verb's options, and the words possible as its arguments.
std::string bash_words(const command_outline& verb)
{
    std::string cases = bash_case(verb.name + ":-*", option_names(verb));
    for (const option_outline& argument : verb.arguments) {
        if (argument.kind == value_kind::word)
            cases += bash_case(verb.name + ":*", argument.choices);
    }
    return cases;
}

// ---- zsh ----

/// What zsh offers for a value, after the option's name.
std::string zsh_value(const option_outline& option)
{
    switch (option.kind) {
    case value_kind::none:
        return {};
    case value_kind::word:
        return ":value:(" + joined(option.choices) + ')';
    case value_kind::number:
        return ":number: ";
    case value_kind::file:
        break;
    }
    return (option.value_may_lack ? "::" : ":") + option.placeholder + ":_files";
}

/// After a long name the value may also follow "=".
std::string zsh_name(const option_outline& option, const std::string& name)
{
    const bool takes_value = option.kind != value_kind::none && !option.value_may_lack;
    return takes_value && name[1] == '-' ? name + '=' : name;
}

/// One line of _arguments for each name of each option; one that was given is not offered again.
std::string zsh_options(const command_outline& command, const std::string& indent)
{
    std::string lines;
    for (const option_outline& option : command.options) {
        const std::string once = option.repeats ? "*" : '(' + joined(option.names) + ')';
        for (const std::string& name : option.names)
            lines += " \\\n" + indent +
                     in_quotes(once + zsh_name(option, name) + '[' + escaped(option.help, "[]:\\") + ']' +
                               zsh_value(option));
    }
    return lines;
}

std::string zsh_verb(const command_outline& verb)
{
    const std::string indent = "                ";
    std::string lines = "        " + verb.name + ")\n            _arguments" + zsh_options(verb, indent);
    std::size_t place = 0;
    for (const option_outline& argument : verb.arguments) {
        const std::string spot = argument.repeats ? "*" : std::to_string(++place);
        const std::string offered = argument.kind == value_kind::word ? '(' + joined(argument.choices) + ')' : "_files";
        lines +=
            fmt::format(" \\\n{}{}", indent, in_quotes(fmt::format("{}:{}:{}", spot, argument.names.front(), offered)));
    }
    return lines + " ;;\n";
}

// ---- fish ----

std::string fish_quoted(std::string_view text)
{
    return '\'' + escaped(text, "'\\") + '\'';
}

std::string fish_value(const option_outline& option)
{
    switch (option.kind) {
    case value_kind::none:
        return {};
    case value_kind::word:
        return " -x -a " + fish_quoted(joined(option.choices));
    case value_kind::number:
        return " -x";
    case value_kind::file:
        break;
    }
    return option.value_may_lack ? "" : " -r -F";
}

/// The lines of a command's options, and of the words possible as its arguments.
std::string fish_options(const command_outline& command, const std::string& condition)
{
    const std::string head = "complete -c staadkit -n " + fish_quoted(condition);
    std::string lines;
    for (const option_outline& option : command.options) {
        lines += head;
        for (const std::string& name : option.names)
            lines += name[1] == '-' ? " -l " + name.substr(2) : " -s " + name.substr(1);
        lines += fish_value(option) + " -d " + fish_quoted(option.help) + '\n';
    }
    for (const option_outline& argument : command.arguments) {
        if (argument.kind == value_kind::word)
            lines += head + fish_value(argument) + '\n';
    }
    return lines;
}

} // namespace

// The first word that is a verb's name is the verb: options before it may have values. bash splits
// "--option=value" into three words.
std::string bash_completion(const command_outline& app)
{
    const words verbs = verb_names(app);
    std::string text = R"(# Completions of staadkit for bash, made by scripts/refresh-pages.sh.
_staadkit()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} verb= words= each
    if [ "$word" = = ]; then
        word=
    elif [ "$before" = = ]; then
        before=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    for each in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        case $each in
        )";
    text += joined(verbs, " | ") + R"() verb=$each && break ;;
        esac
    done
    COMPREPLY=()
    case $verb:$before in
)";
    text += bash_values(app, {});
    for (const command_outline& verb : app.verbs)
        text += bash_values(verb, verb.name);
    text += "    *)\n"
            "        case $verb:$word in\n";
    text += bash_case(":-*", option_names(app)) + bash_case(":*", verbs);
    for (const command_outline& verb : app.verbs)
        text += bash_words(verb);
    text += R"(        esac ;;
    esac
    COMPREPLY=($(compgen -W "$words" -- "$word"))
}
complete -o default -F _staadkit staadkit
)";
    return text;
}

std::string zsh_completion(const command_outline& app)
{
    std::string text = R"(#compdef staadkit
# Completions of staadkit for zsh, made by scripts/refresh-pages.sh.
_staadkit()
{
    local curcontext="$curcontext" state line
    local -a verbs
    verbs=(
)";
    for (const command_outline& verb : app.verbs)
        text += "        " + in_quotes(verb.name + ':' + escaped(verb.help, ":\\")) + '\n';
    text += "    )\n"
            "    _arguments -C";
    text += zsh_options(app, "        ");
    text += R"( \
        '1: :->verb' \
        '*:: :->rest'
    case $state in
    verb) _describe -t verbs verb verbs ;;
    rest)
        case $line[1] in
)";
    for (const command_outline& verb : app.verbs)
        text += zsh_verb(verb);
    text += R"(        esac ;;
    esac
}
if [ "$funcstack[1]" = _staadkit ]; then
    _staadkit "$@"
else
    compdef _staadkit staadkit # sourced
fi
)";
    return text;
}

std::string fish_completion(const command_outline& app)
{
    const std::string no_verb = "not __fish_seen_subcommand_from " + joined(verb_names(app));
    std::string text = "# Completions of staadkit for fish, made by scripts/refresh-pages.sh.\n";
    text += "complete -c staadkit -n " + fish_quoted(no_verb) + " -f\n" + fish_options(app, no_verb);
    for (const command_outline& verb : app.verbs) {
        text += "complete -c staadkit -n " + fish_quoted(no_verb) + " -a " + verb.name + " -d " +
                fish_quoted(verb.help) + '\n';
        text += fish_options(verb, "__fish_seen_subcommand_from " + verb.name);
    }
    return text;
}

} // namespace pages
