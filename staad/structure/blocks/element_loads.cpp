#include "staad/structure/blocks/loads.h"
#include "staad/structure/values.h"
#include "staad/text/words.h"

#include <array>
#include <cstdint>

namespace STAAD::detail {
namespace {

using kind = Structure::Load::Kind;

/// Takes up to `most` numbers as they are written.
void take_values(Structure::Load& load, row_words& words, std::size_t most)
{
    std::size_t count = 0;
    for (number_words numbers(words); count < most; ++count) {
        const std::optional<double> value = numbers.next();
        if (!value)
            break;
        load.values[count] = *value;
    }
    load.value_count = static_cast<std::uint8_t>(count);
}

/// The loads of one ELEMENT LOAD statement.
class element_load_reader {
public:
    element_load_reader(const structure_reading& context, const exact_units& units) noexcept
        : context_(context), units_(units)
    {
    }

    std::optional<Structure::Load> read(row_words& words) const
    {
        std::optional<Structure::Load> load = read_as_written(words);
        if (load)
            convert(*load);
        return load;
    }

private:
    std::optional<Structure::Load> read_as_written(row_words& words) const
    {
        std::string_view word;
        words.next(word);
        if (is_word(word, "PR") || is_word(word, "PRES"))
            return pressure(words);
        if (is_word(word, "TRA"))
            return trapezium(words);
        return is_word(word, "CON") ? point(words) : std::nullopt;
    }

    /// Places on the element are lengths, all else is pressure, or the force at a point.
    void convert(Structure::Load& load) const noexcept
    {
        const bool has_place = load.kind == kind::partial_pressure || load.kind == kind::point_on_element;
        for (std::size_t i = 0; i < load.value_count; ++i) {
            double& value = load.values[i];
            value = has_place && i > 0                    ? units_.length_of(value)
                    : load.kind == kind::point_on_element ? units_.force_of(value)
                                                          : units_.pressure_of(value);
        }
    }

    /// Without a direction a load acts along the element's own z axis.
    Structure::Load begin(kind gives, row_words& words) const
    {
        Structure::Load load;
        load.kind = gives;
        load.direction = load_direction::local_z;
        take_direction(load, words);
        return load;
    }

    bool take_direction(Structure::Load& load, row_words& words) const
    {
        std::string_view word = words.peek();
        auto direction = global_direction(context_, word);
        if (!direction)
            direction = local_direction(word);
        if (!direction)
            return false;
        load.direction = *direction;
        words.next(word);
        return true;
    }

    /// "PR [direction] p", with x1 y1 x2 y2 on a part of the element; with x1 y1 alone p is a force there.
    std::optional<Structure::Load> pressure(row_words& words) const
    {
        Structure::Load load = begin(kind::pressure, words);
        take_values(load, words, 5);
        switch (load.value_count) {
        case 1:
            return load;
        case 3:
            load.kind = kind::point_on_element;
            return load;
        case 5:
            load.kind = kind::partial_pressure;
            return load;
        default:
            return std::nullopt;
        }
    }

    /// "CON [direction] p [x y]"
    std::optional<Structure::Load> point(row_words& words) const
    {
        Structure::Load load = begin(kind::point_on_element, words);
        take_values(load, words, 3);
        return load.value_count == 1 || load.value_count == 3 ? std::optional(load) : std::nullopt;
    }

    /// "TRAP [direction] JT p1 p2 p3 [p4]" by corner, "TRAP [direction] X|Y p1 p2" along an axis of the element.
    std::optional<Structure::Load> trapezium(row_words& words) const
    {
        Structure::Load load;
        load.direction = load_direction::local_z;
        std::string_view word = words.peek();
        // A bare X or Y is the axis along which the pressure changes.
        if (word.size() > 1 && take_direction(load, words))
            word = words.peek();
        if (to_upper_ascii(word) == "JT") {
            load.kind = kind::corner_pressure;
            words.next(word);
            take_values(load, words, 4);
            return load.value_count >= 3 ? std::optional(load) : std::nullopt;
        }
        const char axis = word.size() == 1 ? to_upper_ascii(word.front()) : '\0';
        if (axis != 'X' && axis != 'Y')
            return std::nullopt;
        load.kind = kind::trapezoidal_pressure;
        load.along = axis;
        words.next(word);
        take_values(load, words, 2);
        return load.value_count == 2 ? std::optional(load) : std::nullopt;
    }

    const structure_reading& context_;
    const exact_units& units_;
};

} // namespace

void read_element_loads(structure_reading& context, std::size_t statement, load_list& loads)
{
    const element_load_reader reader(context, context.units_at(statement));
    read_load_items(context, statement, loads, listed::elements, "no load on an element",
                    [&](row_words& words) { return reader.read(words); });
}

} // namespace STAAD::detail
