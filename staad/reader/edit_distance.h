/// How far two words are apart, for messages that guess what was meant.
#ifndef STAAD_READER_EDIT_DISTANCE_H
#define STAAD_READER_EDIT_DISTANCE_H

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

namespace STAAD::detail {

/// Fewest insertions, deletions and exchanges of single characters that turn one word into the other.
inline std::size_t edit_distance(std::string_view a, std::string_view b)
{
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j)
        row[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t exchanged = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, exchanged});
        }
    }
    return row.back();
}

} // namespace STAAD::detail

#endif
