/// The files under share/ that packages put beside the tool, made from its command line as data.
#ifndef TOOLS_PAGES_PAGES_H
#define TOOLS_PAGES_PAGES_H

#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
}

namespace pages {

using words = std::vector<std::string>;

/// The value of an option, or an argument, as the help names it: FILE, N, "wind|seismic".
enum class value_kind {
    none,   ///< of an option that takes no value
    word,   ///< one of a few
    number, ///< N in the help, or LIST, of several
    file
};

struct option_outline {
    words names; ///< with their dashes, short ones first; of an argument its only name
    value_kind kind = value_kind::none;
    bool value_may_lack = false;
    bool repeats = false;
    std::string placeholder; ///< what stands for the value in the help
    words choices;           ///< all that the value can be, of kind word
    std::string help;
};

struct command_outline {
    std::string name;
    std::string help;
    std::vector<option_outline> options;
    std::vector<option_outline> arguments;
    std::vector<command_outline> verbs;
};

/// What `app` has been set up to understand, in the order of its help.
command_outline outline_of(const CLI::App& app);

words verb_names(const command_outline& app);
words option_names(const command_outline& command);

/// The words in one line with `between` between them.
std::string joined(const words& list, std::string_view between = " ");

/// The manual page, for section 1.
std::string man_page(const command_outline& app);

/// The completions of the shells bash, zsh and fish.
std::string bash_completion(const command_outline& app);
std::string zsh_completion(const command_outline& app);
std::string fish_completion(const command_outline& app);

struct page {
    const char* path; ///< below share/
    std::string (*text)(const command_outline& app);
};

inline constexpr page all_pages[] = {{"man/man1/staadkit.1", man_page},
                                     {"bash-completion/completions/staadkit", bash_completion},
                                     {"zsh/site-functions/_staadkit", zsh_completion},
                                     {"fish/vendor_completions.d/staadkit.fish", fish_completion}};

} // namespace pages

#endif
