// Joints, members, shells, surfaces, groups and their indexes.

#include "staad/structure/container/filling.h"
#include "staad/structure/local_axes.h"
#include "staad/text/number_text.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <string>
#include <utility>
#include <vector>

namespace STAAD::detail {
namespace {

constexpr const char* default_shell_material = "C1";
constexpr const char* surface_material = "CONCRETE";

void fill_joints(container_filling& context)
{
    SdReader& model = context.model;
    model.nodes.reserve(context.structure.joints.size());
    for (const Structure::Joint& joint : context.structure.joints) {
        SdNode node;
        node.id = joint.number;
        node.x = joint.x;
        node.y = joint.y;
        node.z = joint.z;
        model.nodes.push_back(std::move(node));
        model.node_index[joint.number] = static_cast<int>(model.nodes.size());
    }
}

SdOffset offset_of(const Vector3& offset) noexcept
{
    return {offset.x, offset.y, offset.z};
}

/// Beta angles of decks with Z up, where the axes of a vertical member begin elsewhere than in the container, whose
/// convention is that of decks with Y up.
class beta_of_z_up {
public:
    beta_of_z_up() { one_member_.joints.resize(2); }

    /// What is to be added to beta so that the upright axis of a member is where the deck has it; degrees.
    double added_for(const Structure& structure, Structure::Member member)
    {
        if (member.start < 0 || member.end < 0)
            return 0.0;
        member.beta = 0.0;
        const Vector3 wanted = local_axes(structure, member).z;
        one_member_.joints[0] = structure.joints[static_cast<std::size_t>(member.start)];
        one_member_.joints[1] = structure.joints[static_cast<std::size_t>(member.end)];
        member.start = 0;
        member.end = 1;
        const LocalAxes own = local_axes(one_member_, member);
        const double angle = std::atan2(dot(wanted, own.z), dot(wanted, own.y)) * (180.0 / std::numbers::pi);
        constexpr double near = 1e-9;
        const double quarters = std::round(angle / 90.0) * 90.0;
        return std::abs(angle - quarters) < near ? quarters : angle;
    }

private:
    static double dot(const Vector3& a, const Vector3& b) noexcept { return a.x * b.x + a.y * b.y + a.z * b.z; }

