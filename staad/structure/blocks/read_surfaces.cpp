#include "staad/structure/blocks/blocks.h"

#include "staad/structure/blocks/generation.h"
#include "staad/structure/values.h"
#include "staad/text/words.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

namespace STAAD::detail {
namespace {

/// "i j k l ... SURFACE n". What follows the number, divisions and openings, is the analysis program's.
void read_item(structure_reading& context, numbered_records<Structure::Surface>& surfaces, row_words& words,
               std::size_t row)
{
    Structure::Surface surface;
    number_words numbers(words);
    while (const std::optional<int> joint = numbers.next_whole())
        surface.corners.push_back(*joint);
    std::string_view word;
    const bool has_word = words.next(word) && is_word(word, "SUR");
    surface.number = has_word ? numbers.next_whole().value_or(0) : 0;
    const bool has_joints = std::ranges::all_of(surface.corners, [](int joint) { return joint > 0; });
    if (surface.number < 1 || surface.corners.size() < 3 || !has_joints) {
        context.report_unread(row, "no surface");
        return;
    }
    surface.source = context.source_of(row);
    surfaces.add(std::move(surface), row);
}

} // namespace

void read_surfaces(structure_reading& context)
{
    numbered_records<Structure::Surface> surfaces(context, "surface");
    context.each_item(Command::surface_incidence, [&](row_words& words, std::size_t, std::size_t row) {
        read_item(context, surfaces, words, row);
    });
    context.structure.surfaces = surfaces.take();
    context.surfaces = record_lookup(context.structure.surfaces);
}

} // namespace STAAD::detail
