// SURFACE INCIDENCE and SURFACE PROPERTY.

#include "staad/model/sd_reader.h"
#include "staad/reader/id_list.h"
#include "staad/reader/named_records.h"
#include "staad/reader/number.h"
#include "staad/reader/read_items.h"
#include "staad/units/positions.h"

namespace STAAD {
namespace {

constexpr detail::item_kind surface_item{"surface", 4};
constexpr const char* surface_material = "CONCRETE";

void read_incidences(SdReader& model, const detail::line_list& lines, detail::reading& run)
{
    const std::size_t keyword = lines.find_equal("SURFACE INCIDENCE");
    run.used.mark(keyword);
    const detail::line_range block = detail::lines_of_data(lines, keyword + 1);
    const std::size_t before = model.surfaces.size();
    detail::read_items(
        model.surfaces, lines, block, surface_item, run, [](std::string_view) { return false; },
        [](SdSurface& surface, detail::line_place) { surface.material = surface_material; });
    for (std::size_t i = before; i < model.surfaces.size(); ++i)
        if (model.surfaces[i].id >= 1)
            model.surface_index[model.surfaces[i].id] = static_cast<int>(i) + 1;
    if (keyword < lines.size())
        detail::tell_block_end("SURFACE INCIDENCE", lines, block.end, run);
}

/// Surfaces that the run names; true if there was one.
bool set_thickness(SdReader& model, const detail::id_run& ids, int thickness)
{
    bool anyone = false;
    auto entry = model.surface_index.lower_bound(ids.first);
    for (; entry != model.surface_index.end() && entry->first <= ids.last; ++entry) {
        if (SdSurface* const surface = detail::at_position(model.surfaces, entry->second)) {
            surface->thickness = thickness;
            anyone = true;
        }
    }
    return anyone;
}

void read_properties(SdReader& model, const detail::line_list& lines, detail::reading& run)
{
    const std::size_t keyword = lines.find_start("SURFACE PROPERTY");
    run.used.mark(keyword);
    const detail::line_range block = detail::lines_of_data(lines, keyword + 1);
    for (std::size_t i = block.begin; i < block.end; ++i) {
        run.used.mark(i);
        const std::string_view line = lines[i].text;
        if (detail::count_words(line) == 2) // a thickness without a list
            continue;
        const double value = detail::to_real(detail::last_word(line)) * model.length_factor;
        bool anyone = false;
        detail::id_list_walker walker(detail::word_cursor(line), detail::surface_id_list);
        for (detail::id_run ids; walker.next(ids);)
            anyone = set_thickness(model, ids, detail::truncate_to_int(value)) || anyone;
        detail::word_cursor behind = walker.after_list();
        const detail::list_end list{anyone, behind.next_or_empty()};
        const bool ended_well = list.stopped_at.empty() || detail::starts_with(list.stopped_at, "TH");
        detail::check_list_end("thickness", list, ended_well, lines[i], run);
    }
    if (keyword < lines.size())
        detail::tell_block_end("SURFACE PROPERTY", lines, block.end, run);
}

} // namespace

void SdReader::read_surface(const detail::line_list& lines, detail::reading& run)
{
    read_incidences(*this, lines, run);
    read_properties(*this, lines, run);
}

} // namespace STAAD
