// The manual page: man(7) macros that every roff since the seventies understands.

#include "cli/command_pages.h"
#include "cli/verbs.h"

#include <cctype>
#include <initializer_list>
#include <string_view>

namespace tool {
namespace {

/// Text as roff takes it: every hyphen may be copied into a shell, and no line is taken for a request.
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

/// The page as it grows, one line after the other.
class man_writer {
public:
    void line(std::string_view text) { text_.append(text).push_back('\n'); }
    void section(std::string_view title) { line(".SH " + std::string(title)); }
    void paragraph(std::string_view text)
    {
        line(".PP");
        line(escaped(text));
    }
    /// A term, and indented below it what it means.
    void item(std::string_view term, std::string_view meaning)
    {
        line(".TP");
        line(term);
        line(escaped(meaning));
    }
    std::string take() { return std::move(text_); }

private:
    std::string text_;
};

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

std::string argument_term(const argument_outline& argument)
{
    return italic(argument.name) + (argument.repeats ? "..." : "");
}

/// How a verb is called.
std::string call_of(const command_outline& app, const command_outline& verb)
{
    std::string call = bold(app.name + ' ' + verb.name) + " [" + italic("OPTIONS") + ']';
    for (const argument_outline& argument : verb.arguments)
        call += ' ' + argument_term(argument);
    return call;
}

void write_synopsis(man_writer& page, const command_outline& app)
{
    page.section("SYNOPSIS");
    const char* between = "";
    for (const command_outline& verb : app.verbs) {
        page.line(between + call_of(app, verb));
        between = ".br\n";
    }
    for (const option_outline& option : app.options)
        page.line(between + bold(app.name) + ' ' + bold(option.names.back()) +
                  (option.kind == value_kind::none ? "" : ' ' + bold(option.placeholder)));
}

void write_options(man_writer& page, const command_outline& command)
{
    for (const option_outline& option : command.options)
        page.item(option_term(option), option.help);
}

void write_verb(man_writer& page, const command_outline& app, const command_outline& verb)
{
    page.line(".SS " + escaped(verb.name));
    page.line(call_of(app, verb));
    page.paragraph(verb.help + '.');
    for (const argument_outline& argument : verb.arguments)
        page.item(argument_term(argument), argument.help);
    write_options(page, verb);
}

/// "name - what it is", in the form that whatis(1) and apropos(1) index.
std::string name_line(const command_outline& app)
{
    std::string what = app.help.substr(0, app.help.find_last_not_of('.') + 1);
    what[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(what[0])));
    return escaped(app.name) + " \\- " + escaped(what);
}

} // namespace

// The page bears no date: the same sources give the same bytes.
std::string man_page(const command_outline& app)
{
    man_writer page;
    page.line(".\\\" Made by `staadkit --print man'.");
    page.line(".TH STAADKIT 1 \"\" \"staadkit " STAADKIT_VERSION "\" \"User Commands\"");
    page.section("NAME");
    page.line(name_line(app));
    write_synopsis(page, app);
    page.section("DESCRIPTION");
    page.line("Models are shown in mm, kN and kN*mm, z up, whatever the units of the file.");
    page.paragraph("Results go to standard output, messages to standard error.");
    page.section("OPTIONS");
    write_options(page, app);
    page.section("VERBS");
    for (const command_outline& verb : app.verbs)
        write_verb(page, app, verb);
    page.section("EXIT STATUS");
    for (const exit_code_meaning& each : exit_code_meanings)
        page.item(bold(std::to_string(each.code)), each.meaning);
    return page.take();
}

} // namespace tool
