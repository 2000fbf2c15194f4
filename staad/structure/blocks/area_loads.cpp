#include "staad/structure/blocks/loads.h"
#include "staad/structure/boxes.h"
#include "staad/structure/values.h"
#include "staad/text/words.h"

#include <algorithm>

namespace STAAD::detail {
namespace {

using kind = Structure::Load::Kind;

/// The loads on areas that one command has.
struct area_form {
    const char* word;
    kind gives;
    const char* name; // for the report
};

area_form form_of(Command command) noexcept
{
    switch (command) {
    case Command::one_way_load:
        return {"ONE", kind::one_way, "no one-way load"};
    case Command::area_load:
        return {"ALOA", kind::area, "no area load"};
    default:
        return {"FLOA", kind::floor, "no floor load"};
    }
}

/// What lies in both.
Structure::Box shared(const Structure::Box& a, const Structure::Box& b) noexcept
{
    return {{std::max(a.low.x, b.low.x), std::max(a.low.y, b.low.y), std::max(a.low.z, b.low.z)},
            {std::min(a.high.x, b.high.x), std::min(a.high.y, b.high.y), std::min(a.high.z, b.high.z)}};
}

/// The rows of one statement: "YRANGE 0 9 FLOAD -5 XRANGE 0 6 GY", "_GROUP FLOAD -5 GY", "1 TO 9 FLOAD -5".
class area_load_reader {
public:
    area_load_reader(structure_reading& context, std::size_t statement) noexcept
        : context_(context), statement_(statement), form_(form_of(context.deck.statement(statement).command))
    {
    }

    void read(row_words& words, std::size_t row, load_list& loads)
    {
        Structure::Load load;
        load.kind = form_.gives;
        load.direction = load_direction::global_z; // up, whichever of the file's axes that is
        const bool is_on_something = take_place(load, words, row);
        const row_words begin = words;
        std::string_view word;
        words.next(word);
        const std::optional<double> value = is_word(word, form_.word) ? number_words(words).next() : std::nullopt;
        if (!value) {
            context_.report_unread(row, form_.name);
            return;
        }
        load.values[0] = context_.units_at(statement_).pressure_of(*value);
        load.value_count = 1;
        while (take_box_of(load, words) || take_direction(load, words) || take_span(load, words, row))
            continue;
        if (!words.peek().empty())
            context_.report_unread(row, std::string(form_.name) + " in a part of the line");
        load.text = text_between(begin, words);
        load.source = context_.source_of(row);
        if (is_on_something)
            loads.push_back(std::move(load));
        else
            context_.report(FindingCode::list_no_record, row,
                            [&] { return "a load on nothing: " + context_.quoted_row(row); });
    }

private:
    /// Takes the ranges, the group or the list at the front.
    bool take_place(Structure::Load& load, row_words& words, std::size_t row)
    {
        if (take_box_of(load, words))
            return true;
        row_words after_first = words;
        std::string_view word;
        after_first.next(word);
        const record_list list = take_list(context_, words, listed::members, statement_, row);
        // A group alone is the floor itself; among numbers it is its members.
        if (list.groups.size() == 1 && after_first.peek().data() == words.peek().data())
            load.group = list.groups.front();
        else
            put_on(context_, load, list, listed::members);
        return load.group >= 0 || !list.is_empty();
    }

    bool take_box_of(Structure::Load& load, row_words& words) const
    {
        const std::optional<Structure::Box> box = take_box(context_, words, statement_);
        if (box)
            load.box = load.box ? shared(*load.box, *box) : *box;
        return box.has_value();
    }

    bool take_direction(Structure::Load& load, row_words& words) const
    {
        std::string_view word = words.peek();
        const auto direction = global_direction(context_, word);
        if (direction) {
            load.direction = *direction;
            words.next(word);
        }
        return direction.has_value();
    }

    /// "TOWARDS X" and its like, "TOWARDS 12": the axis, or the member, that a one-way load spans to.
    bool take_span(Structure::Load& load, row_words& words, std::size_t row)
    {
        row_words after = words;
        std::string_view word;
        if (form_.gives != kind::one_way || !after.next(word) || !is_word(word, "TOW") || !after.next(word))
            return false;
        const char axis = word.size() == 1 ? to_upper_ascii(word.front()) : '\0';
        const std::optional<int> member = whole_value(word);
        if (axis >= 'X' && axis <= 'Z')
            load.along = axis;
        else if (member)
            load.towards = context_.members.position(*member);
        else
            return false;
        if (member && load.towards < 0)
            context_.report(FindingCode::member_unknown, row, [&] { return "no member " + std::string(word); });
        words = after;
        return true;
    }

    structure_reading& context_;
    std::size_t statement_;
    area_form form_;
};

} // namespace

void read_area_loads(structure_reading& context, std::size_t statement, load_list& loads)
{
    area_load_reader reader(context, statement);
    context.each_item(statement, [&](row_words& words, std::size_t row) { reader.read(words, row, loads); });
}

} // namespace STAAD::detail
