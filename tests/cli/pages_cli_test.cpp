// The manual page and the completions of the shells say what the help says, verb by verb.

#include "tool_run.h"

#include <gtest/gtest.h>

#include <sstream>

namespace cli_test {
namespace {

/// The lines of the help below a heading, to the next blank one.
std::vector<std::string> lines_below(const std::string& help, const std::string& heading)
{
    std::vector<std::string> lines;
    std::istringstream stream(help);
    std::string line;
    while (std::getline(stream, line) && line != heading) {
    }
    while (std::getline(stream, line) && !line.empty())
        lines.push_back(line);
    return lines;
}

std::vector<std::string> verbs_in_help(const tool_run& tool)
{
    std::vector<std::string> verbs;
    for (const std::string& line : lines_below(tool({"--help"}).out, "Verbs:"))
        verbs.push_back(line.substr(2, line.find(' ', 2) - 2));
    return verbs;
}

/// The names of options: "  -h,--help    Print ..." has two. Of no verb: those of the tool.
std::vector<std::string> options_in_help(const tool_run& tool, const std::string& verb)
{
    const std::string help = verb.empty() ? tool({"--help"}).out : tool({verb, "--help"}).out;
    std::vector<std::string> options;
    for (const std::string& line : lines_below(help, "Options:")) {
        std::istringstream names(line.substr(2, line.find(' ', 2) - 2));
        for (std::string name; std::getline(names, name, ',');)
            options.push_back(name);
    }
    return options;
}

std::string page(const tool_run& tool, const std::string& name)
{
    const tool_result result = tool({"--print", name});
    EXPECT_EQ(result.exit_code, 0) << name;
    EXPECT_EQ(result.err, "") << name;
    return result.out;
}

/// The part from `first` to the next `last` behind it; empty if there is none.
std::string part(const std::string& text, const std::string& first, const std::string& last)
{
    const std::size_t start = text.find(first);
    if (start == std::string::npos)
        return {};
    return text.substr(start, text.find(last, start + first.size()) - start);
}

/// As a roff page has it.
std::string with_roff_hyphens(const std::string& text)
{
    std::string result;
    for (const char c : text)
        result += c == '-' ? std::string("\\-") : std::string(1, c);
    return result;
}

TEST(Pages, HelpIsThere)
{
    const tool_run tool;
    EXPECT_EQ(verbs_in_help(tool),
              (std::vector<std::string>{"info", "dump", "convert", "forces", "storeys", "compare"}));
    EXPECT_EQ(options_in_help(tool, ""), (std::vector<std::string>{"--version", "-h", "--help", "--print"}));
    EXPECT_EQ(options_in_help(tool, "dump"), (std::vector<std::string>{"-h", "--help", "--notes"}));
}

TEST(Pages, ManualHasEveryVerbAndOption)
{
    const tool_run tool;
    const std::string text = page(tool, "man");
    EXPECT_TRUE(has_line(text, ".TH STAADKIT 1 \"\" \"staadkit " STAADKIT_VERSION "\" \"User Commands\""));
    for (const std::string& option : options_in_help(tool, ""))
        EXPECT_TRUE(contains(part(text, ".SH OPTIONS\n", ".SH "), "\\fB" + with_roff_hyphens(option) + "\\fR"));
    for (const std::string& verb : verbs_in_help(tool)) {
        const std::string section = part(text, ".SS " + verb + '\n', ".S");
        EXPECT_TRUE(contains(text, "\n\\fBstaadkit " + verb + "\\fR [\\fIOPTIONS\\fR] ")) << verb;
        for (const std::string& option : options_in_help(tool, verb))
            EXPECT_TRUE(contains(section, "\\fB" + with_roff_hyphens(option) + "\\fR")) << verb << ' ' << option;
    }
    for (const char* arguments :
         {"convert\\fR [\\fIOPTIONS\\fR] \\fIIN\\fR \\fIOUT\\fR\n", "info\\fR [\\fIOPTIONS\\fR] \\fIFILE\\fR...\n",
          "\\fB\\-\\-template\\fR \\fBwind|seismic\\fR\n", "\\fB\\-\\-forces\\fR [\\fILISTING\\fR]\n",
          "\\fB4\\fR\noutput not written\n"})
        EXPECT_TRUE(contains(text, arguments)) << arguments;
}

TEST(Pages, BashHasEveryVerbAndOption)
{
    const tool_run tool;
    const std::string text = page(tool, "bash");
    for (const std::string& verb : verbs_in_help(tool)) {
        EXPECT_TRUE(contains(part(text, "        :*) words='", "\n"), verb)) << verb;
        // Options stand in one line, each between blanks or quotes.
        std::string line = part(text, "        " + verb + ":-*) words='", "' ;;\n") + ' ';
        line.replace(line.find('\''), 1, " ");
        for (const std::string& option : options_in_help(tool, verb))
            EXPECT_TRUE(contains(line, ' ' + option + ' ')) << verb << ' ' << option;
    }
}

TEST(Pages, ZshHasEveryVerbAndOption)
{
    const tool_run tool;
    const std::string text = page(tool, "zsh");
    for (const std::string& verb : verbs_in_help(tool)) {
        EXPECT_TRUE(contains(text, "\n        '" + verb + ':')) << verb;
        const std::string section = part(text, "        " + verb + ")\n", ";;\n");
        for (const std::string& option : options_in_help(tool, verb))
            EXPECT_TRUE(contains(section, option + '[') || contains(section, option + "=[")) << verb << ' ' << option;
    }
}

TEST(Pages, FishHasEveryVerbAndOption)
{
    const tool_run tool;
    const std::string text = page(tool, "fish");
    for (const std::string& verb : verbs_in_help(tool)) {
        EXPECT_TRUE(contains(text, " -a " + verb + " -d '")) << verb;
        for (const std::string& option : options_in_help(tool, verb)) {
            const bool is_long = option[1] == '-';
            const std::string name = is_long ? "-l " + option.substr(2) : "-s " + option.substr(1);
            // The name ends where a blank follows; -h and --help share a line.
            const std::string head = "-n '__fish_seen_subcommand_from " + verb + "' ";
            EXPECT_TRUE(contains(text, head + name + ' ') || contains(text, head + "-s h " + name + ' '))
                << verb << ' ' << option;
        }
    }
}

TEST(Pages, NeedNoVerb)
{
    const tool_run tool;
    EXPECT_EQ(tool({"--print=man"}).out, page(tool, "man"));
    EXPECT_EQ(tool({"--print", "man", "info"}).out, page(tool, "man"));
}

} // namespace
} // namespace cli_test
