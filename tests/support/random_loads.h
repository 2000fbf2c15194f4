/// Random load lines and the definitions they stand for.
#ifndef STAAD_TESTS_SUPPORT_RANDOM_LOADS_H
#define STAAD_TESTS_SUPPORT_RANDOM_LOADS_H

#include "tests/support/random_text.h"
#include "tests/support/random_units.h"

#include <string>
#include <vector>

namespace STAAD::decks {

/// A load definition: the words after its list, and what they mean.
struct written_load {
    std::vector<std::string> words;
    std::string kind;
    std::string direction;
    std::vector<double> values;
};

/// A load under the block line `block`, such as "MEMBER LOAD"; empty: under none. It has no word or
/// at least two.
written_load random_load(chance& random, const std::string& block, const unit_line& units);

/// The same in METER KN, with the words and values that a load of its kind has.
written_load plain_load(chance& random, const std::string& block);

/// SELFWEIGHT, its direction and its factor.
written_load random_selfweight(chance& random);

} // namespace STAAD::decks

#endif
