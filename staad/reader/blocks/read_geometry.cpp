#include "staad/reader/blocks/blocks.h"

#include "staad/reader/blocks/assignments.h"
#include "staad/text/number.h"

namespace STAAD::detail {
namespace {

constexpr item_kind joint_item{"joint", 4};
constexpr item_kind member_item{"member", 3};
constexpr item_kind element_item{"element", 4};

constexpr const char* default_shell_material = "C1";

/// Replaces the joint number of the file by the joint's position. A number that the file does not define gets
/// 0, the position of no joint, and an entry in `node_index`.
void resolve_joint(int& joint, SdReader& model, const char* what, int id, line_place place, reading& context)
{
    const int number = joint;
    joint = context.joints.position(number);
    if (joint != 0)
        return;
    model.node_index.emplace(number, 0);
    report_unknown_joint(what, id, number, place, context);
}

/// A leading blank does not end the member block; it does end those of shells and thicknesses.
std::size_t end_of_members(const line_list& lines, std::size_t begin)
{
    while (begin < lines.size() && (lines[begin].text.front() == ' ' || starts_with_digit_1_to_9(lines[begin].text)))
        ++begin;
    return begin;
}

/// "1 TO 3 THICKNESS 0.2": the last two words are the word and the value. Of four corner thicknesses the last
/// one is taken.
void note_thickness(last_assignments& elements, SdReader& model, const text_line& line, reading& context)
{
    const int thickness = truncate_to_int(to_real(last_word(line.text)) * model.length_factor);
    const list_end list =
        assign_to_list(elements, thickness, word_cursor(without_last_words(line.text, 2)), [&](int number) {
            model.shell_index.emplace(number, 0);
            report_unknown_number(FindingCode::element_unknown, "element", number, line, context);
        });
    check_list_end("thickness", list, list.stopped_at.empty() || starts_with(list.stopped_at, "TH"), line, context);
}

} // namespace

void read_joints(SdReader& model, const line_list& lines, line_range block, reading& context)
{
    const double factor = model.length_factor;
    read_items(model.nodes, lines, block, joint_item, context, is_comment, [factor](SdNode& joint, line_place) {
        joint.x *= factor;
        joint.y *= factor;
        joint.z *= factor;
    });
    context.joints = number_lookup::of(model.nodes, same_number::last_counts);
    context.joints.fill(model.node_index);
}

std::size_t read_members(SdReader& model, const line_list& lines, std::size_t begin, reading& context)
{
    const std::size_t end = end_of_members(lines, begin);
    read_items(model.beams, lines, {begin, end}, member_item, context, no_line, [&](SdBeam& member, line_place place) {
        resolve_joint(member.node_start, model, "member", member.id, place, context);
        resolve_joint(member.node_end, model, "member", member.id, place, context);
    });
    report_block_end("MEMBER INCIDENCES", lines, end, context);
    context.members = number_lookup::of(model.beams, same_number::last_counts);
    context.members.fill(model.beam_index);
    return end;
}

std::size_t read_elements(SdReader& model, const line_list& lines, std::size_t begin, reading& context)
{
    const line_range block = lines_of_data(lines, begin);
    read_items(model.shells, lines, block, element_item, context, no_line, [&](SdShell& element, line_place place) {
        element.material = default_shell_material;
        for (int& joint : element.node_ids)
            resolve_joint(joint, model, "element", element.id, place, context);
    });
    report_block_end("ELEMENT INCIDENCES SHELL", lines, block.end, context);
    context.elements = number_lookup::of(model.shells, same_number::last_counts);
    context.elements.fill(model.shell_index);
    return block.end;
}

void read_thicknesses(SdReader& model, const line_list& lines, std::size_t from, reading& context)
{
    const std::size_t keyword = lines.find_equal("ELEMENT PROPERTY", from);
    context.used.mark(keyword);
    const line_range block = lines_of_data(lines, keyword + 1);
    last_assignments elements(context.elements);
    for (std::size_t i = block.begin; i < block.end; ++i) {
        context.used.mark(i);
        note_thickness(elements, model, lines[i], context);
    }
    elements.hand_out([&](std::size_t index, int thickness) { model.shells[index].thickness = thickness; });
    if (keyword < lines.size())
        report_block_end("ELEMENT PROPERTY", lines, block.end, context);
}

void append_surfaces_to_shells(SdReader& model, const reading& context)
{
    model.shells.reserve(model.shells.size() + model.surfaces.size());
    for (const SdSurface& surface : model.surfaces) {
        SdShell& copy = model.shells.emplace_back(surface);
        for (int& joint : copy.node_ids)
            joint = context.joints.position(joint);
    }
}

} // namespace STAAD::detail
