#include "model_summary.h"

#include "staad/project/levels.h"

#include <algorithm>
#include <map>

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

/// The numbers of one description, counted through `index` and the list of `size` records behind it.
description_summary count_numbers(const std::string& description, const std::vector<unsigned>& numbers,
                                  const std::map<int, int>& index, std::size_t size)
{
    description_summary counted;
    counted.description = description;
    std::vector<bool> seen(size + 1);
    for (const unsigned number : numbers) {
        const auto entry = index.find(static_cast<int>(number));
        const auto position = entry == index.end() || entry->second < 1 ? 0 : static_cast<std::size_t>(entry->second);
        if (position == 0 || position > size) {
            ++counted.unknown;
        } else if (!seen[position]) {
            seen[position] = true;
            ++counted.count;
        }
    }
    return counted;
}

std::vector<description_summary> count_descriptions(const std::map<std::string, std::vector<unsigned>>& described,
                                                    const std::map<int, int>& index, std::size_t size)
{
    std::vector<description_summary> counted;
    counted.reserve(described.size());
    for (const auto& [description, numbers] : described)
        counted.push_back(count_numbers(description, numbers, index, size));
    return counted;
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

model_summary summarise(const SdReader& model, const STAAD::ReadReport& report)
{
    model_summary summary;
    summary.joints = model.nodes.size();
    summary.members = model.beams.size();
    summary.surfaces = model.surfaces.size();
    summary.elements = model.shells.size() - std::min(model.shells.size(), summary.surfaces);
    summary.box = box_around(model.nodes);
    summary.levels = STAAD::detail::storey_levels(model);
    count_members(model, summary);
    summary.supports = count_descriptions(model.supports, model.node_index, model.nodes.size());
    summary.releases = count_descriptions(model.releases, model.beam_index, model.beams.size());
    summarise_sections(model, summary);
    summarise_loads(model, summary);
    summary.skipped = skipped_lines(report);
    return summary;
}

} // namespace tool
