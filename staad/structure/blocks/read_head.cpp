#include "staad/structure/blocks/blocks.h"

#include "staad/deck/command_match.h"
#include "staad/text/words.h"

#include <optional>
#include <string_view>

namespace STAAD::detail {
namespace {

std::optional<Structure::Kind> kind_of(std::string_view word) noexcept
{
    if (is_word(word, "SPAC"))
        return Structure::Kind::space;
    if (is_word(word, "PLAN"))
        return Structure::Kind::plane;
    if (is_word(word, "TRUS"))
        return Structure::Kind::truss;
    if (is_word(word, "FLOO"))
        return Structure::Kind::floor;
    return std::nullopt;
}

/// STAAD [SPACE|PLANE|TRUSS|FLOOR] title
void read_title(structure_reading& context, std::size_t row)
{
    Structure::Head& head = context.structure.head;
    row_words words(context.deck, row);
    std::string_view word;
    words.next(word);
    if (const auto kind = kind_of(words.peek())) {
        head.kind = *kind;
        words.next(word);
    }
    head.title = words.rest();
    head.source = context.source_of(row);
}

void read_job_lines(structure_reading& context, std::size_t statement)
{
    const char* end = command_info(Command::job_information).data_words;
    context.each_data_row(statement, [&](row_words& words, std::size_t) {
        if (!begins_with(words, end))
            context.structure.head.job_lines.push_back(words.rest());
    });
}

} // namespace

bool is_set_z_up(const structure_reading& context, std::size_t row)
{
    row_words words(context.deck, row);
    std::string_view set;
    std::string_view axis;
    std::string_view up;
    return words.next(set) && words.next(axis) && words.next(up) && to_upper_ascii(axis) == "Z" &&
           to_upper_ascii(up) == "UP";
}

void read_head(structure_reading& context)
{
    Structure::Head& head = context.structure.head;
    if (!context.statements_of(Command::title).empty())
        read_title(context, context.deck.statement(context.statements_of(Command::title).front()).first_row);
    for (const std::size_t statement : context.statements_of(Command::job_information))
        read_job_lines(context, statement);
    for (const std::size_t statement : context.statements_of(Command::set))
        if (is_set_z_up(context, context.deck.statement(statement).first_row))
            head.up = Structure::UpAxis::z;
    const exact_units& units = context.units_at(0);
    head.length_unit = units.length_word;
    head.force_unit = units.force_word;
}

} // namespace STAAD::detail
