/// The data of the views of "forces": the columns of a station, the extremes, the lists of the downstream
/// program.
#ifndef TOOLS_STAADKIT_FORCES_FORCE_TABLES_H
#define TOOLS_STAADKIT_FORCES_FORCE_TABLES_H

#include "staad/model/sd_reader.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace tool {

/// One column of a station. Forces and moments are named by their column in the listing, whose heading names
/// the axes.
struct force_column {
    const char* name;
    const char* unit;
    const char* key; ///< of JSON objects, and in the header of CSV
    double STAAD::ForcePoint::*value;
    int decimals; ///< on a screen
};

inline constexpr force_column position_column = {"position", "mm", "position_mm", &STAAD::ForcePoint::position, 1};

inline constexpr force_column force_columns[] = {
    position_column,
    {"F1", "kN", "f1_kN", &STAAD::ForcePoint::f1, 3},
    {"F2", "kN", "f2_kN", &STAAD::ForcePoint::f2, 3},
    {"F3", "kN", "f3_kN", &STAAD::ForcePoint::f3, 3},
    {"M1", "kN*mm", "m1_kNmm", &STAAD::ForcePoint::m1, 1},
    {"M2", "kN*mm", "m2_kNmm", &STAAD::ForcePoint::m2, 1},
    {"M3", "kN*mm", "m3_kNmm", &STAAD::ForcePoint::m3, 1},
};

/// The columns without the position.
inline constexpr std::span<const force_column> force_components = std::span(force_columns).subspan(1);

/// The largest or smallest value of one force or moment, and where it is.
struct force_extreme {
    const force_column* component = nullptr;
    bool is_largest = true; ///< else the smallest
    double value = 0.0;
    int member = 0; ///< number in the file
    int load_case = 0;
    double position = 0.0; ///< mm

    const char* word() const noexcept { return is_largest ? "largest" : "smallest"; }
};

/// Largest and smallest of each component over all the model's forces; of equal ones the first. Empty if
/// there are no stations.
std::vector<force_extreme> find_extremes(const STAAD::SdReader& model);

/// One of the four kinds of load, and its field in a station of a list.
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

/// The list of one member that the downstream design program takes.
struct member_list {
    int member = 0; ///< number in the file
    /// The load case of each of `list_kinds`; none: its points are zeros.
    std::array<std::optional<int>, std::size(list_kinds)> cases;
    std::vector<STAAD::BeamLoadList> stations; ///< empty if there is no load case of these kinds
};

member_list list_of(const STAAD::SdReader& model, const STAAD::BeamForceAndMOM& forces);

} // namespace tool

#endif
