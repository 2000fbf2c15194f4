#include "tests/support/layered.h"

#include "tests/support/model_equal.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdio>
#include <utility>

namespace STAAD::layered {
namespace {

std::string to_text(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", value);
    return text;
}

} // namespace

SdReader model(const places& joints, const bars& members, const std::vector<corners>& shells)
{
    SdReader made;
    for (const placed::point& place : joints)
        made.nodes.push_back(placed::joint(10 * static_cast<int>(made.nodes.size() + 1), place));
    for (const bar& one : members) {
        SdBeam& beam =
            made.beams.emplace_back(placed::member(101 + static_cast<int>(made.beams.size()), one.start, one.end));
        beam.sect_text = one.property;
        beam.material = one.material;
    }
    for (const corners& one : shells)
        made.shells.push_back(placed::shell(1001 + static_cast<int>(made.shells.size()), one));
    return made;
}

SdReader floors(const std::vector<double>& heights)
{
    places joints;
    bars members;
    for (const double height : heights) {
        joints.push_back({0, 0, height});
        joints.push_back({6000, 0, height});
        const int last = static_cast<int>(joints.size());
        members.push_back({last - 1, last});
    }
    return model(joints, members);
}

StaadProProject_layered project_of(const SdReader& model)
{
    StaadProProject_layered project;
    EXPECT_TRUE(project.BuildFromModel(model));
    return project;
}

std::string storeys(const StaadProProject_layered& project)
{
    std::string text;
    for (const StoreyLayer& layer : project.layers) {
        text += (text.empty() ? "" : "; ") + to_text(layer.base) + '+' + to_text(layer.height) + ':';
        for (const LayerMember& one : layer.members)
            text += ' ' + std::to_string(one.member.id);
        if (!layer.shells.empty())
            text += " |";
        for (const SdShell& shell : layer.shells)
            text += ' ' + std::to_string(shell.id);
    }
    return text;
}

std::vector<int> joint_levels(const StaadProProject_layered& project)
{
    std::vector<int> levels;
    for (const NodeLevel& joint : project.node_levels)
        levels.push_back(joint.level);
    return levels;
}

std::string forces(const StaadProProject_layered& project)
{
    std::string text;
    for (const StoreyLayer& layer : project.layers)
        for (const LayerMember& one : layer.members) {
            if (one.forces.records.empty())
                continue;
            text += (text.empty() ? "" : "; ") + std::to_string(one.member.id) + ":";
            for (const auto& record : one.forces.records)
                text += " " + std::to_string(record.first);
        }
    return text;
}

LayerMember member(const StaadProProject_layered& project, int number)
{
    for (const StoreyLayer& layer : project.layers)
        for (const LayerMember& one : layer.members)
            if (one.member.id == number)
                return one;
    ADD_FAILURE() << "member " << number << " is in no storey";
    return {};
}

std::vector<std::string> differences(const StaadProProject_layered& a, const StaadProProject_layered& b)
{
    comparison walk;
    walk.compare("load_cases", a.load_cases, b.load_cases);
    walk.compare("layers", a.layers, b.layers);
    walk.compare("node_levels", a.node_levels, b.node_levels);
    walk.compare("sections", a.sections, b.sections);
    return std::move(walk).take();
}

} // namespace STAAD::layered
