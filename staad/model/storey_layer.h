/// What a layered project holds: storeys, and the levels of joints.
#ifndef STAAD_MODEL_STOREY_LAYER_H
#define STAAD_MODEL_STOREY_LAYER_H

#include "staad/model/force.h"
#include "staad/model/geometry.h"
#include "staad/model/section.h"

#include <vector>

namespace STAAD {

/// A member of a storey with what belongs to it.
struct LayerMember {
    SdBeam member;          ///< its ends are 1-based positions in SdReader::nodes of the model that was read
    Section section;        ///< from the member's material and property text; `tag` numbers the property
    BeamForceAndMOM forces; ///< imported forces; empty if there are none
};

/// One storey: from one level up to the next.
struct StoreyLayer {
    double base = 0.0;                ///< mm, height of the lower level
    double height = 0.0;              ///< mm to the next level; 3000 if the model has but one level
    std::vector<LayerMember> members; ///< those that rise to the upper level; with one level, those on it or below
    std::vector<SdShell> shells;      ///< elements, by the same rule
};

/// A joint and the level that it belongs to.
struct NodeLevel {
    int position = 0; ///< 1-based, in SdReader::nodes
    int level = 0;    ///< from 0: the lowest level not below the joint; one past the last if there is none
    double rx = 0.0;  ///< mm, rounded to whole numbers, halves upward
    double ry = 0.0;
    double rz = 0.0;
};

} // namespace STAAD

#endif
