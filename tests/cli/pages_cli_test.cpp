// The manual page and the completions of the shells have every verb and option that the help has.

#include "tool_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace cli_test {
namespace {

/// What the lines of the help below a heading begin with: "  -h,--help    Print ..." with two names.
std::vector<std::string> names_in_help(const std::string& help, const std::string& heading)
{
    std::istringstream lines(help.substr(help.find('\n' + heading + ":\n") + heading.size() + 3));
    std::vector<std::string> names;
    for (std::string line; std::getline(lines, line) && !line.empty();) {
        std::istringstream list(line.substr(2, line.find(' ', 2) - 2));
        for (std::string name; std::getline(list, name, ',');)
            names.push_back(name);
    }
    return names;
}

/// The part from `first` to the next `last` after it; empty if there is none.
std::string part(const std::string& text, const std::string& first, const std::string& last)
{
    const std::size_t start = text.find(first);
    return start == std::string::npos ? "" : text.substr(start, text.find(last, start + first.size()) - start);
}

std::string roff(const std::string& option)
{
    std::string text = "\\fB";
    for (const char c : option)
        text += c == '-' ? std::string("\\-") : std::string(1, c);
    return text + "\\fR";
}

struct page {
    const char* path; ///< below share/
    /// The part on a verb as blank-separated text, and how a page names a verb and an option in it.
    std::string (*part_on)(const std::string& text, const std::string& verb);
    std::string (*option)(const std::string& name);
};

const page pages[] = {
    {"man/man1/staadkit.1",
     [](const std::string& text, const std::string& verb) { return part(text, ".SS " + verb + '\n', ".S"); }, roff},
    {"bash-completion/completions/staadkit",
     [](const std::string& text, const std::string& verb) {
         std::string words = part(text, "        " + verb + ":-*) words='", " ;;");
         std::replace(words.begin(), words.end(), '\'', ' ');
         return words;
     },
     [](const std::string& name) { return ' ' + name + ' '; }},
    {"zsh/site-functions/_staadkit",
     [](const std::string& text, const std::string& verb) {
         std::string lines = part(text, "        " + verb + ")\n", ";;\n");
         for (std::size_t at = lines.find("=["); at != std::string::npos; at = lines.find("=["))
             lines.erase(at, 1);
         return lines;
     },
     [](const std::string& name) { return name + '['; }},
    {"fish/vendor_completions.d/staadkit.fish",
     [](const std::string& text, const std::string& verb) {
         return part(text, "'__fish_seen_subcommand_from " + verb + '\'', "'not __fish_seen");
     },
     [](const std::string& name) { return name[1] == '-' ? " -l " + name.substr(2) + ' ' : " -s " + name.substr(1); }}};

TEST(Pages, HaveEveryVerbAndOptionOfTheHelp)
{
    const tool_run tool;
    const std::vector<std::string> verbs = names_in_help(tool("--help").out, "Verbs");
    EXPECT_EQ(verbs, (std::vector<std::string>{"info", "dump", "convert", "forces", "storeys", "compare", "help"}));
    for (const std::string& verb : verbs) {
        const std::vector<std::string> options = names_in_help(tool({"help", verb}).out, "Options");
        EXPECT_EQ(options.back(), "--quiet") << verb;
        for (const page& each : pages) {
            const std::string on_verb =
                each.part_on(read_file(std::string(STAADKIT_SOURCE_DIR "/share/") + each.path), verb);
            for (const std::string& option : options)
                EXPECT_TRUE(contains(on_verb, each.option(option))) << each.path << ' ' << verb << ' ' << option << '\n'
                                                                    << on_verb;
        }
    }
}

TEST(Pages, ManualNamesVersionCallsAndExitCodes)
{
    const std::string man = read_file(STAADKIT_SOURCE_DIR "/share/man/man1/staadkit.1");
    for (const char* line :
         {".TH STAADKIT 1 \"\" \"staadkit " STAADKIT_VERSION "\" \"User Commands\"\n",
          "\n\\fBstaadkit convert\\fR [\\fIOPTIONS\\fR] \\fIIN\\fR \\fIOUT\\fR\n", " \\fIFILE\\fR...\n",
          " [\\fIVERB\\fR]\n", "\\fB\\-\\-template\\fR \\fBwind|seismic\\fR\n", "\\fB4\\fR\noutput not written\n"})
        EXPECT_TRUE(contains(man, line)) << line;
}

} // namespace
} // namespace cli_test
