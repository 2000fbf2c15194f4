#include "staad/reader/read_limit.h"

#include <cstdio>

namespace STAAD {

ReadLimitError::ReadLimitError(std::size_t first_line, std::size_t last_line, std::size_t limit) noexcept
    : first_line_(first_line), last_line_(last_line), limit_(limit)
{
    const char* const what = limit == most_numbers_per_list ? "a list" : "the lists of one reading together";
    if (first_line == 0)
        static_cast<void>(std::snprintf(text_, sizeof text_, "%s of more than %zu numbers", what, limit));
    else
        static_cast<void>(
            std::snprintf(text_, sizeof text_, "line %zu: %s of more than %zu numbers", first_line, what, limit));
}

const char* ReadLimitError::what() const noexcept
{
    return text_;
}

} // namespace STAAD
