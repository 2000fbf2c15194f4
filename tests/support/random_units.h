/// Random UNIT lines and the factors they stand for.
#ifndef STAAD_TESTS_SUPPORT_RANDOM_UNITS_H
#define STAAD_TESTS_SUPPORT_RANDOM_UNITS_H

#include "tests/support/random_text.h"

#include <string>

namespace STAAD::decks {

struct unit_line {
    std::string text;
    double length_factor = 1.0;
    double force_factor = 1.0;
    double force_length_factor = 1.0;
};

/// Known and unknown words, in upper and lower case, with and without a moment word.
unit_line random_unit_line(chance& random);

} // namespace STAAD::decks

#endif
