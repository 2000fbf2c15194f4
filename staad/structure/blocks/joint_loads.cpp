#include "staad/structure/blocks/loads.h"
#include "staad/structure/values.h"
#include "staad/text/words.h"

#include <cstdint>

namespace STAAD::detail {
namespace {

/// The place of FX ... MZ among the values of a load, turned to the axes of the model.
std::optional<std::size_t> component_of(const structure_reading& context, std::string_view word) noexcept
{
    if (word.size() != 2)
        return std::nullopt;
    const char what = to_upper_ascii(word[0]);
    const char axis = to_upper_ascii(word[1]);
    if ((what != 'F' && what != 'M') || axis < 'X' || axis > 'Z')
        return std::nullopt;
    return context.model_axis(static_cast<std::size_t>(axis - 'X')) + (what == 'M' ? 3U : 0U);
}

/// "FX 1 FY 2 ... MZ 6", any of them in any order; of one that is there twice the later counts.
std::optional<Structure::Load> read_one(const structure_reading& context, const exact_units& units, row_words& words)
{
    Structure::Load load;
    load.kind = Structure::Load::Kind::joint_forces;
    while (const auto component = component_of(context, words.peek())) {
        row_words after = words;
        std::string_view word;
        after.next(word);
        const std::optional<double> value = real_value(after.peek());
        if (!value)
            break;
        after.next(word);
        words = after;
        load.values[*component] = *component < 3 ? units.force_of(*value) : units.moment_of(*value);
        load.value_count = 6;
    }
    return load.value_count == 0 ? std::nullopt : std::optional(load);
}

} // namespace

void read_joint_loads(structure_reading& context, std::size_t statement, load_list& loads)
{
    const exact_units& units = context.units_at(statement);
    read_load_items(context, statement, loads, listed::joints, "no force or moment on a joint",
                    [&](row_words& words) { return read_one(context, units, words); });
}

} // namespace STAAD::detail
