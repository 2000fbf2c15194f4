/// Random sections as a property line has them, and as a reading normalises them.
#ifndef STAAD_TESTS_SUPPORT_RANDOM_SECTIONS_H
#define STAAD_TESTS_SUPPORT_RANDOM_SECTIONS_H

#include "tests/support/random_text.h"

#include <string>

namespace STAAD::decks {

struct written_section {
    std::string written;    ///< from its keyword to the end of the line; at least three words
    std::string normalised; ///< dimensions in whole millimetres
};

/// A TABLE, UPTABLE, PIPE, TAPERED or PRIS section; `length_factor`: mm per length unit of the deck.
written_section random_section(chance& random, double length_factor);

/// The same in metres, with all the values that its shape has and single blanks.
written_section plain_section(chance& random);

/// Toward zero. What the decks hold is far within the range of int.
int truncated(double value);

} // namespace STAAD::decks

#endif
