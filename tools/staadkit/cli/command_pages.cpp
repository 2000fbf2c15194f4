#include "cli/command_pages.h"

#include <algorithm>

namespace tool {

const command_page* find_page(const std::string& name)
{
    const auto* const page = std::find_if(std::begin(command_pages), std::end(command_pages),
                                          [&name](const command_page& each) { return name == each.name; });
    return page == std::end(command_pages) ? nullptr : page;
}

std::string page_names()
{
    std::string names;
    for (const command_page& page : command_pages)
        names += (names.empty() ? "" : "|") + std::string(page.name);
    return names;
}

} // namespace tool
