/// Joints, members and elements.
#include "staad/writer/normalised/packed_items.h"
#include "staad/writer/normalised/written_numbers.h"

namespace STAAD {
namespace {

detail::real metres(double millimetres)
{
    return {millimetres / 1000};
}

} // namespace

void SdReader::write_std_node(detail::text_output& out) const
{
    out.line("JOINT COORDINATES");
    detail::packed_items items(out);
    int position = 0;
    for (const SdNode& joint : nodes)
        items.add(++position, metres(joint.y), metres(joint.z), metres(joint.x)); // back to Y up
    items.finish();
}

void SdReader::write_std_beam(detail::text_output& out, const detail::written_numbers& numbers) const
{
    out.line("MEMBER INCIDENCES");
    detail::packed_items items(out);
    for (const SdBeam& member : beams)
        items.add(numbers.of(member), member.node_start, member.node_end);
    items.finish();
}

void SdReader::write_std_board(detail::text_output& out, const detail::written_numbers& numbers) const
{
    out.line("ELEMENT INCIDENCES SHELL");
    detail::packed_items items(out);
    for (const SdShell& shell : shells) {
        items.add_number(numbers.of(shell));
        for (const int joint : shell.node_ids)
            items.add_number(joint);
        items.end_item();
    }
    items.finish();
}

} // namespace STAAD
