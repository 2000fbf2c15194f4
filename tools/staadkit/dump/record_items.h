/// Joints to groups as JSON.
#ifndef TOOLS_STAADKIT_DUMP_RECORD_ITEMS_H
#define TOOLS_STAADKIT_DUMP_RECORD_ITEMS_H

#include "dump/structure_items.h"
#include "output/structure_words.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tool {

/// A record, with the structure in which positions mean something.
template<class Record>
struct item_of {
    const Structure& structure;
    const Record& record;
};
template<class Record>
item_of(const Structure&, const Record&) -> item_of<Record>;

/// The same of a record that JSON numbers by its position.
template<class Record>
struct counted_item {
    const Structure& structure;
    const Record& record;
    int number;
};
template<class Record>
counted_item(const Structure&, const Record&, int) -> counted_item<Record>;

struct axes_item {
    Structure::UpAxis up;
};

template<class Visit>
void each_field(const axes_item& item, Visit visit)
{
    const bool is_y_up = item.up == Structure::UpAxis::y;
    visit("x", std::string(is_y_up ? "Z" : "X"));
    visit("y", std::string(is_y_up ? "X" : "Y"));
    visit("z", std::string(is_y_up ? "Y" : "Z"));
}

template<class Visit>
void each_field(const item_of<Structure::Head>& item, Visit visit)
{
    const Structure::Head& head = item.record;
    visit("kind", word_of(head.kind));
    visit("title", head.title);
    visit("job_lines", head.job_lines);
    visit("up", std::string(head.up == Structure::UpAxis::y ? "Y" : "Z"));
    visit("axes", axes_item{head.up});
    visit("units", std::string("mm, kN, degrees"));
    visit("length_unit", head.length_unit);
    visit("force_unit", head.force_unit);
    visit("lines", lines_of(item.structure, head.source));
}

template<class Visit>
void each_field(const item_of<Structure::Joint>& item, Visit visit)
{
    visit("number", item.record.number);
    visit("x", item.record.x);
    visit("y", item.record.y);
    visit("z", item.record.z);
    visit("lines", lines_of(item.structure, item.record.source));
}

template<class Visit>
void each_field(const item_of<Structure::Release>& item, Visit visit)
{
    visit("released", item.record.released);
    visit("partial", item.record.partial);
    visit("springs", item.record.springs);
    visit("text", item.record.text);
}

inline std::optional<std::array<double, 3>> offset_item(const STAAD::Vector3& offset)
{
    if (offset.x == 0.0 && offset.y == 0.0 && offset.z == 0.0)
        return std::nullopt;
    return components(offset);
}

/// The release at a position; none for -1.
inline const Structure::Release* release_at(const Structure& structure, int position)
{
    return has_position(structure.releases, position) ? &structure.releases[static_cast<std::size_t>(position)]
                                                      : nullptr;
}

inline std::optional<item_of<Structure::Release>> release_item(const Structure& structure, int position)
{
    std::optional<item_of<Structure::Release>> item;
    if (const Structure::Release* const release = release_at(structure, position))
        item.emplace(item_of<Structure::Release>{structure, *release});
    return item;
}

inline line_list lines_of_member(const Structure& structure, const Structure::Member& member)
{
    const auto release_source = [&structure](int position) {
        const Structure::Release* const release = release_at(structure, position);
        return release == nullptr ? Structure::Source() : release->source;
    };
    return different_lines_of(structure,
                              {member.source, member.section_source, member.material_source, member.beta_source,
                               member.behaviour_source, member.offset_source, release_source(member.start_release),
                               release_source(member.end_release), member.cracked_source});
}

template<class Visit>
void each_field(const item_of<Structure::Member>& item, Visit visit)
{
    const Structure& structure = item.structure;
    const Structure::Member& member = item.record;
    std::optional<Structure::Cracked> cracked;
    if (has_position(structure.cracked, member.cracked))
        cracked = structure.cracked[static_cast<std::size_t>(member.cracked)];
    visit("number", member.number);
    visit("start", number_at(structure.joints, member.start));
    visit("end", number_at(structure.joints, member.end));
    visit("section", counted(member.section));
    visit("material", counted(member.material));
    visit("beta", member.beta);
    visit("behaviour", word_of(member.behaviour));
    visit("start_offset", offset_item(member.start_offset));
    visit("end_offset", offset_item(member.end_offset));
    visit("start_release", release_item(structure, member.start_release));
    visit("end_release", release_item(structure, member.end_release));
    visit("cracked", cracked);
    visit("lines", lines_of_member(structure, member));
}

