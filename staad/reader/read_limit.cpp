#include "staad/reader/read_limit.h"

#include <algorithm>
#include <cstdio>

namespace STAAD {

ReadLimitError::ReadLimitError(std::size_t first_line, std::size_t last_line, std::size_t limit) noexcept
    : first_line_(first_line), last_line_(last_line), limit_(limit)
{
    std::size_t used = 0;
    if (first_line != 0)
        used = static_cast<std::size_t>(std::max(0, std::snprintf(text_, sizeof text_, "line %zu: ", first_line)));
    const std::size_t room = sizeof text_ - used;
    if (limit == most_numbers_per_list)
        static_cast<void>(std::snprintf(text_ + used, room, "a list of more than %zu numbers", limit));
    else
        static_cast<void>(std::snprintf(text_ + used, room, "more than %zu numbers in all lists together", limit));
}

const char* ReadLimitError::what() const noexcept
{
    return text_;
}

} // namespace STAAD
