// Completions: what the shells offer behind "staadkit". Each shell completes the names of files itself.

#include "cli/command_pages.h"

#include <string_view>

namespace tool {
namespace {

std::string joined(const std::vector<std::string>& words, std::string_view between)
{
    std::string text;
    for (const std::string& word : words)
        text.append(text.empty() ? "" : between).append(word);
    return text;
}

std::string joined(const std::vector<std::string>& words)
{
    return joined(words, " ");
}

std::vector<std::string> verb_names(const command_outline& app)
{
    std::vector<std::string> names;
    for (const command_outline& verb : app.verbs)
        names.push_back(verb.name);
    return names;
}

/// The text with a backslash before each character that is one of `special`.
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

/// The patterns of a case for the option behind a verb: "convert:--wind | convert:--seismic".
std::string bash_patterns(const command_outline& command, const option_outline& option, const command_outline& app)
{
    const std::string verb = &command == &app ? "" : command.name;
    std::string patterns;
    for (const std::string& name : option.names)
        patterns.append(patterns.empty() ? "" : " | ").append(verb).append(":").append(name);
    return patterns;
}

/// What is offered as the value of the options of one command.
std::string bash_values(const command_outline& command, const command_outline& app)
{
    std::string cases;
    for (const option_outline& option : command.options) {
        // Files are what readline offers where nothing is offered here.
        const std::string head = "    " + bash_patterns(command, option, app) + ") ";
        if (option.kind == value_kind::word)
            cases += head + "words='" + joined(option.words) + "' ;;\n";
        else if (option.kind == value_kind::number)
            cases += head + "compopt +o default 2>/dev/null; return ;;\n";
        else if (option.kind == value_kind::file && !option.value_may_lack)
            cases += head + "return ;;\n";
    }
    return cases;
}

std::string bash_words(const command_outline& command, const std::string& pattern)
{
    return "        " + pattern + ":-*) words='" + joined(option_names(command)) + "' ;;\n";
}

// ---- zsh ----

/// What zsh is to offer for a value, behind its name.
std::string zsh_value(const option_outline& option)
{
    switch (option.kind) {
    case value_kind::none:
        return {};
    case value_kind::word:
        return ":value:(" + joined(option.words) + ')';
    case value_kind::number:
        return ":number: ";
    case value_kind::file:
        break;
    }
    return (option.value_may_lack ? "::" : ":") + option.placeholder + ":_files";
}

/// A value may follow a long name behind "=", too.
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
    std::string lines = "        " + verb.name + ")\n            _arguments";
    lines += zsh_options(verb, "                ");
    std::size_t place = 0;
    for (const argument_outline& argument : verb.arguments) {
        const std::string spot = argument.repeats ? "*" : std::to_string(++place);
        lines += " \\\n                " + in_quotes(spot + ':' + argument.name + ":_files");
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
        return " -x -a " + fish_quoted(joined(option.words));
    case value_kind::number:
        return " -x";
    case value_kind::file:
        break;
    }
    return option.value_may_lack ? "" : " -r -F";
}

std::string fish_options(const command_outline& command, const std::string& condition)
{
    std::string lines;
    for (const option_outline& option : command.options) {
        lines += "complete -c staadkit -n " + fish_quoted(condition);
        for (const std::string& name : option.names)
            lines += name[1] == '-' ? " -l " + name.substr(2) : " -s " + name.substr(1);
        lines += fish_value(option) + " -d " + fish_quoted(option.help) + '\n';
    }
    return lines;
}

} // namespace

std::string bash_completion(const command_outline& app)
{
    std::string text =
        "# Completions of staadkit for bash, made by `staadkit --print bash`.\n"
        "_staadkit()\n"
        "{\n"
        "    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} verb= words= each\n"
        "    # --option=value comes as three words\n"
        "    if [ \"$word\" = = ]; then\n"
        "        word=\n"
        "    elif [ \"$before\" = = ]; then\n"
        "        before=${COMP_WORDS[COMP_CWORD - 2]}\n"
        "    fi\n"
        "    for each in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
        "        case $each in\n"
        "        -*) ;;\n"
        "        *) verb=$each && break ;;\n"
        "        esac\n"
        "    done\n"
        "    COMPREPLY=()\n"
        "    case $verb:$before in\n";
    text += bash_values(app, app);
    for (const command_outline& verb : app.verbs)
        text += bash_values(verb, app);
    text += "    *)\n"
            "        case $verb:$word in\n";
    text += bash_words(app, "");
    text += "        :*) words='" + joined(verb_names(app)) + "' ;;\n";
    for (const command_outline& verb : app.verbs)
        text += bash_words(verb, verb.name);
    text += "        esac ;;\n"
            "    esac\n"
            "    COMPREPLY=($(compgen -W \"$words\" -- \"$word\"))\n"
            "}\n"
            "complete -o default -F _staadkit staadkit\n";
    return text;
}

std::string zsh_completion(const command_outline& app)
{
    std::string text = "#compdef staadkit\n"
                       "# Completions of staadkit for zsh, made by `staadkit --print zsh`.\n"
                       "_staadkit()\n"
                       "{\n"
                       "    local curcontext=\"$curcontext\" state line\n"
                       "    local -a verbs\n"
                       "    verbs=(\n";
    for (const command_outline& verb : app.verbs)
        text += "        " + in_quotes(verb.name + ':' + escaped(verb.help, ":\\")) + '\n';
    text += "    )\n"
            "    _arguments -C";
    text += zsh_options(app, "        ");
    text += " \\\n        '1: :->verb' \\\n        '*:: :->rest'\n"
            "    case $state in\n"
            "    verb) _describe -t verbs verb verbs ;;\n"
            "    rest)\n"
            "        case $line[1] in\n";
    for (const command_outline& verb : app.verbs)
        text += zsh_verb(verb);
    text += "        esac ;;\n"
            "    esac\n"
            "}\n"
            "if [ \"$funcstack[1]\" = _staadkit ]; then\n"
            "    _staadkit \"$@\"\n"
            "else\n"
            "    compdef _staadkit staadkit # sourced\n"
            "fi\n";
    return text;
}

std::string fish_completion(const command_outline& app)
{
    const std::string verbs = joined(verb_names(app));
    const std::string no_verb = "not __fish_seen_subcommand_from " + verbs;
    std::string text = "# Completions of staadkit for fish, made by `staadkit --print fish`.\n";
    text += "complete -c staadkit -n " + fish_quoted(no_verb) + " -f\n";
    text += fish_options(app, no_verb);
    for (const command_outline& verb : app.verbs) {
        text += "complete -c staadkit -n " + fish_quoted(no_verb) + " -a " + verb.name + " -d " +
                fish_quoted(verb.help) + '\n';
        text += fish_options(verb, "__fish_seen_subcommand_from " + verb.name);
    }
    return text;
}

} // namespace tool
