// The manual page, in the classic man(7) macros.

#include "cli/verbs.h"
#include "pages.h"
#include "staad/version.h"

#include <cctype>
#include <string_view>
#include <utility>

namespace pages {
namespace {

/// Text for roff: hyphens are escaped so that they can be copied into a shell, and no line is a request.
std::string escaped(std::string_view text)
{
    std::string result;
    for (const char c : text) {
        if (c == '-' || c == '\\')
            result += c == '-' ? "\\-" : "\\e";
        else if ((c == '.' || c == '\'') && (result.empty() || result.back() == '\n'))
            result.append("\\&").push_back(c);
        else
            result += c;
    }
    return result;
}

std::string bold(std::string_view text)
{
    return "\\fB" + escaped(text) + "\\fR";
}

std::string italic(std::string_view text)
{
    return "\\fI" + escaped(text) + "\\fR";
}

/// A term, and its meaning indented below it.
std::string item(const std::string& term, std::string_view meaning)
{
    return ".TP\n" + term + '\n' + escaped(meaning) + '\n';
}

std::string option_term(const option_outline& option)
{
    std::string term;
    for (const std::string& name : option.names)
        term += (term.empty() ? "" : ", ") + bold(name);
    if (option.kind == value_kind::none)
        return term;
    const std::string value = option.kind == value_kind::word ? bold(option.placeholder) : italic(option.placeholder);
    return term + (option.value_may_lack ? " [" + value + ']' : ' ' + value);
}

std::string argument_term(const option_outline& argument)
{
    const std::string term = italic(argument.names.front()) + (argument.repeats ? "..." : "");
    return argument.value_may_lack ? '[' + term + ']' : term;
}

/// How a verb is called.
std::string call_of(const command_outline& app, const command_outline& verb)
{
    std::string call = bold(app.name + ' ' + verb.name) + " [" + italic("OPTIONS") + ']';
    for (const option_outline& argument : verb.arguments)
        call += ' ' + argument_term(argument);
    return call + '\n';
}

std::string synopsis(const command_outline& app)
{
    std::string text;
    for (const command_outline& verb : app.verbs)
        text += (text.empty() ? "" : ".br\n") + call_of(app, verb);
    return text + ".br\n" + bold(app.name) + " [" + italic("OPTIONS") + "]\n";
}

std::string option_items(const command_outline& command)
{
    std::string text;
    for (const option_outline& option : command.options)
        text += item(option_term(option), option.help);
    return text;
}

std::string verb_part(const command_outline& app, const command_outline& verb)
{
    std::string text = ".SS " + escaped(verb.name) + '\n' + call_of(app, verb) + ".PP\n" + escaped(verb.help) + ".\n";
    for (const option_outline& argument : verb.arguments)
        text += item(argument_term(argument), argument.help);
    return text + option_items(verb);
}

/// "name - description", the form that whatis(1) and apropos(1) index.
std::string name_line(const command_outline& app)
{
    std::string what = app.help.substr(0, app.help.find_last_not_of('.') + 1);
    what[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(what[0])));
    return escaped(app.name) + " \\- " + escaped(what) + '\n';
}

} // namespace

// The page bears no date: the same sources give the same bytes.
std::string man_page(const command_outline& app)
{
    std::string text = ".\\\" Made by scripts/refresh-pages.sh.\n"
                       ".TH STAADKIT 1 \"\" \"staadkit " STAADKIT_VERSION "\" \"User Commands\"\n";
    text += ".SH NAME\n" + name_line(app) + ".SH SYNOPSIS\n" + synopsis(app);
    text += ".SH DESCRIPTION\n"
            "Models are shown in mm, kN and kN*mm, z up, in whatever units the file is.\n"
            ".PP\n"
            "Results go to standard output, messages to standard error.\n";
    text += ".SH OPTIONS\n" + option_items(app) + ".SH VERBS\n";
    for (const command_outline& verb : app.verbs)
        text += verb_part(app, verb);
    text += ".SH EXIT STATUS\n";
    for (const tool::exit_code_meaning& each : tool::exit_code_meanings)
        text += item(bold(std::to_string(each.code)), each.meaning);
    return text;
}

} // namespace pages
