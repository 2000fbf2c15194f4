/// Gathering the load cases of a member, and resampling them for the downstream design program.
#include "staad/model/force.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace STAAD {
namespace {

constexpr double same_station = 0.0001; // mm
constexpr std::size_t pkpm_stations = 9;

/// Ascending; NaN comes last.
bool is_before(double left, double right)
{
    return std::isnan(right) ? !std::isnan(left) : left < right;
}

/// Sorted by position. Of a run, points less than `same_station` from the lowest of them, only the point
/// printed first is kept.
std::vector<ForcePoint> distinct_stations(const std::vector<ForcePoint>& points)
{
    std::vector<std::size_t> order(points.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::stable_sort(order.begin(), order.end(), [&points](std::size_t left, std::size_t right) {
        return is_before(points[left].position, points[right].position);
    });
    std::vector<ForcePoint> distinct;
    for (std::size_t begin = 0, end = 0; begin < order.size(); begin = end) {
        const double position = points[order[begin]].position;
        std::size_t printed_first = order[begin];
        for (end = begin + 1; end < order.size() && points[order[end]].position - position < same_station; ++end)
            printed_first = std::min(printed_first, order[end]);
        distinct.push_back(points[printed_first]);
    }
    return distinct;
}

ForcePoint interpolated(const ForcePoint& a, const ForcePoint& b, double station)
{
    const auto between = [&](double from, double to) {
        return from + (to - from) * (station - a.position) / (b.position - a.position);
    };
    return {station,
            between(a.f1, b.f1),
            between(a.f2, b.f2),
            between(a.f3, b.f3),
            between(a.m1, b.m1),
            between(a.m2, b.m2),
            between(a.m3, b.m3)};
}

ForcePoint moved_to(ForcePoint point, double station)
{
    point.position = station;
    return point;
}

/// The values at `station`; outside of the points those of the nearer end.
ForcePoint point_at(const std::vector<ForcePoint>& points, double station)
{
    const auto after = std::lower_bound(points.begin(), points.end(), station - same_station,
                                        [](const ForcePoint& point, double limit) { return point.position < limit; });
    if (after == points.begin())
        return moved_to(points.front(), station);
    if (after == points.end())
        return moved_to(points.back(), station);
    return interpolated(*(after - 1), *after, station);
}

} // namespace

void BeamLoadCaseRecord::sort_pkpm_format()
{
    points = distinct_stations(points);
    if (points.size() < 2)
        return;
    if (points.size() == pkpm_stations) {
        pkpm_points = points;
        return;
    }
    const double length = points.back().position;
    pkpm_points.clear();
    pkpm_points.reserve(pkpm_stations);
    pkpm_points.push_back(points.front());
    for (std::size_t k = 1; k + 1 < pkpm_stations; ++k)
        pkpm_points.push_back(point_at(points, static_cast<double>(k) * 0.125 * length));
    pkpm_points.push_back(points.back());
}

void BeamForceAndMOM::sort_pkpm_format()
{
    for (auto& [load_case, record] : records)
        record.sort_pkpm_format();
}

void BeamForceAndMOM::add_loadCase_record(const BeamLoadCaseRecord& record)
{
    const auto [stored, is_new] = records.try_emplace(record.load_case, record);
    if (is_new)
        return;
    std::vector<ForcePoint>& points = stored->second.points;
    const std::size_t count = record.points.size(); // `record` may be this very record
    points.reserve(points.size() + count);
    for (std::size_t i = 0; i < count; ++i)
        points.push_back(record.points[i]);
}

void BeamForceAndMOM::merge(const BeamForceAndMOM& other)
{
    if (other.beam != beam)
        return;
    for (const auto& [load_case, record] : other.records)
        add_loadCase_record(record);
}

} // namespace STAAD
