/// Models put together from places and positions, for the tests of what corresponds to what.
#ifndef STAAD_TESTS_SUPPORT_PLACED_MODELS_H
#define STAAD_TESTS_SUPPORT_PLACED_MODELS_H

#include "staad/model/sd_reader.h"

#include <cstddef>
#include <map>
#include <utility>
#include <vector>

namespace STAAD::placed {

struct point {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

inline SdNode joint(int number, const point& place)
{
    SdNode made;
    made.id = number;
    made.x = place.x;
    made.y = place.y;
    made.z = place.z;
    return made;
}

/// A member between two positions.
inline SdBeam member(int number, int start, int end)
{
    SdBeam made;
    made.id = number;
    made.node_start = start;
    made.node_end = end;
    return made;
}

/// A shell over corner positions.
inline SdShell shell(int number, const std::vector<int>& corners)
{
    SdShell made;
    made.id = number;
    made.node_ids = corners;
    return made;
}

/// A joint per place, numbered as they stand.
inline SdReader joints_at(const std::vector<point>& places)
{
    SdReader model;
    for (const point& place : places)
        model.nodes.push_back(joint(static_cast<int>(model.nodes.size()) + 1, place));
    return model;
}

/// Joints a metre apart on a line.
inline SdReader row_of_joints(int count)
{
    std::vector<point> places;
    for (int i = 1; i <= count; ++i)
        places.push_back({1000.0 * i, 0, 0});
    return joints_at(places);
}

/// Joints 1 to 4 of both are the same, joint 5 has no counterpart in the other.
inline SdReader five_joints_now()
{
    return row_of_joints(5);
}

inline SdReader five_joints_earlier()
{
    SdReader model = row_of_joints(4);
    model.nodes.push_back(joint(5, {-5000, 0, 0}));
    return model;
}

/// `model` with a member per pair of positions, numbered as they stand.
inline SdReader with_members(SdReader model, const std::vector<std::pair<int, int>>& ends)
{
    for (const auto& [start, end] : ends)
        model.beams.push_back(member(static_cast<int>(model.beams.size()) + 1, start, end));
    return model;
}

/// `model` with a shell per list of corner positions, numbered as they stand.
inline SdReader with_shells(SdReader model, const std::vector<std::vector<int>>& corners)
{
    for (const std::vector<int>& one : corners)
        model.shells.push_back(shell(static_cast<int>(model.shells.size()) + 1, one));
    return model;
}

/// The values of a map from positions to positions, for the positions 1 to `count`; 0 where there is none.
inline std::vector<int> listed(const std::map<int, int>& map, std::size_t count)
{
    std::vector<int> values(count, 0);
    for (std::size_t i = 0; i < count; ++i) {
        const auto found = map.find(static_cast<int>(i) + 1);
        if (found != map.end())
            values[i] = found->second;
    }
    return values;
}

} // namespace STAAD::placed

#endif
