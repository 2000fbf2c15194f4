/// Random pairs of models that have much in common.
#ifndef STAAD_TESTS_SUPPORT_RANDOM_PAIR_H
#define STAAD_TESTS_SUPPORT_RANDOM_PAIR_H

#include "staad/model/sd_reader.h"

#include <cstdint>

namespace STAAD::decks {

/// Where the joints of a pair may be: in all directions, or along one with the others as in a building.
enum class place_kind {
    building,         ///< a metre apart, but for some that are moved a little
    clusters_in_line, ///< several within the tolerance of each other
    clusters,
    chains, ///< links shorter than the tolerance
    crossing_chains,
    borders_in_line, ///< round numbers, where a division of space may have its borders, and one bit beside them
    borders,
    far_out_in_line, ///< doubles about as far apart as the tolerance, or farther, or without a place
    far_out
};

struct model_pair {
    SdReader now;
    SdReader earlier;
};

/// Up to `joints` joints, members and shells in `now`; the same for the same arguments. `earlier` is mostly
/// `now` in another order, renumbered, with joints that are moved, gone or new; sometimes a model of its own.
model_pair make_random_pair(std::uint64_t seed, place_kind kind, int joints);

} // namespace STAAD::decks

#endif
