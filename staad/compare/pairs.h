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

/// Finer than `matched`, which is match(now, earlier): each record has one counterpart at most, and numbers
/// count.
///
/// Same:  what stands at one place. If several records of a model do, those of one number are a pair, then
///        the rest in list order, as long as both models have some. Joints stand at one place, and members
///        and shells on the same joints, as match() finds; two members or shells that lack a joint are the
///        same if they have one number and the joints that they do have are the same.
/// Moved: what is left, and has the number of something left in the earlier model. The first such in list
///        order counts. Surfaces have numbers of their own: none is paired with an element by number.
/// Throws: std::bad_alloc. Cost: n log n in the lists.
STAAD_API ModelPairs pair_records(const SdReader& now, const SdReader& earlier, const ModelMatch& matched);

} // namespace STAAD

#endif
