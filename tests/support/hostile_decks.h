/// Texts that ask for more than they say, or say the same without end: each of any size.
#ifndef STAAD_TESTS_SUPPORT_HOSTILE_DECKS_H
#define STAAD_TESTS_SUPPORT_HOSTILE_DECKS_H

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace STAAD::decks {

/// What reading a text must come to.
enum class answer {
    model,
    no_model,
    too_large ///< ReadLimitError
};

struct hostile_deck {
    std::string name;
    answer want;
    /// A text of about so many bytes; with loads over all members fewer, but no more references than a reading holds.
    std::function<std::string(std::size_t size)> text;
};

/// Up to 8 MB only those that want to be too large are.
const std::vector<hostile_deck>& hostile_decks();

} // namespace STAAD::decks

#endif
