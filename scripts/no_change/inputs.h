/// Random texts, plain and damaged, and random values as a host may set them.
#ifndef STAAD_NO_CHANGE_INPUTS_H
#define STAAD_NO_CHANGE_INPUTS_H

#include "staad/model/sd_reader.h"
#include "tests/support/random_text.h"

#include <string>
#include <vector>

namespace no_change {

using STAAD::decks::chance;

struct base_deck {
    std::string deck;
    std::string listing; ///< of its forces; may be empty
};

struct inputs {
    std::string deck;
    std::string listing; ///< empty: to be made for the members that are read
    std::string earlier; ///< deck of an earlier project
};

/// Now and then damaged, and now and then one of `bases` instead of a random deck.
inputs random_inputs(chance& random, const std::vector<base_deck>& bases);

/// Forces of most members of `model`, and of others.
std::string random_listing(chance& random, const STAAD::SdReader& model);

/// Joints of `model` on a grid, as in a building.
void move_to_grid(chance& random, STAAD::SdReader& model);

/// Fills in what a host fills in before it writes, and changes what a host may change.
void change_as_a_host(chance& random, STAAD::SdReader& model);

double random_value(chance& random);

} // namespace no_change

#endif
