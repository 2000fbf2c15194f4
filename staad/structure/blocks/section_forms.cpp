#include "staad/structure/blocks/section_forms.h"

#include "staad/structure/values.h"
#include "staad/text/words.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace STAAD::detail {
namespace {

using Shape = Structure::Section::Shape;

enum class dimension { length, area, inertia };

/// A name that a value of a section may have.
struct value_name {
    std::string_view short_form;
    std::string_view name;
    dimension of = dimension::length;
};

constexpr value_name pris_names[] = {
    {"YD", "YD"},
    {"ZD", "ZD"},
    {"YB", "YB"},
    {"ZB", "ZB"},
    {"AX", "AX", dimension::area},
    {"AY", "AY", dimension::area},
    {"AZ", "AZ", dimension::area},
    {"IX", "IX", dimension::inertia},
    {"IY", "IY", dimension::inertia},
    {"IZ", "IZ", dimension::inertia},
};
constexpr value_name round_names[] = {{"STA", "STA"}, {"END", "END"}, {"THI", "THI"}};
constexpr value_name table_names[] = {
    {"SP", "SP"}, {"WP", "WP"}, {"TH", "TH"}, {"BP", "BP"}, {"BF", "BF"}, {"FC", "FC"},
    {"CT", "CT"}, {"CW", "CW"}, {"WT", "WT"}, {"DT", "DT"}, {"OD", "OD"}, {"ID", "ID"},
};
constexpr std::string_view polygons[] = {"OCTA", "HEXA", "HEXD", "DODE", "SQUA", "POLY"};

template<std::size_t Size>
const value_name* find_name(const value_name (&names)[Size], std::string_view word) noexcept
{
    const auto* found =
        std::find_if(names, names + Size, [word](const value_name& each) { return is_word(word, each.short_form); });
    return found == names + Size ? nullptr : found;
}

class section_parser {
public:
    section_parser(const row_words& words, const exact_units& units) : words_(words), units_(units)
    {
        form_.section.text = item_text(words_);
    }

    section_form parse()
    {
        const std::string_view first = take();
        if (is_word(first, "PRI"))
            parse_pris();
        else if (is_word(first, "TAP"))
            parse_tapered();
        else if (is_word(first, "TA") || is_word(first, "TAB"))
            parse_table();
        else if (is_word(first, "UP") || is_word(first, "UPT"))
            parse_user_table();
        else if (is_word(first, "ASS"))
            parse_assigned();
        else
            form_.unread = "no section after a list of members";
        finish();
        return std::move(form_);
    }

private:
    std::string_view take() noexcept
    {
        std::string_view word;
        words_.next(word);
        return word;
    }

    /// What is half understood gives no shape: a rectangle whose width is no number would be a circle.
    void finish()
    {
        const Structure::Section& section = form_.section;
        const bool is_row = section.shape == Shape::table || section.shape == Shape::user_table;
        if (form_.unread == nullptr && form_.kept == nullptr && !words_.peek().empty())
            form_.unread = "words left over after a section";
        if (form_.unread != nullptr && !(is_row && !section.name.empty()))
            form_.section.shape = Shape::other;
        form_.section.area = area_of(form_.section);
    }

    double in_model_units(double value, dimension of) const noexcept
    {
        return of == dimension::length ? units_.length_of(value)
               : of == dimension::area ? units_.area_of(value)
                                       : units_.inertia_of(value);
    }

    /// Takes names with their values as long as there are any.
    template<std::size_t Size>
    void take_values(const value_name (&names)[Size])
    {
        while (const value_name* name = find_name(names, words_.peek())) {
            row_words after = words_;
            std::string_view word;
            after.next(word);
            const std::optional<double> value = real_value(after.peek());
            if (!value || has(name->name))
                return;
            after.next(word);
            words_ = after;
            form_.section.values.push_back({std::string(name->name), in_model_units(*value, name->of)});
        }
    }

    bool has(std::string_view name) const noexcept { return find_value(form_.section, name) != nullptr; }
    bool has_just(std::initializer_list<std::string_view> names) const noexcept
    {
        return names.size() == form_.section.values.size() &&
               std::all_of(names.begin(), names.end(), [this](std::string_view name) { return has(name); });
    }

