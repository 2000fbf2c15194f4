#include "tests/support/layered.h"

#include "tests/support/model_equal.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdio>

namespace STAAD::layered {
namespace {

std::string to_text(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", value);
    return text;
}

/// Gathers what differs, every line with its place before it.
class comparison {
public:
    template<class Record>
    void records(const std::string& place, const Record& a, const Record& b)
    {
        for (const std::string& difference : record_differences(a, b))
            found_.push_back(place + '.' + difference);
    }

    void numbers(const std::string& place, double a, double b)
    {
        if (std::bit_cast<std::uint64_t>(a) != std::bit_cast<std::uint64_t>(b))
            found_.push_back(place + ": " + to_text(a) + " and " + to_text(b));
    }

    /// Calls `compare` with the place and both entries, for those that both lists have.
    template<class Entry, class Compare>
    void lists(const std::string& place, const std::vector<Entry>& a, const std::vector<Entry>& b, Compare compare)
    {
        if (a.size() != b.size())
            found_.push_back(place + ": " + std::to_string(a.size()) + " and " + std::to_string(b.size()) + " entries");
        for (std::size_t i = 0; i < a.size() && i < b.size(); ++i)
            compare(place + '[' + std::to_string(i) + ']', a[i], b[i]);
    }

    void note(const std::string& difference) { found_.push_back(difference); }

    std::vector<std::string> take() && { return std::move(found_); }

private:
    std::vector<std::string> found_;
};

void compare_layers(comparison& walk, const std::string& place, const StoreyLayer& a, const StoreyLayer& b)
{
    walk.numbers(place + ".base", a.base, b.base);
    walk.numbers(place + ".height", a.height, b.height);
    walk.lists(place + ".members", a.members, b.members,
               [&walk](const std::string& at, const LayerMember& of_a, const LayerMember& of_b) {
                   walk.records(at + ".member", of_a.member, of_b.member);
                   walk.records(at + ".section", of_a.section, of_b.section);
                   walk.records(at + ".forces", of_a.forces, of_b.forces);
               });
    walk.lists(
        place + ".shells", a.shells, b.shells,
        [&walk](const std::string& at, const SdShell& of_a, const SdShell& of_b) { walk.records(at, of_a, of_b); });
}

void compare_levels(comparison& walk, const std::string& place, const NodeLevel& a, const NodeLevel& b)
{
    walk.numbers(place + ".position", a.position, b.position);
    walk.numbers(place + ".level", a.level, b.level);
    walk.numbers(place + ".rx", a.rx, b.rx);
    walk.numbers(place + ".ry", a.ry, b.ry);
    walk.numbers(place + ".rz", a.rz, b.rz);
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

std::vector<std::pair<double, double>> bases_and_heights(const StaadProProject_layered& project)
{
    std::vector<std::pair<double, double>> found;
    for (const StoreyLayer& layer : project.layers)
        found.emplace_back(layer.base, layer.height);
    return found;
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
    walk.lists("layers", a.layers, b.layers, [&walk](const std::string& at, const auto& of_a, const auto& of_b) {
        compare_layers(walk, at, of_a, of_b);
    });
    walk.lists(
        "node_levels", a.node_levels, b.node_levels,
        [&walk](const std::string& at, const auto& of_a, const auto& of_b) { compare_levels(walk, at, of_a, of_b); });
    walk.lists(
        "sections", a.sections, b.sections,
        [&walk](const std::string& at, const Section& of_a, const Section& of_b) { walk.records(at, of_a, of_b); });
    SdReader cases_of_a;
    SdReader cases_of_b;
    cases_of_a.load_cases = a.load_cases;
    cases_of_b.load_cases = b.load_cases;
    for (const std::string& difference : model_differences(cases_of_a, cases_of_b))
        walk.note(difference);
    return std::move(walk).take();
}

} // namespace STAAD::layered
