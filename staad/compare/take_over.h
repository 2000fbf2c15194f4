/// Groups, supports and releases of an earlier model in the numbers of a new one.
#ifndef STAAD_COMPARE_TAKE_OVER_H
#define STAAD_COMPARE_TAKE_OVER_H

#include "staad/compare/match.h"
#include "staad/export.h"
#include "staad/model/group.h"

#include <string>
#include <vector>

namespace STAAD {

/// A group of the earlier model. The numbers of ELEMENT and FLOOR groups are taken for joint numbers, like
/// those of joint groups.
struct TakenGroup {
    SdGroup group;         ///< `ids` in the new model's numbers
    std::vector<int> lost; ///< earlier numbers without a counterpart, in their order, repeats kept
};

/// One description of supports or releases of the earlier model.
struct TakenList {
    std::string description;
    std::vector<unsigned> numbers; ///< of joints for supports, of members for releases; the new model's
    std::vector<int> lost;         ///< as TakenGroup::lost
};

/// All groups, supports and releases, in the earlier model's order.
struct TakenOver {
    std::vector<TakenGroup> groups; ///< also those that have become empty
    std::vector<TakenList> supports;
    std::vector<TakenList> releases;
};

/// Translates what `earlier` has into the numbers of `now`; changes neither. Of several earlier records with
/// one number the first is taken. `matched` is match(now, earlier).
/// Throws: std::bad_alloc. Cost: linear in the numbers translated, n log n in the earlier lists.
STAAD_API TakenOver definitions_to_take_over(const SdReader& now, const SdReader& earlier, const ModelMatch& matched);

/// Puts them into a model. Its groups are replaced by those that are not empty, its supports by the earlier
/// ones, empty lists included; earlier releases replace those of the same description.
STAAD_API void take_over(SdReader& model, TakenOver definitions);

} // namespace STAAD

#endif
