/// The lists that the downstream design program takes, one a member.
#ifndef TOOLS_STAADKIT_FORCES_FORCE_LISTS_H
#define TOOLS_STAADKIT_FORCES_FORCE_LISTS_H

#include "staad/model/sd_reader.h"

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace tool {

/// One of the four kinds of load, and where a station of the list has it.
struct list_kind {
    STAAD::LoadCase::LoadType type;
    STAAD::ForcePoint STAAD::BeamLoadList::*point;
};

inline constexpr list_kind list_kinds[] = {
    {STAAD::LoadCase::Dead, &STAAD::BeamLoadList::dead},
    {STAAD::LoadCase::Live, &STAAD::BeamLoadList::live},
    {STAAD::LoadCase::Wind, &STAAD::BeamLoadList::wind},
    {STAAD::LoadCase::Seismic, &STAAD::BeamLoadList::seismic},
};

struct member_list {
    int member = 0; ///< number in the file
    /// The load case that stands for each of `list_kinds`; none: its points are zeros.
    std::array<std::optional<int>, std::size(list_kinds)> cases;
    std::vector<STAAD::BeamLoadList> stations; ///< empty if no load case counts
};

member_list list_of(const STAAD::SdReader& model, const STAAD::BeamForceAndMOM& forces);

} // namespace tool

#endif
