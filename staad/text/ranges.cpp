#include "staad/text/ranges.h"

#include "staad/text/run_lines.h"

#include <algorithm>

namespace STAAD {

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