template<class Record, class Visit>
void visit_element(const item_of<Record>& item, const char* kind, const std::vector<double>& thickness,
                   const line_list& lines, Visit& visit)
{
    visit("number", item.record.number);
    visit("kind", std::string(kind));
    visit("joints", numbers_at(item.structure.joints, item.record.corners));
    visit("thickness", thickness);
    visit("material", counted(item.record.material));
    visit("lines", lines);
}

template<class Visit>
void each_field(const item_of<Structure::Element>& item, Visit visit)
{
    const Structure::Element& element = item.record;
    std::vector<double> thickness;
    if (element.thickness != std::array<double, 4>{})
        thickness.assign(element.thickness.begin(), element.thickness.end() - (element.corners[3] < 0 ? 1 : 0));
    visit_element(
        item, "plate", thickness,
        different_lines_of(item.structure, {element.source, element.thickness_source, element.material_source}), visit);
}

template<class Visit>
void each_field(const item_of<Structure::Solid>& item, Visit visit)
{
    visit_element(item, "solid", {},
                  different_lines_of(item.structure, {item.record.source, item.record.material_source}), visit);
}

template<class Visit>
void each_field(const item_of<Structure::Surface>& item, Visit visit)
{
    const Structure::Surface& surface = item.record;
    std::vector<double> thickness;
    if (surface.thickness != 0.0)
        thickness.push_back(surface.thickness);
    visit_element(
        item, "surface", thickness,
        different_lines_of(item.structure, {surface.source, surface.thickness_source, surface.material_source}), visit);
}

template<class Visit>
void each_field(const counted_item<Structure::Section>& item, Visit visit)
{
    const Structure::Section& section = item.record;
    std::optional<int> table;
    if (section.shape == Structure::Section::Shape::user_table)
        table = section.table;
    visit("number", item.number);
    visit("kind", std::string("section"));
    visit("shape", word_of(section.shape));
    visit("code", section.code);
    visit("text", section.text);
    visit("type", section.type);
    visit("name", section.name);
    visit("group", section.group);
    visit("table", table);
    visit("values", section.values);
    visit("area", section.area);
    visit("lines", lines_of(item.structure, section.source));
}

template<class Visit>
void each_field(const item_of<Structure::UserTable::Row>& item, Visit visit)
{
    visit("name", item.record.name);
    visit("text", item.record.text);
    visit("lines", lines_of(item.structure, item.record.source));
}

template<class Visit>
void each_field(const item_of<Structure::UserTable>& item, Visit visit)
{
    const Structure::UserTable& table = item.record;
    visit("number", table.number);
    visit("kind", std::string("user_table"));
    visit("file", table.file);
    visit("family", table.family);
    visit("length_unit", table.length_unit);
    visit("length_factor", table.length_factor);
    visit("rows", streamed_list{[&item](auto add) {
              for (const Structure::UserTable::Row& row : item.record.rows)
                  add(item_of{item.structure, row});
          }});
    visit("lines", lines_of(item.structure, table.source));
}

template<class Visit>
void each_field(const counted_item<Structure::Material>& item, Visit visit)
{
    const Structure::Material& material = item.record;
    visit("number", item.number);
    visit("name", material.name);
    visit("type", material.type);
    visit("e", material.e);
    visit("g", material.g);
    visit("poisson", material.poisson);
    visit("density", material.density);
    visit("alpha", material.alpha);
    visit("damping", material.damping);
    visit("strengths", material.strengths);
    visit("is_built_in", material.is_built_in);
    visit("lines", lines_of(item.structure, material.source));
}

template<class Visit>
void each_field(const item_of<Structure::Support>& item, Visit visit)
{
    const Structure::Support& support = item.record;
    visit("number", number_at(item.structure.joints, support.joint));
    visit("kind", std::string("joint"));
    visit("held", support.held);
    visit("springs", support.springs);
    visit("enforced", support.enforced);
    visit("is_kept", support.is_kept);
    visit("text", support.text);
    visit("lines", lines_of(item.structure, support.source));
}

template<class Visit>
void each_field(const counted_item<Structure::Mat>& item, Visit visit)
{
    const Structure::Mat& mat = item.record;
    visit("number", item.number);
    visit("kind", std::string("mat"));
    visit("elements", numbers_at(item.structure.elements, mat.elements));
    visit("direction", components(mat.direction));
    visit("subgrade", mat.subgrade);
    visit("one_way", mat.one_way);
    visit("compression", mat.compression);
    visit("text", mat.text);
    visit("lines", lines_of(item.structure, mat.source));
}

template<class Visit>
void each_field(const item_of<Structure::Group>& item, Visit visit)
{
    visit("name", item.record.name);
    visit("kind", word_of(item.record.kind));
    visit("numbers", item.record.numbers);
    visit("lines", lines_of(item.structure, item.record.sources));
}

} // namespace tool

#endif
