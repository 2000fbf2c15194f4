#include "staad/structure/blocks/loads.h"
#include "staad/structure/values.h"
#include "staad/text/words.h"

#include <cstdint>

namespace STAAD::detail {
namespace {

using kind = Structure::Load::Kind;

/// "TEMP t [t2 [t3]]" in degrees, "STRAIN e" in length.
std::optional<Structure::Load> read_one(const exact_units& units, row_words& words)
{
    std::string_view word;
    words.next(word);
    const bool is_strain = to_upper_ascii(word) == "STRAIN" || to_upper_ascii(word) == "STRA";
    if (!is_strain && !is_word(word, "TEMP"))
        return std::nullopt;
    Structure::Load load;
    load.kind = is_strain ? kind::strain : kind::temperature;
    std::size_t count = 0;
    for (number_words numbers(words); count < (is_strain ? 1U : 3U); ++count) {
        const std::optional<double> value = numbers.next();
        if (!value)
            break;
        load.values[count] = is_strain ? units.length_of(*value) : *value;
    }
    load.value_count = static_cast<std::uint8_t>(count);
    return count == 0 ? std::nullopt : std::optional(load);
}

} // namespace

void read_temperature_loads(structure_reading& context, std::size_t statement, load_list& loads)
{
    const exact_units& units = context.units_at(statement);
    read_load_items(context, statement, loads, listed::members_and_elements, "neither a temperature nor a strain",
                    [&](row_words& words) { return read_one(units, words); });
}

} // namespace STAAD::detail
