#include "staad/report/read_limit.h"

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
    const char* format = "more than %zu numbers in all lists together";
    if (limit == most_numbers_per_list)
        format = "a list of more than %zu numbers";
    else if (limit == most_text_per_reading)
        format = "more than %zu bytes of long texts in members, elements and loads";
    static_cast<void>(std::snprintf(text_ + used, room, format, limit));
}

const char* ReadLimitError::what() const noexcept
{
    return text_;
}

} // namespace STAAD
