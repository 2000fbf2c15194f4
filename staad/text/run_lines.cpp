#include "staad/text/run_lines.h"

#include <algorithm>

namespace STAAD::detail {
namespace {

/// Head, ranges and tail on lines.
class run_lines {
public:
    run_lines(text_output& out, std::string_view head, std::string_view tail, std::size_t width)
        : lines_(out, continuation_mark, width), tail_(tail)
    {
        lines_.begin(head);
    }

    template<class Id>
    void add(Id first, Id last, bool is_last)
    {
        piece_.clear();
        detail::append(piece_, first);
        if (first != last) {
            piece_ += " TO ";
            detail::append(piece_, last);
        }
        if (is_last)
            piece_ += tail_;
        lines_.append(piece_, is_last ? room_for_blank : room_for_blank_and_mark);
    }

private:
    line_filler lines_;
    std::string_view tail_;
    std::string piece_;
};

template<class Id>
void put_any_run_list(text_output& out, std::string_view head, std::span<const Id> ids, std::string_view tail)
{
    std::vector<Id> sorted;
    if (!std::is_sorted(ids.begin(), ids.end())) {
        sorted.assign(ids.begin(), ids.end());
        std::sort(sorted.begin(), sorted.end());
        ids = sorted;
    }
    run_lines lines(out, head, tail, line_width);
    for_each_range(ids, [&lines](Id first, Id last, bool is_last) { lines.add(first, last, is_last); });
}

} // namespace

void put_run_list(text_output& out, std::string_view head, std::span<const int> ids, std::string_view tail)
{
    put_any_run_list(out, head, ids, tail);
}

void put_run_list(text_output& out, std::string_view head, std::span<const unsigned> ids, std::string_view tail)
{
    put_any_run_list(out, head, ids, tail);
}

std::string wrapped_run_list(std::string_view head, const std::vector<std::pair<int, int>>& ranges,
                             std::string_view tail, std::size_t width)
{
    text_output out;
    run_lines lines(out, head, tail, width);
    for (std::size_t i = 0; i < ranges.size(); ++i)
        lines.add(ranges[i].first, ranges[i].second, i + 1 == ranges.size());
    return out.take();
}

} // namespace STAAD::detail
