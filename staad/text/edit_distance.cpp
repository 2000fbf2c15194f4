#include "staad/text/edit_distance.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace STAAD {

std::size_t edit_distance(std::string_view from, std::string_view to)
{
    std::vector<std::size_t> before_last(to.size() + 1);
    std::vector<std::size_t> last(to.size() + 1);
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= from.size(); ++i) {
        std::swap(before_last, last);
        std::swap(last, row);
        row[0] = i;
        for (std::size_t j = 1; j <= to.size(); ++j) {
            const std::size_t replaced = last[j - 1] + (from[i - 1] == to[j - 1] ? 0 : 1);
            row[j] = std::min({replaced, last[j] + 1, row[j - 1] + 1});
            if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1])
                row[j] = std::min(row[j], before_last[j - 2] + 1);
        }
    }
    return row.back();
}

} // namespace STAAD
