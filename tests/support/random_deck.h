/// Random decks together with the model that a reading of them must give.
#ifndef STAAD_TESTS_SUPPORT_RANDOM_DECK_H
#define STAAD_TESTS_SUPPORT_RANDOM_DECK_H

#include "staad/model/sd_reader.h"

#include <cstdint>
#include <string>

namespace STAAD::decks {

struct random_deck {
    SdReader model; ///< filled field by field, by no reader
    std::string text;
};

enum class deck_kind {
    any,   ///< with odd lines, words and numbers that the host reading has a rule for
    plain, ///< METER KN, and lines that mean for the analysis program what they mean for the host reading
};

/// A deck of `members` members with a random choice of blocks, the same for the same arguments. Every
/// record is decided first and entered in the model, then laid out as text.
random_deck make_random_deck(std::uint64_t seed, int members, deck_kind kind = deck_kind::any);

} // namespace STAAD::decks

#endif
