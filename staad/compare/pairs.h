/// The records of two models in pairs: by place first, then by number.
#ifndef STAAD_COMPARE_PAIRS_H
#define STAAD_COMPARE_PAIRS_H

#include "staad/compare/match.h"
#include "staad/export.h"

#include <vector>

namespace STAAD {

/// The pairs of one list: 1-based positions in the list of the other model by the 0-based index of the
/// record; 0 for none. A record is in one pair at most.
struct Pairs {
    std::vector<int> old_of_new;   ///< the same record in the earlier model
    std::vector<int> new_of_old;   ///< the inverse
    std::vector<int> moved_of_new; ///< the earlier record of the same number at another place
    std::vector<int> moved_of_old; ///< the inverse
};

/// The pairs in SdReader::nodes, `beams` and `shells`.
struct ModelPairs {
    Pairs joints;
    Pairs members;
    Pairs shells;
};

/// Finer than `matched`, which is match(now, earlier): a record is paired once at most, and numbers decide
/// between records at one place.
///
/// Same:  records at one place. Of several there, those of the same number are paired, then the rest in list
///        order, as far as both models have some. Places are those of match(): coordinates for joints, joints
///        for members and shells. Two members or shells that lack a joint are the same if their numbers are
///        equal and the joints that they have are the same.
/// Moved: of the records left, those of one number, the first in list order first. Surfaces have numbers of
///        their own and are never paired with an element by number.
/// Throws: std::bad_alloc. Cost: n log n in the lists.
STAAD_API ModelPairs pair_records(const SdReader& now, const SdReader& earlier, const ModelMatch& matched);

} // namespace STAAD

#endif
