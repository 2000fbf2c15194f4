// The structure that a container says: records one by one, texts read as those of a deck.

#include "staad/structure/blocks/blocks.h"
#include "staad/structure/container.h"
#include "staad/structure/container/container_text.h"
#include "staad/structure/container/filling.h"
#include "staad/structure/reading.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <unordered_map>
#include <utility>

namespace STAAD {
namespace {

using detail::structure_reading;

/// Positions of the container count from 1; 0 and what lies outside is none.
int position_of(int position, std::size_t count) noexcept
{
    return position >= 1 && static_cast<std::size_t>(position) <= count ? position - 1 : -1;
}

Vector3 offset_of(const SdOffset& offset) noexcept
{
    return {offset.x, offset.y, offset.z};
}

class structure_maker {
public:
    explicit structure_maker(const SdReader& model) : model_(model) {}

    Structure make()
    {
        add_joints();
        add_members();
        add_elements();
        add_surfaces();
        add_groups();
        add_density();
        return std::move(made_);
    }

private:
    void add_joints()
    {
        for (const SdNode& node : model_.nodes)
            made_.joints.push_back({node.id, node.x, node.y, node.z, 0});
    }

    void add_members()
    {
        for (const SdBeam& beam : model_.beams) {
            Structure::Member& member = made_.members.emplace_back();
            member.number = beam.id;
            member.start = position_of(beam.node_start, model_.nodes.size());
            member.end = position_of(beam.node_end, model_.nodes.size());
            member.start_offset = offset_of(beam.offset_start);
            member.end_offset = offset_of(beam.offset_end);
            member.beta = beam.beta;
            member.material = material_of(beam.material);
            if (model_.brace_ids.count(beam.id) != 0)
                member.behaviour = Structure::Behaviour::truss;
        }
    }

    /// The shells but for the copies of surfaces at their end.
    void add_elements()
    {
        const std::size_t copies = std::min(model_.surfaces.size(), model_.shells.size());
        for (std::size_t i = 0; i < model_.shells.size() - copies; ++i) {
            const SdShell& shell = model_.shells[i];
            Structure::Element& element = made_.elements.emplace_back();
            element.number = shell.id;
            for (std::size_t corner = 0; corner < std::min<std::size_t>(shell.node_ids.size(), 4); ++corner)
                element.corners[corner] = position_of(shell.node_ids[corner], model_.nodes.size());
            element.thickness.fill(shell.thickness);
            element.material = material_of(shell.material);
        }
    }

    void add_surfaces()
    {
        const std::size_t copies = std::min(model_.surfaces.size(), model_.shells.size());
        for (std::size_t i = 0; i < model_.surfaces.size(); ++i) {
            const SdSurface& filled = model_.surfaces[i];
            Structure::Surface& surface = made_.surfaces.emplace_back();
            surface.number = filled.id;
            surface.thickness = filled.thickness;
            for (const int joint : filled.node_ids) {
                const auto found = model_.node_index.find(joint);
                surface.corners.push_back(
                    found == model_.node_index.end() ? -1 : position_of(found->second, model_.nodes.size()));
            }
            const bool has_copy = copies == model_.surfaces.size();
            surface.material =
                material_of(has_copy ? model_.shells[model_.shells.size() - copies + i].material : filled.material);
        }
    }

    /// Groups of a kind word that is none number joints, as SdGroup::GetIdType has it.
    void add_groups()
    {
        using kind = Structure::GroupKind;
        for (const SdGroup& filled : model_.groups) {
            const kind of = filled.kind == "MEMBER"     ? kind::members
                            : filled.kind == "ELEMENT"  ? kind::elements
                            : filled.kind == "FLOOR"    ? kind::floor
                            : filled.kind == "GEOMETRY" ? kind::geometry
                                                        : kind::joints;
            made_.groups.push_back({filled.name, of, filled.ids, {}});
        }
    }

    /// Materials are known by name alone, but for the density of the concrete.
    int material_of(const std::string& name)
    {
        if (name.empty())
            return -1;
        const auto [found, is_new] = materials_.try_emplace(name, static_cast<int>(made_.materials.size()));
        if (is_new) {
            made_.materials.emplace_back();
            made_.materials.back().name = name;
        }
        return found->second;
    }

    void add_density()
    {
        const int concrete = material_of("CONCRETE");
        made_.materials[static_cast<std::size_t>(concrete)].density =
            detail::container_units().force_per_volume_of(model_.concrete_density);
    }

    const SdReader& model_;
    Structure made_;
    std::unordered_map<std::string, int> materials_;
};

/// The words of definitions as the host has them, where it has them.
void take_texts(const SdReader& model, const detail::container_text& written, Structure& structure)
{
    for (Structure::LoadCase& each : structure.load_cases)
        for (Structure::Load& load : each.loads) {
            const std::size_t line = origin(structure, load.source).first;
            const auto found =
                std::ranges::lower_bound(written.definitions, line, {}, &detail::container_text::definition_line::line);
            if (found == written.definitions.end() || found->line != line)
                continue;
            const auto raw = model.raw_load_defs.find(found->definition);
            if (raw == model.raw_load_defs.end())
                continue;
            const bool is_weight = load.kind == Structure::Load::Kind::self_weight;
            detail::word_cursor words(raw->second.text);
            for (int i = 0; i < (is_weight ? 1 : 2); ++i) // the block
                words.next_or_empty();
            load.text = detail::join_words(words);
        }
}

/// No record comes from a file.
void forget_sources(Structure& structure)
{
    structure.sources.clear();
    structure.head.source = 0;
    for (Structure::Member& member : structure.members)
        member.source = member.section_source = 0;
    for (Structure::Section& section : structure.sections)
        section.source = 0;
    for (Structure::UserTable& table : structure.user_tables) {
        table.source = 0;
        for (Structure::UserTable::Row& row : table.rows)
            row.source = 0;
    }
    for (Structure::Support& support : structure.supports)
        support.source = 0;
    for (Structure::Release& release : structure.releases)
        release.source = 0;
    for (Structure::LoadCase& each : structure.load_cases) {
        each.source = 0;
        for (Structure::Load& load : each.loads)
            load.source = 0;
    }
}

} // namespace

Structure structure_of(const SdReader& model)
{
    Structure structure = structure_maker(model).make();
    const detail::container_text written = detail::text_of_container(model);
    const Deck deck(written.text);
    ReadReport report;
    structure_reading context(deck, structure, report);
    context.joints = detail::record_lookup(structure.joints);
    context.members = detail::record_lookup(structure.members);
    context.elements = detail::record_lookup(structure.elements);
    read_head(context);
    read_user_tables(context);
    read_sections(context);
    read_supports(context);
    read_releases(context);
    read_load_cases(context);
    read_loads(context);
    take_texts(model, written, structure);
    forget_sources(structure);
    return structure;
}

} // namespace STAAD
