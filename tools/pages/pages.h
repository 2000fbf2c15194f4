/// The files under share/ that packages put beside the tool, made from its own command line.
#ifndef TOOLS_PAGES_PAGES_H
#define TOOLS_PAGES_PAGES_H

#include "command_outline.h"

#include <string>

namespace pages {

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