    /// PRIS YD d ZD b ...; PRIS ROUND STA d END d THI t
    void parse_pris()
    {
        const std::string_view word = words_.peek();
        if (is_word(word, "ROUN")) {
            take();
            take_values(round_names);
            set_shape(Shape::round_tube, has_just({"STA", "END", "THI"}));
        } else if (std::any_of(std::begin(polygons), std::end(polygons),
                               [word](std::string_view each) { return is_word(word, each); })) {
            take();
            take_values(round_names);
            form_.kept = "a polygon";
        } else {
            take_values(pris_names);
            set_pris_shape();
        }
    }

    void set_pris_shape()
    {
        const auto is_property = [](const Structure::NamedValue& each) {
            return each.name.front() == 'A' || each.name.front() == 'I';
        };
        const auto& values = form_.section.values;
        if (std::any_of(values.begin(), values.end(), is_property))
            set_shape(Shape::general, true);
        else if (has_just({"YD"}))
            set_shape(Shape::circle, true);
        else if (has_just({"YD", "ZD"}))
            set_shape(Shape::rectangle, true);
        else if (has_just({"YD", "ZD", "ZB"}))
            set_shape(Shape::trapezoid, true);
        else
            set_shape(Shape::tee, has_just({"YD", "ZD", "YB", "ZB"}));
    }

    void set_shape(Shape shape, bool is_complete) noexcept
    {
        form_.section.shape = shape;
        if (!is_complete)
            form_.unread = "a section without the values of a shape";
    }

    void parse_tapered()
    {
        number_words numbers(words_);
        for (const char* name : {"F1", "F2", "F3", "F4", "F5", "F6", "F7"}) {
            const std::optional<double> value = numbers.next();
            if (!value)
                break;
            form_.section.values.push_back({name, units_.length_of(*value)});
        }
        const std::size_t count = form_.section.values.size();
        set_shape(Shape::tapered, (count == 5 || count == 7) && !numbers.has_next());
    }

    /// TABLE ['group'] [type] name, or TUBE, or PIPE; then values by name.
    void parse_table()
    {
        Structure::Section& section = form_.section;
        const std::string_view first = words_.peek();
        if (!first.empty() && (first.front() == '\'' || first.front() == '"') && has_two_words())
            section.group = take();
        if (has_two_words())
            section.type = to_upper_ascii(take());
        section.name = take();
        take_values(table_names);
        if (is_word(section.name, "TUBE") && !section.values.empty())
            set_sizes(Shape::tube, has_just({"TH", "WT", "DT"}));
        else if (is_word(section.name, "PIPE") && !section.values.empty())
            set_sizes(Shape::pipe, has_just({"OD", "ID"}));
        else
            set_shape(Shape::table, !section.name.empty());
    }

    void set_sizes(Shape shape, bool is_complete)
    {
        form_.section.name.clear();
        set_shape(shape, is_complete);
    }

    /// Whether the next word has another one after it that is not the name of a value.
    bool has_two_words() const noexcept
    {
        row_words after = words_;
        std::string_view word;
        if (!after.next(word) || !after.next(word))
            return false;
        return find_name(table_names, word) == nullptr || !real_value(after.peek());
    }

    void parse_user_table()
    {
        const std::optional<int> number = whole_value(words_.peek());
        if (number) {
            take();
            form_.section.table = *number;
            form_.section.name = take();
        }
        set_shape(Shape::user_table, !form_.section.name.empty());
    }

    void parse_assigned()
    {
        form_.section.type = to_upper_ascii(take());
        set_shape(Shape::assigned, !form_.section.type.empty());
        if (form_.unread == nullptr)
            form_.kept = "the analysis program chooses the section";
    }

    row_words words_;
    const exact_units& units_;
    section_form form_;
};

} // namespace

section_form read_section_form(row_words words, const exact_units& units)
{
    return section_parser(words, units).parse();
}

} // namespace STAAD::detail
