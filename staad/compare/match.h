/// Finds the joints, members and shells that two models have at the same places.
#ifndef STAAD_COMPARE_MATCH_H
#define STAAD_COMPARE_MATCH_H

#include "staad/export.h"
#include "staad/model/old_proj_maps.h"

#include <vector>

namespace STAAD {

class SdReader;

/// Joints whose coordinates differ by less than this, each, are at the same place, mm.
inline constexpr double same_place = 0.1;

/// The counterparts of the records of one list: 1-based positions in the list of the other model by the
/// 0-based index of the record; 0 for a record without a counterpart.
struct Counterparts {
    std::vector<int> of_new; ///< for each record of the new model its position in the earlier one
    std::vector<int> of_old; ///< the inverse: of several new records with one counterpart the last
};

/// The counterparts in SdReader::nodes, `beams` and `shells`.
struct ModelMatch {
    Counterparts joints;
    Counterparts members;
    Counterparts shells;
};

/// Finds the counterparts of the records of `now` in `earlier`, which may be the same model. Numbers are not
/// compared.
///
/// Joints:  the first earlier joint in list order that differs by less than `same_place` in each coordinate
///          and is not yet the counterpart of another joint.
/// Members: the first earlier member between the counterparts of both ends, in either direction.
/// Shells:  the first earlier shell with the counterparts of all corners in the same order.
/// Joints without finite coordinates, and members and shells that lack a joint, have no counterpart.
/// Throws:  std::bad_alloc.
/// Cost:    linear in both models; joints crowded within half a millimetre are compared one by one.
STAAD_API ModelMatch match(const SdReader& now, const SdReader& earlier);

/// The form of SdReader::old_proj_maps: an entry for each record with a counterpart.
STAAD_API OldProjMaps to_maps(const ModelMatch& matched);

} // namespace STAAD

#endif