    Structure one_member_; // with Y up
};

void turn_beta(container_filling& context, const Structure::Member& member, double added, SdBeam& beam)
{
    if (added == 0.0)
        return;
    beam.beta = member.beta + added;
    context.report_changed(member.source, [&] {
        return "the axes of the vertical member " + std::to_string(member.number) + " are held by beta " +
               format_real(beam.beta) + ": of decks with Y up they begin elsewhere";
    });
}

void fill_members(container_filling& context)
{
    SdReader& model = context.model;
    const bool is_z_up = context.structure.head.up == Structure::UpAxis::z;
    beta_of_z_up turning;
    model.beams.reserve(context.structure.members.size());
    for (const Structure::Member& member : context.structure.members) {
        SdBeam beam;
        beam.id = member.number;
        beam.node_start = member.start + 1;
        beam.node_end = member.end + 1;
        beam.offset_start = offset_of(member.start_offset);
        beam.offset_end = offset_of(member.end_offset);
        beam.beta = member.beta;
        if (is_z_up)
            turn_beta(context, member, turning.added_for(context.structure, member), beam);
        model.beams.push_back(std::move(beam));
        model.beam_index[member.number] = static_cast<int>(model.beams.size());
        if (member.behaviour == Structure::Behaviour::cable)
            context.report_left_out(member.behaviour_source,
                                    [&] { return "member " + std::to_string(member.number) + " is a cable"; });
        else if (member.behaviour != Structure::Behaviour::normal)
            model.brace_ids.insert(member.number);
        if (member.cracked >= 0)
            context.report_left_out(member.cracked_source, [&] {
                return "member " + std::to_string(member.number) + " has factors of a cracked section";
            });
    }
}

/// One thickness for all corners.
int thickness_of(container_filling& context, const Structure::Element& element)
{
    const bool is_triangle = element.corners[3] < 0;
    const auto end = element.thickness.begin() + (is_triangle ? 3 : 4);
    if (std::all_of(element.thickness.begin(), end, [&](double t) { return t == element.thickness[0]; }))
        return whole_mm(element.thickness[0]);
    double sum = 0.0;
    for (auto each = element.thickness.begin(); each != end; ++each)
        sum += *each;
    const int mean = whole_mm(sum / static_cast<double>(end - element.thickness.begin()));
    context.report_changed(element.thickness_source, [&] {
        return "element " + std::to_string(element.number) + " has a thickness at each corner; " +
               std::to_string(mean) + " mm, their mean, is held";
    });
    return mean;
}

void fill_elements(container_filling& context)
{
    SdReader& model = context.model;
    model.shells.reserve(context.structure.elements.size() + context.structure.surfaces.size());
    for (const Structure::Element& element : context.structure.elements) {
        SdShell shell;
        shell.id = element.number;
        for (const int corner : element.corners)
            shell.node_ids.push_back(corner + 1);
        if (element.corners[3] < 0)
            shell.node_ids.pop_back();
        shell.thickness = thickness_of(context, element);
        shell.material = material_name(context, element.material, default_shell_material);
        model.shells.push_back(std::move(shell));
        model.shell_index[element.number] = static_cast<int>(model.shells.size());
    }
    for (const Structure::Solid& solid : context.structure.solids)
        context.report_left_out(solid.source, [&] { return "solid " + std::to_string(solid.number); });
}

/// Surfaces, with numbers of joints, and a copy of each among the shells, with positions.
void fill_surfaces(container_filling& context)
{
    SdReader& model = context.model;
    for (const Structure::Surface& surface : context.structure.surfaces) {
        SdSurface& filled = model.surfaces.emplace_back();
        filled.id = surface.number;
        filled.thickness = whole_mm(surface.thickness);
        filled.material = surface_material;
        SdShell copy(filled);
        for (const int corner : surface.corners) {
            copy.node_ids.push_back(corner + 1);
            filled.node_ids.push_back(corner < 0 ? 0
                                                 : context.structure.joints[static_cast<std::size_t>(corner)].number);
        }
        copy.material = material_name(context, surface.material, surface_material);
        model.shells.push_back(std::move(copy));
        model.surface_index[surface.number] = static_cast<int>(model.surfaces.size());
    }
}

const char* kind_word(Structure::GroupKind kind) noexcept
{
    switch (kind) {
    case Structure::GroupKind::joints:
        return "JOINT";
    case Structure::GroupKind::members:
        return "MEMBER";
    case Structure::GroupKind::elements:
        return "ELEMENT";
    case Structure::GroupKind::floor:
        return "FLOOR";
    case Structure::GroupKind::geometry:
        return "GEOMETRY";
    case Structure::GroupKind::solids:
        break;
    }
    return "";
}

void fill_groups(container_filling& context)
{
    for (const Structure::Group& group : context.structure.groups) {
        if (group.kind == Structure::GroupKind::solids) {
            context.report_left_out(group.sources.empty() ? 0 : group.sources.front(),
                                    [&] { return "group " + quote(group.name) + " of solids"; });
            continue;
        }
        SdGroup& filled = context.model.groups.emplace_back();
        filled.kind = kind_word(group.kind);
        filled.name = group.name;
        filled.ids = group.numbers;
    }
}

} // namespace

std::string material_name(const container_filling& context, int material, const std::string& otherwise)
{
    if (material < 0)
        return otherwise;
    const std::string& name = context.structure.materials[static_cast<std::size_t>(material)].name;
    return name.empty() ? otherwise : name;
}

void fill_geometry(container_filling& context)
{
    fill_joints(context);
    fill_members(context);
    fill_elements(context);
    fill_surfaces(context);
    fill_groups(context);
}

} // namespace STAAD::detail
