#include "staad/structure/blocks/loads.h"
#include "staad/structure/values.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace STAAD::detail {
namespace {

using kind = Structure::Load::Kind;

enum class quantity : std::uint8_t { force_per_length, force, moment };

/// A kind of member load: "GY" and its values, first those of the load itself, then lengths along the member.
struct member_form {
    const char* word;
    kind gives;
    quantity unit;      // of the load itself
    std::size_t own;    // how many of the values are the load itself
    std::size_t fewest; // values
    std::size_t most;
};

// Moments per length are in units of force. UNI and CON may end with the distances d1, d2 from the shear centre.
constexpr member_form forms[] = {
    {"UNI", kind::uniform, quantity::force_per_length, 1, 1, 5},
    {"UMO", kind::uniform_moment, quantity::force, 1, 1, 5},
    {"CON", kind::concentrated, quantity::force, 1, 1, 4},
    {"CMO", kind::concentrated_moment, quantity::moment, 1, 1, 4},
    {"MOM", kind::concentrated_moment, quantity::moment, 1, 1, 4},
    {"LIN", kind::linear, quantity::force_per_length, 3, 2, 3},
    {"TRA", kind::trapezoidal, quantity::force_per_length, 2, 2, 4},
};

double in_model_units(double value, quantity unit, const exact_units& units) noexcept
{
    switch (unit) {
    case quantity::force_per_length:
        return units.force_per_length_of(value);
    case quantity::force:
        return units.force_of(value);
    case quantity::moment:
        break;
    }
    return units.moment_of(value);
}

std::optional<load_direction> direction_of(const structure_reading& context, std::string_view word) noexcept
{
    if (const auto global = global_direction(context, word))
        return global;
    if (const auto projected = projected_direction(context, word))
        return projected;
    return local_direction(word);
}

/// "UNI GY -5 1 2" and its like; none if it is not one of these with values enough.
std::optional<Structure::Load> read_one(const structure_reading& context, const exact_units& units, row_words& words)
{
    std::string_view word;
    if (!words.next(word))
        return std::nullopt;
    const auto form = std::ranges::find_if(forms, [word](const member_form& each) { return is_word(word, each.word); });
    if (form == std::end(forms) || !words.next(word))
        return std::nullopt;
    const std::optional<load_direction> direction = direction_of(context, word);
    if (!direction)
        return std::nullopt;
    Structure::Load load;
    load.kind = form->gives;
    load.direction = *direction;
    std::size_t count = 0;
    for (number_words numbers(words); count < form->most; ++count) {
        const std::optional<double> value = numbers.next();
        if (!value)
            break;
        load.values[count] = count < form->own ? in_model_units(*value, form->unit, units) : units.length_of(*value);
    }
    load.value_count = static_cast<std::uint8_t>(count);
    return count < form->fewest ? std::nullopt : std::optional(load);
}

} // namespace

void read_member_loads(structure_reading& context, std::size_t statement, load_list& loads)
{
    const exact_units& units = context.units_at(statement);
    read_load_items(context, statement, loads, listed::members, "no load on a member",
                    [&](row_words& words) { return read_one(context, units, words); });
}

} // namespace STAAD::detail
