/// How this model's joints, members and shells correspond to those of an earlier project.
#ifndef STAAD_MODEL_OLD_PROJ_MAPS_H
#define STAAD_MODEL_OLD_PROJ_MAPS_H

#include <map>

namespace STAAD {

/// All keys and values are 1-based positions; a record without a counterpart has no entry.
struct OldProjMaps {
    std::map<int, int> joints_new_to_old;
    std::map<int, int> members_new_to_old;
    std::map<int, int> shells_new_to_old;
    std::map<int, int> joints_old_to_new;
    std::map<int, int> members_old_to_new;
    std::map<int, int> shells_old_to_new;
};

} // namespace STAAD

#endif
