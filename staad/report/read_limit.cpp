#include "staad/report/read_limit.h"

#include <algorithm>
#include <cstdio>

namespace STAAD {

ReadLimitError::ReadLimitError(std::size_t first_line, std::size_t last_line, std::size_t limit) noexcept
    : first_line_(first_line), last_line_(last_line), limit_(limit)
{
    if (first_line != 0)
        size_of_place_ =
            static_cast<std::size_t>(std::max(0, std::snprintf(what_, sizeof what_, "line %zu: ", first_line)));
    const char* format = "more than %zu numbers in all lists together";
    if (limit == most_numbers_per_list)
        format = "a list of more than %zu numbers";
    else if (limit == most_generated_per_reading)
        format = "more than %zu joints, members and elements made by generation and REPEAT";
    else if (limit == most_text_per_reading)
        format = "more than %zu bytes of long texts in members, elements and loads";
    static_cast<void>(std::snprintf(what_ + size_of_place_, sizeof what_ - size_of_place_, format, limit));
}

const char* ReadLimitError::what() const noexcept
{
    return what_;
}

} // namespace STAAD
