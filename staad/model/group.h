/// Named groups of joints, members or elements.
#ifndef STAAD_MODEL_GROUP_H
#define STAAD_MODEL_GROUP_H

#include "staad/export.h"

#include <string>
#include <vector>

namespace STAAD {

/// One group of the START GROUP DEFINITION block.
struct SdGroup {
    enum IdType : int { JointId = 0, MemberId = 1, ElementId = 2 };

    std::string kind;     ///< "JOINT", "MEMBER", "GEOMETRY", "ELEMENT", "FLOOR" or empty
    std::string name;     ///< group name as written, for example "_FLOOR1"
    std::vector<int> ids; ///< numbers of the file in the order listed, repeats kept

    /// What `ids` number, by `kind`: MEMBER and GEOMETRY members, ELEMENT and FLOOR elements,
    /// everything else joints.
    STAAD_API IdType GetIdType() const;
};

} // namespace STAAD

#endif
