// Members and elements: what the written file loses of them.

#include "convert/conversion_notes.h"
#include "output/phrases.h"

#include <fmt/format.h>

#include <cstddef>
#include <utility>

namespace tool {
namespace {

using STAAD::FindingCode;
using STAAD::SdReader;

bool is_zero(const STAAD::SdOffset& offset)
{
    return offset.x == 0.0 && offset.y == 0.0 && offset.z == 0.0;
}

/// Counts the members for which `has` holds, and gives the new number of the first.
template<class Has>
std::pair<std::size_t, std::size_t> count_members(const SdReader& model, Has has)
{
    std::size_t count = 0;
    std::size_t first = 0;
    for (const STAAD::SdBeam& member : model.beams) {
        if (has(member) && count++ == 0)
            first = static_cast<std::size_t>(&member - model.beams.data()) + 1;
    }
    return {count, first};
}

void note_offsets(const SdReader& model, conversion_notes& notes)
{
    const auto [count, first] = count_members(model, [](const STAAD::SdBeam& member) {
        return !is_zero(member.offset_start) || !is_zero(member.offset_end);
    });
    if (count != 0)
        notes.push_back({FindingCode::offsets,
                         "the offsets of " + count_of(count, "member") + " are not written",
                         {.block = "MEMBER INCIDENCES", .item = first}});
}

/// Reading leaves the kind of every member at 0, and only the kind makes the writer write trusses.
void note_trusses(const SdReader& model, conversion_notes& notes)
{
    const auto [count, first] = count_members(model, [&](const STAAD::SdBeam& member) {
        return member.kind_code == STAAD::Beam && model.brace_ids.count(member.id) != 0;
    });
    if (count != 0)
        notes.push_back(
            {FindingCode::trusses,
             "written as plain members: " + count_of(count, "truss, tension-only or compression-only member"),
             {.block = "MEMBER INCIDENCES", .item = first}});
}

void note_surfaces(const SdReader& model, conversion_notes& notes)
{
    const std::size_t count = model.surfaces.size();
    if (count == 0 || model.shells.size() < count)
        return;
    const std::size_t first = model.beams.size() + model.shells.size() - count + 1;
    notes.push_back({FindingCode::surfaces,
                     fmt::format("written as elements from {} on: {}", first, count_of(count, "surface")),
                     {.block = "ELEMENT INCIDENCES SHELL", .item = first}});
}

} // namespace

void note_members(const SdReader& model, conversion_notes& notes)
{
    note_offsets(model, notes);
    note_trusses(model, notes);
    note_surfaces(model, notes);
}

} // namespace tool
