/// The files under share/ that are installed with the tool, made from a description of its command line.
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
    none,   ///< an option without a value
    word,   ///< one of a few
    number, ///< N in the help, or LIST for several
    file
};

struct option_outline {
    words names; ///< with their dashes, short ones first; an argument has one name only
    value_kind kind = value_kind::none;
    bool value_may_lack = false;
    bool repeats = false;
    std::string placeholder; ///< the word for the value in the help
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

/// The verbs and options of `app`, in the order of its help.
command_outline outline_of(const CLI::App& app);

words verb_names(const command_outline& app);
words option_names(const command_outline& command);

/// The words joined by `between`.
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
