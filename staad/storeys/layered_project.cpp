#include "staad/storeys/layered_project.h"

#include "staad/storeys/levels.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <utility>

namespace STAAD {
namespace {

constexpr double height_of_single_level = 3000.0; // mm

/// Gives every distinct property text a number, and keeps the first section of each.
class section_register {
public:
    Section numbered(const SdBeam& member)
    {
        Section section(member.material, member.sect_text);
        const int next_tag = static_cast<int>(sections_.size()) + 1;
        const auto [known, is_new] = tags_.try_emplace(section.property, next_tag);
        section.tag = known->second;
        if (is_new)
            sections_.push_back(section);
        return section;
    }

    std::vector<Section> take() { return std::move(sections_); }

private:
    std::unordered_map<std::string, int> tags_;
    std::vector<Section> sections_; // by tag
};

/// Reserves the lists of every level: records are large, and growing lists would move them.
void reserve(std::vector<StoreyLayer>& contents, const LevelAssignment& assigned)
{
    std::vector<std::size_t> members(contents.size());
    std::vector<std::size_t> shells(contents.size());
    for (const std::size_t level : assigned.member_levels)
        ++members[level];
    for (const std::size_t level : assigned.shell_levels)
        ++shells[level];
    for (std::size_t level = 0; level < contents.size(); ++level) {
        contents[level].members.reserve(members[level]);
        contents[level].shells.reserve(shells[level]);
    }
}

/// The contents of every level: members and elements of a storey once its base and height are known.
std::vector<StoreyLayer> contents_of_levels(SdReader& model, const LevelAssignment& assigned,
                                            section_register& sections)
{
    std::vector<StoreyLayer> contents(assigned.levels.size() + 1); // and one for records above every level
    reserve(contents, assigned);
    for (std::size_t i = 0; i < model.beams.size(); ++i) {
        LayerMember entry;
        entry.section = sections.numbered(model.beams[i]);
        const auto forces = model.beam_forces.find(static_cast<int>(i) + 1);
        if (forces != model.beam_forces.end())
            entry.forces = std::move(forces->second);
        entry.member = std::move(model.beams[i]);
        contents[assigned.member_levels[i]].members.push_back(std::move(entry));
    }
    for (std::size_t i = 0; i < model.shells.size(); ++i)
        contents[assigned.shell_levels[i]].shells.push_back(std::move(model.shells[i]));
    return contents;
}

StoreyLayer with_height(StoreyLayer contents, double base, double height)
{
    contents.base = base;
    contents.height = height;
    return contents;
}

/// A storey holds the contents of its upper level; a single level makes one storey.
std::vector<StoreyLayer> storeys_between(const std::vector<double>& levels, std::vector<StoreyLayer> contents)
{
    std::vector<StoreyLayer> layers;
    if (levels.size() == 1)
        layers.push_back(with_height(std::move(contents.front()), levels.front(), height_of_single_level));
    for (std::size_t upper = 1; upper < levels.size(); ++upper)
        layers.push_back(with_height(std::move(contents[upper]), levels[upper - 1], levels[upper] - levels[upper - 1]));
    return layers;
}

} // namespace

bool StaadProProject_layered::BuildFromModel(SdReader model)
{
    LevelAssignment assigned = assign_levels(model);
    const bool has_levels = !assigned.levels.empty();
    if (has_levels) {
        section_register numbered;
        layers = storeys_between(assigned.levels, contents_of_levels(model, assigned, numbered));
        sections = numbered.take();
        load_cases = std::move(model.load_cases);
    }
    node_levels = std::move(assigned.joint_levels);
    return has_levels;
}

} // namespace STAAD
