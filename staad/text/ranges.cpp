#include "staad/text/ranges.h"

#include "staad/text/run_lines.h"

#include <algorithm>

namespace STAAD {
namespace detail {
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

} // namespace detail

std::vector<std::pair<int, int>> make_id_ranges(const std::vector<int>& ids)
{
    std::vector<int> sorted = ids;
    std::sort(sorted.begin(), sorted.end());
    std::vector<std::pair<int, int>> ranges;
    detail::for_each_range(std::span<const int>(sorted),
                           [&ranges](int first, int last, bool) { ranges.emplace_back(first, last); });
    return ranges;
}

std::string format_id_ranges(const std::string& head, const std::vector<std::pair<int, int>>& ranges, std::size_t width)
{
    return detail::wrapped_run_list(head, ranges, {}, width);
}

std::string format_id_ranges_tail(const std::vector<std::pair<int, int>>& ranges, const std::string& tail,
                                  std::size_t width)
{
    return detail::wrapped_run_list({}, ranges, ' ' + tail, width);
}

} // namespace STAAD
