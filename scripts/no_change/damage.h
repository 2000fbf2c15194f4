/// Texts with faults: lines and words that are gone, twice, in another place, or odd.
#ifndef STAAD_NO_CHANGE_DAMAGE_H
#define STAAD_NO_CHANGE_DAMAGE_H

#include "tests/support/random_text.h"

#include <string>

namespace no_change {

/// `text` with up to so many faults.
std::string damaged(STAAD::decks::chance& random, const std::string& text, int faults);

} // namespace no_change

#endif
