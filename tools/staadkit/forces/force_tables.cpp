#include "forces/force_tables.h"

#include "forces/force_selection.h"

namespace tool {
namespace {

struct component_extremes {
    force_extreme largest;
    force_extreme smallest;
    bool is_found = false;

    void take(const force_extreme& candidate)
    {
        if (!is_found || candidate.value > largest.value)
            largest = candidate;
        if (!is_found || candidate.value < smallest.value)
            smallest = candidate;
        is_found = true;
    }
};

/// Forces whose only station, at 1 mm, has the number of its load case in the first column: the list that the
/// library makes of them shows which load cases it took.
STAAD::BeamForceAndMOM labelled(const STAAD::BeamForceAndMOM& forces)
{
    STAAD::BeamForceAndMOM labels;
    for (const auto& [number, record] : forces.records) {
        STAAD::ForcePoint label;
        label.position = 1.0;
        label.f1 = number;
        STAAD::BeamLoadCaseRecord& copy = labels.records[number];
        if (!record.pkpm_points.empty())
            copy.pkpm_points.push_back(label);
    }
    return labels;
}

} // namespace

std::vector<force_extreme> find_extremes(const STAAD::SdReader& model)
{
    std::array<component_extremes, force_components.size()> found;
    each_record(model, [&found](int member, int load_case, const STAAD::BeamLoadCaseRecord& record) {
        for (const STAAD::ForcePoint& point : record.points) {
            for (std::size_t i = 0; i < found.size(); ++i)
                found[i].take(
                    {&force_components[i], true, point.*force_components[i].value, member, load_case, point.position});
        }
    });
    std::vector<force_extreme> extremes;
    for (component_extremes& each : found) {
        if (!each.is_found)
            continue;
        each.smallest.is_largest = false;
        extremes.push_back(each.largest);
        extremes.push_back(each.smallest);
    }
    return extremes;
}

member_list list_of(const STAAD::SdReader& model, const STAAD::BeamForceAndMOM& forces)
{
    member_list list;
    list.member = member_number(model, forces);
    list.stations = forces.get_pkpm_load_on_section(model.load_cases);
    const std::vector<STAAD::BeamLoadList> labels = labelled(forces).get_pkpm_load_on_section(model.load_cases);
    for (std::size_t i = 0; i < std::size(list_kinds) && !labels.empty(); ++i) {
        const STAAD::ForcePoint& label = labels.front().*list_kinds[i].point;
        if (label.position != 0.0)
            list.cases[i] = static_cast<int>(label.f1);
    }
    return list;
}

} // namespace tool
