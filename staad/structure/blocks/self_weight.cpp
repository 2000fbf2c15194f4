#include "staad/structure/blocks/loads.h"
#include "staad/structure/values.h"

#include <string>

namespace STAAD::detail {
namespace {

/// X, Y, Z, or GX, GY, GZ: axes of the file.
std::optional<load_direction> direction_of(const structure_reading& context, std::string_view word)
{
    return global_direction(context, word.size() == 1 ? "G" + std::string(word) : std::string(word));
}

/// Without a list, and with ALL: every member and element.
record_list everything(const structure_reading& context)
{
    record_list list;
    if (!context.structure.members.empty())
        list.members.push_back({0, static_cast<int>(context.structure.members.size()) - 1});
    if (!context.structure.elements.empty())
        list.elements.push_back({0, static_cast<int>(context.structure.elements.size()) - 1});
    return list;
}

} // namespace

/// SELFWEIGHT Y -1 [LIST list | ALL]
void read_self_weight(structure_reading& context, std::size_t statement, load_list& loads)
{
    const std::size_t row = context.deck.statement(statement).first_row;
    row_words words(context.deck, row);
    std::string_view word;
    words.next(word); // SELFWEIGHT
    const row_words begin = words;
    words.next(word);
    const std::optional<load_direction> direction = direction_of(context, word);
    const std::optional<double> factor = direction ? number_words(words).next() : std::nullopt;
    if (!factor) {
        context.report_unread(row, "a self weight without direction and factor");
        return;
    }
    Structure::Load load;
    load.kind = Structure::Load::Kind::self_weight;
    load.direction = *direction;
    load.values[0] = *factor;
    load.value_count = 1;
    load.text = text_between(begin, words);
    load.source = context.source_of(row);
    record_list list = take_list(context, words, listed::members_and_elements, statement, row);
    if (!list.is_given)
        list = everything(context);
    if (list.is_empty())
        context.report(FindingCode::list_no_record, row, [] { return "a self weight of nothing"; });
    if (!words.peek().empty() || words.next_item())
        context.report_unread(row, "a self weight with more than a list");
    put_on(context, load, list, listed::members_and_elements);
    loads.push_back(std::move(load));
}

} // namespace STAAD::detail
