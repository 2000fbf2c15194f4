#include "forces/force_extremes.h"

#include "forces/force_selection.h"

#include <array>

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

} // namespace tool
