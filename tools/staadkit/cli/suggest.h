/// "Did you mean": the known word nearest to a mistyped one.
#ifndef TOOLS_STAADKIT_CLI_SUGGEST_H
#define TOOLS_STAADKIT_CLI_SUGGEST_H

#include "staad/text/edit_distance.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// The first of the words nearest to `typed`; empty if none is near enough: one slip in a short word, one more
/// for every three letters.
inline std::string nearest_word(std::string_view typed, const std::vector<std::string>& words)
{
    std::string nearest;
    std::size_t smallest = 2 + typed.size() / 3;
    for (const std::string& word : words) {
        const std::size_t distance = STAAD::edit_distance(typed, word);
        if (distance < smallest && distance < word.size()) {
            smallest = distance;
            nearest = word;
        }
    }
    return nearest;
}

} // namespace tool

#endif
