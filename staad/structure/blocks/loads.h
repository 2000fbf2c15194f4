/// The families of loads, and what their readers share.
#ifndef STAAD_STRUCTURE_BLOCKS_LOADS_H
#define STAAD_STRUCTURE_BLOCKS_LOADS_H

#include "staad/structure/lists.h"
#include "staad/structure/reading.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace STAAD::detail {

using load_list = std::vector<Structure::Load>;
using load_direction = Structure::Load::Direction;

// Each reads one statement and adds its loads to those of a case, in the order of the text.

void read_self_weight(structure_reading& context, std::size_t statement, load_list& loads);
void read_joint_loads(structure_reading& context, std::size_t statement, load_list& loads);
void read_member_loads(structure_reading& context, std::size_t statement, load_list& loads);
void read_element_loads(structure_reading& context, std::size_t statement, load_list& loads);
/// Temperatures and strains.
void read_temperature_loads(structure_reading& context, std::size_t statement, load_list& loads);
/// Floor, one-way and area loads.
void read_area_loads(structure_reading& context, std::size_t statement, load_list& loads);
/// REPEAT LOAD and REFERENCE LOAD: one load for the whole statement.
void read_sum(structure_reading& context, std::size_t statement, load_list& loads);

/// GX, GY, GZ: axes of the file, given as those of the model.
std::optional<load_direction> global_direction(const structure_reading& context, std::string_view word) noexcept;
/// PX, PY, PZ: the same, by projected length.
std::optional<load_direction> projected_direction(const structure_reading& context, std::string_view word) noexcept;
/// X, Y, Z, and LX, LY, LZ: the own axes of a member or element.
std::optional<load_direction> local_direction(std::string_view word) noexcept;

/// The words from `begin` up to `end`, which is further on in the same item, with single blanks between.
std::string text_between(row_words begin, const row_words& end);

/// Puts a load on the records of a list, which count against the budget. `what` says which of them.
void put_on(structure_reading& context, Structure::Load& load, const record_list& list, listed what);

/// Reads items "list load", or "list load load ...": an item without a list goes on with that of the item before it.
/// `read_one(words)` takes one load off the words; none if they are no load, called `name` in the report.
template<class ReadOne>
void read_load_items(structure_reading& context, std::size_t statement, load_list& loads, listed what,
                     std::string_view name, ReadOne read_one)
{
    const auto read_item = [&](row_words& words, std::size_t row, const record_list& list) {
        do {
            const row_words begin = words;
            std::optional<Structure::Load> load = read_one(words);
            if (!load) {
                context.report_unread(row, name);
                return;
            }
            load->text = text_between(begin, words);
            load->source = context.source_of(row);
            put_on(context, *load, list, what);
            loads.push_back(std::move(*load));
        } while (!words.peek().empty());
    };
    context.each_data_row(statement, [&](row_words& words, std::size_t row) {
        record_list list;
        do {
            record_list next = take_list(context, words, what, statement, row);
            if (next.is_given)
                list = std::move(next);
            if (!list.is_empty())
                read_item(words, row, list);
            else
                context.report(FindingCode::list_no_record, row,
                               [&] { return "a load on nothing: " + context.quoted_row(row); });
        } while (words.next_item());
    });
}

} // namespace STAAD::detail

#endif
