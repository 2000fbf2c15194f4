/// The load lists of the downstream design program.
#include "staad/model/force.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <vector>

namespace STAAD {
namespace {

ForcePoint point_or_zeros(const std::vector<ForcePoint>* points, std::size_t index)
{
    return points != nullptr && index < points->size() ? (*points)[index] : ForcePoint();
}

} // namespace

std::vector<BeamLoadList> BeamForceAndMOM::get_pkpm_load_on_section(const std::map<int, LoadCase>& load_cases) const
{
    const std::vector<ForcePoint>* of_type[LoadCase::Seismic + 1] = {};
    std::size_t longest = 0;
    for (const auto& [number, record] : records) {
        const auto found = load_cases.find(number);
        if (found != load_cases.end())
            of_type[found->second.load_type()] = &record.pkpm_points;
    }
    of_type[LoadCase::Unknown] = nullptr;
    for (const std::vector<ForcePoint>* points : of_type) {
        if (points != nullptr)
            longest = std::max(longest, points->size());
    }
    std::vector<BeamLoadList> list(longest);
    for (std::size_t i = 0; i < longest; ++i) {
        list[i].dead = point_or_zeros(of_type[LoadCase::Dead], i);
        list[i].live = point_or_zeros(of_type[LoadCase::Live], i);
        list[i].wind = point_or_zeros(of_type[LoadCase::Wind], i);
        list[i].seismic = point_or_zeros(of_type[LoadCase::Seismic], i);
    }
    return list;
}

} // namespace STAAD
