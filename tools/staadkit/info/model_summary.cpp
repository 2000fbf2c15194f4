#include "info/model_summary.h"

#include "cli/messages.h"
#include "staad/query/lookup.h"
#include "staad/storeys/levels.h"

#include <algorithm>
#include <cmath>

namespace tool {
namespace {

using STAAD::SdBeam;
using STAAD::SdOffset;
using STAAD::SdReader;

extents box_around(const std::vector<STAAD::SdNode>& joints)
{
    extents box;
    for (const STAAD::SdNode& joint : joints) {
        const double position[3] = {joint.x, joint.y, joint.z};
        const bool is_first = &joint == &joints.front();
        for (std::size_t axis = 0; axis < 3; ++axis) {
            box.low[axis] = is_first ? position[axis] : std::min(box.low[axis], position[axis]);
            box.high[axis] = is_first ? position[axis] : std::max(box.high[axis], position[axis]);
        }
    }
    return box;
}

bool is_zero(const SdOffset& offset)
{
    return offset.x == 0.0 && offset.y == 0.0 && offset.z == 0.0;
}

void count_members(const SdReader& model, model_summary& summary)
{
    for (const SdBeam& member : model.beams) {
        ++summary.members_of[static_cast<std::size_t>(model.GetBeamType(member))];
        if (!is_zero(member.offset_start) || !is_zero(member.offset_end))
            ++summary.members_with_offsets;
        if (member.beta != 0.0)
            ++summary.members_with_beta;
    }
}

std::vector<skipped_summary> skipped_lines(const STAAD::ReadReport& report)
{
    std::vector<skipped_summary> skipped;
    for (const STAAD::Finding& finding : report.findings) {
        if (finding.code == skipped_code)
            skipped.push_back({finding.text, finding.count});
    }
    return skipped;
}

} // namespace

bool extents::are_finite() const
{
    return std::isfinite(size(0)) && std::isfinite(size(1)) && std::isfinite(size(2));
}

model_summary summarise(const SdReader& model, const STAAD::ReadReport& report)
{
    model_summary summary;
    summary.joints = model.nodes.size();
    summary.members = model.beams.size();
    summary.surfaces = model.surfaces.size();
    summary.elements = STAAD::element_count(model);
    summary.box = box_around(model.nodes);
    summary.levels = STAAD::storey_levels(model);
    count_members(model, summary);
    summary.has_default_density = report.density_from.first == 0;
    summarise_lists(model, summary);
    summarise_sections(model, summary);
    summarise_loads(model, summary);
    summary.skipped = skipped_lines(report);
    return summary;
}

} // namespace tool
