#include "storeys/storey_summary.h"

#include "staad/model/positions.h"
#include "staad/query/lookup.h"
#include "staad/storeys/layered_project.h"
#include "staad/storeys/levels.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace tool {
namespace {

using STAAD::SdReader;

/// The contents of each level of a model; apart from them members and elements at the lowest level, and those
/// at no level because they lack a joint.
class level_sorter {
public:
    explicit level_sorter(const SdReader& model)
        : model_(model), assigned_(STAAD::assign_levels(model)), contents_(assigned_.levels.size() + 1)
    {
        for (std::size_t i = 0; i < model.nodes.size(); ++i)
            contents_[static_cast<std::size_t>(assigned_.joint_levels[i].level)].joints.push_back(model.nodes[i].id);
        for (std::size_t i = 0; i < model.beams.size(); ++i)
            add_member(i);
        for (std::size_t i = 0; i < model.shells.size(); ++i)
            add_shell(i);
    }

    /// The level at the top of the lowest storey: a single level makes a storey of its own.
    std::size_t lowest_top() const { return assigned_.levels.size() == 1 ? 0 : 1; }
    std::vector<double> take_levels() { return std::move(assigned_.levels); }
    std::vector<level_contents> take_contents() { return std::move(contents_); }
    level_contents take_without_joints() { return std::move(without_joints_); }
    /// Number of members in no storey by property text.
    const std::map<std::string, std::size_t>& properties_in_none() const { return properties_in_none_; }

private:
    void add_member(std::size_t index)
    {
        const STAAD::SdBeam& member = model_.beams[index];
        const std::size_t level = assigned_.member_levels[index];
        level_contents& place = place_of(level, std::array{member.node_start, member.node_end});
        if (level < lowest_top() || level == assigned_.levels.size())
            ++properties_in_none_[STAAD::Section({}, member.sect_text).property];
        place.members.push_back(member.id);
        ++place.members_of[static_cast<std::size_t>(model_.GetBeamType(member))];
        place.members_with_forces += model_.beam_forces.count(static_cast<int>(index) + 1);
    }

    void add_shell(std::size_t index)
    {
        const STAAD::SdShell& shell = model_.shells[index];
        level_contents& place = place_of(assigned_.shell_levels[index], shell.node_ids);
        (index < STAAD::element_count(model_) ? place.elements : place.surfaces).push_back(shell.id);
    }

    /// Whether a record lacks a joint: it might be in a storey if it had all of them.
    template<class Positions>
    level_contents& place_of(std::size_t level, const Positions& joints)
    {
        return level < lowest_top() && !has_all(joints) ? without_joints_ : contents_[level];
    }

    template<class Positions>
    bool has_all(const Positions& joints) const
    {
        return !joints.empty() && std::all_of(joints.begin(), joints.end(), [this](int position) {
            return STAAD::at_position(model_.nodes, position) != nullptr;
        });
    }

    const SdReader& model_;
    STAAD::LevelAssignment assigned_;
    std::vector<level_contents> contents_; // by level; the last one is above all levels
    level_contents without_joints_;
    std::map<std::string, std::size_t> properties_in_none_;
};

/// Notes in which storeys each section is used, and how often.
storey_summary summarise(int number, const STAAD::StoreyLayer& layer, level_contents contents,
                         std::vector<numbered_section>& sections)
{
    storey_summary storey{number, layer.base, layer.height, std::move(contents), {}};
    for (const STAAD::LayerMember& entry : layer.members) {
        numbered_section& section = sections[static_cast<std::size_t>(entry.section.tag) - 1];
        ++section.members;
        if (section.storeys.empty() || section.storeys.back() != number) {
            section.storeys.push_back(number);
            storey.sections.push_back(section.number);
        }
    }
    std::sort(storey.sections.begin(), storey.sections.end());
    return storey;
}

std::vector<numbered_section> numbered(std::vector<STAAD::Section> sections,
                                       const std::map<std::string, std::size_t>& in_none)
{
    std::vector<numbered_section> result;
    result.reserve(sections.size());
    for (STAAD::Section& section : sections) {
        const auto entry = in_none.find(section.property);
        const std::size_t count = entry == in_none.end() ? 0 : entry->second;
        result.push_back({section.tag, std::move(section.property), std::move(section.material), 0, count, {}});
    }
    return result;
}

level_contents& in_none(storeys_summary& summary, outside reason)
{
    return summary.in_none[static_cast<std::size_t>(reason)];
}

} // namespace

const char* outside_word(outside reason) noexcept
{
    switch (reason) {
    case outside::at_lowest_level:
        return "at the lowest level";
    case outside::above_top_level:
        return "above the top level";
    case outside::unknown_joints:
        return "unknown joints";
    case outside::no_levels:
        break;
    }
    return "no levels";
}

storeys_summary summarise_storeys(SdReader model)
{
    storeys_summary summary;
    level_sorter sorter(model);
    const std::size_t lowest_top = sorter.lowest_top();
    std::vector<level_contents> contents = sorter.take_contents();
    in_none(summary, outside::unknown_joints) = sorter.take_without_joints();
    summary.levels = sorter.take_levels();

    STAAD::StaadProProject_layered project;
    const bool has_levels = project.BuildFromModel(std::move(model));
    summary.sections = numbered(std::move(project.sections), sorter.properties_in_none());
    for (std::size_t i = 0; i < project.layers.size(); ++i)
        summary.storeys.push_back(summarise(static_cast<int>(i) + 1, project.layers[i],
                                            std::move(contents[lowest_top + i]), summary.sections));
    in_none(summary, has_levels ? outside::above_top_level : outside::no_levels) = std::move(contents.back());
    if (lowest_top != 0 && has_levels)
        in_none(summary, outside::at_lowest_level) = std::move(contents.front());
    return summary;
}

} // namespace tool
