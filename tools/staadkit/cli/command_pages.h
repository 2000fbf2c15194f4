/// The files that packages put beside the tool, made from its own command line.
#ifndef TOOLS_STAADKIT_CLI_COMMAND_PAGES_H
#define TOOLS_STAADKIT_CLI_COMMAND_PAGES_H

#include "cli/command_outline.h"

#include <string>

namespace tool {

/// The manual page, for section 1.
std::string man_page(const command_outline& app);

/// The completions of the shells bash, zsh and fish.
std::string bash_completion(const command_outline& app);
std::string zsh_completion(const command_outline& app);
std::string fish_completion(const command_outline& app);

/// One page by the name under which `--print` knows it.
struct command_page {
    const char* name;
    std::string (*make)(const command_outline& app);
};

inline constexpr command_page command_pages[] = {
    {"man", man_page}, {"bash", bash_completion}, {"zsh", zsh_completion}, {"fish", fish_completion}};

/// The page of that name; null if there is none.
const command_page* find_page(const std::string& name);

/// All names with bars between them, as the help shows them.
std::string page_names();

} // namespace tool

#endif
