// SURFACE INCIDENCE and SURFACE PROPERTY.

#include "staad/model/positions.h"
#include "staad/model/sd_reader.h"
#include "staad/reader/blocks/assignments.h"
#include "staad/reader/blocks/items.h"
#include "staad/text/number.h"
#include "staad/text/number_lookup.h"

#include <utility>
#include <vector>

namespace STAAD {
namespace {

constexpr detail::item_kind surface_item{"surface", 4};
constexpr const char* surface_material = "CONCRETE";

void read_incidences(SdReader& model, const detail::line_list& lines, detail::reading& context)
{
    const std::size_t keyword = lines.find_equal("SURFACE INCIDENCE");
    context.used.mark(keyword);
    const detail::line_range block = detail::lines_of_data(lines, keyword + 1);
    const std::size_t before = model.surfaces.size();
    detail::read_items(model.surfaces, lines, block, surface_item, context, detail::no_line,
                       [&](SdSurface& surface, detail::line_place place) {
                           surface.material = surface_material;
                           for (const int joint : surface.node_ids)
                               if (context.joints.position(joint) == 0)
                                   detail::report_unknown_joint("surface", surface.id, joint, place, context);
                       });
    for (std::size_t i = before; i < model.surfaces.size(); ++i)
        if (model.surfaces[i].id >= 1)
            model.surface_index[model.surfaces[i].id] = static_cast<int>(i) + 1;
    if (keyword < lines.size())
        detail::report_block_end("SURFACE INCIDENCE", lines, block.end, context);
}

/// The surfaces by number, as `surface_index` has them.
detail::number_lookup surface_numbers(const SdReader& model)
{
    std::vector<detail::numbered_position> entries;
    for (const auto& [number, position] : model.surface_index)
        if (at_position(model.surfaces, position) != nullptr)
            entries.push_back({number, position});
    return {std::move(entries), detail::same_number::last_counts};
}

void read_properties(SdReader& model, const detail::line_list& lines, detail::reading& context)
{
    const std::size_t keyword = lines.find_start("SURFACE PROPERTY");
    context.used.mark(keyword);
    const detail::line_range block = detail::lines_of_data(lines, keyword + 1);
    const detail::number_lookup numbers = surface_numbers(model);
    detail::last_assignments surfaces(numbers);
    for (std::size_t i = block.begin; i < block.end; ++i) {
        context.used.mark(i);
        const std::string_view line = lines[i].text;
        if (detail::count_words(line) == 2) // a thickness without a list
            continue;
        const int thickness = detail::truncate_to_int(detail::to_real(detail::last_word(line)) * model.length_factor);
        const detail::list_end list =
            detail::walk_list(detail::word_cursor(line), detail::surface_id_list,
                              [&](const detail::id_range& ids) { return surfaces.add(thickness, ids); });
        const bool ended_well = list.stopped_at.empty() || detail::starts_with(list.stopped_at, "TH");
        detail::check_list_end("thickness", list, ended_well, lines[i], context);
    }
    surfaces.hand_out([&](std::size_t index, int thickness) { model.surfaces[index].thickness = thickness; });
    if (keyword < lines.size())
        detail::report_block_end("SURFACE PROPERTY", lines, block.end, context);
}

} // namespace

void SdReader::read_surface(const detail::line_list& lines, detail::reading& context)
{
    read_incidences(*this, lines, context);
    read_properties(*this, lines, context);
}

} // namespace STAAD
