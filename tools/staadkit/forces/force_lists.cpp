#include "forces/force_lists.h"

#include "forces/force_selection.h"

namespace tool {
namespace {

/// Forces whose only station, at 1 mm, has the number of its load case in the first column: the list made
/// of them tells which load cases the library took.
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
