#include "output/run_list.h"

#include "staad/text/ranges.h"

#include <cstddef>
#include <limits>

namespace tool {

std::string run_list(const std::vector<int>& numbers)
{
    constexpr std::size_t most_runs = 10;
    constexpr std::size_t one_line = std::numeric_limits<std::size_t>::max();
    auto runs = STAAD::make_id_ranges(numbers);
    const bool is_cut = runs.size() > most_runs;
    if (is_cut)
        runs.resize(most_runs);
    return STAAD::format_id_ranges({}, runs, one_line) + (is_cut ? " ..." : "");
}

} // namespace tool
