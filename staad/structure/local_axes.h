/// The local axes of members and elements.
#ifndef STAAD_STRUCTURE_LOCAL_AXES_H
#define STAAD_STRUCTURE_LOCAL_AXES_H

#include "staad/export.h"
#include "staad/structure/structure.h"

namespace STAAD {

/// Three unit vectors, right-handed, in the model frame, with the letters of the deck. All zero for a member of no
/// length and an element without area.
struct LocalAxes {
    Vector3 x;
    Vector3 y;
    Vector3 z;
};

/// The axes of a member: x from start to end, between the ends that its offsets give. In decks with Y up, z is level
/// and y points up; for a vertical member z is along the file's +Z. In decks with Z up, y is level and z points up;
/// for a vertical member y is along the file's +Y. Beta then turns both about x by the right hand. A member is
/// vertical when its level projection is below a thousandth of its length. A member without joints has none.
STAAD_API LocalAxes local_axes(const Structure& structure, const Structure::Member& member) noexcept;

/// The axes of a member between its joints, offsets left aside: those that LOCAL offsets are measured in.
STAAD_API LocalAxes axes_between_joints(const Structure& structure, const Structure::Member& member) noexcept;

/// The axes of an element: z by the right hand over its corners.
STAAD_API LocalAxes local_axes(const Structure& structure, const Structure::Element& element) noexcept;

} // namespace STAAD

#endif
