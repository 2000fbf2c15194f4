/// Lists of numbers as they are written: runs of numbers laid on lines.
#ifndef STAAD_TEXT_RUN_LINES_H
#define STAAD_TEXT_RUN_LINES_H

#include "staad/text/line_filler.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace STAAD::detail {

/// Calls `visit(first, last, is_last)` for every range of ascending numbers.
template<class Id, class Visit>
void for_each_range(std::span<const Id> ascending, Visit visit)
{
    if (ascending.empty())
        return;
    Id first = ascending.front();
    Id last = first;
    for (const Id id : ascending.subspan(1)) {
        if (id == last || id - 1 != last) {
            visit(first, last, false);
            first = id;
        }
        last = id;
    }
    visit(first, last, true);
}

/// A list of numbers as it is written everywhere: `head`, the runs, and `tail` on the line of the last
/// one. Lines of at most `line_width` characters, continued ones ending in " -"; no line feed at the end.
/// The tail brings its own blank. Without numbers the head alone.
void put_run_list(text_output& out, std::string_view head, std::span<const int> ids, std::string_view tail);
void put_run_list(text_output& out, std::string_view head, std::span<const unsigned> ids, std::string_view tail);

/// The same from ranges, as text, on lines of at most `width` characters.
std::string wrapped_run_list(std::string_view head, const std::vector<std::pair<int, int>>& ranges,
                             std::string_view tail, std::size_t width);

} // namespace STAAD::detail

#endif
