#include "staad/structure/blocks/statement_names.h"

#include "staad/deck/command_match.h"
#include "staad/text/words.h"

namespace STAAD::detail {
namespace {

row_words words_of(const structure_reading& context, std::size_t statement) noexcept
{
    return {context.deck, context.deck.statement(statement).first_row};
}

/// Forms that any word fits, or many.
bool is_open(std::string_view form) noexcept
{
    return form == "*" || form == "@" || form == "#";
}

} // namespace

const CommandInfo& spelling_of(const structure_reading& context, std::size_t statement) noexcept
{
    const Command command = context.deck.statement(statement).command;
    const CommandInfo* fits = has_head(context, statement) ? find_command(words_of(context, statement)) : nullptr;
    return fits != nullptr && fits->command == command ? *fits : command_info(command);
}

std::string name_of(const structure_reading& context, std::size_t statement)
{
    row_words deck_words = words_of(context, statement);
    const CommandInfo& spelling = spelling_of(context, statement);
    if (spelling.command == Command::unknown)
        return std::string(deck_words.peek());
    word_cursor forms(spelling.short_form);
    word_cursor words(spelling.words);
    std::string name;
    for (;;) {
        const std::string_view form = forms.next_or_empty();
        const std::string_view word = words.next_or_empty();
        if (form.empty() && word.empty())
            return name;
        std::string_view written;
        deck_words.next(written);
        const bool is_own = is_open(form) && has_head(context, statement);
        if (is_own || !word.empty())
            name.append(name.empty() ? "" : " ").append(is_own ? to_upper_ascii(written) : std::string(word));
    }
}

void report_rest_of_head(structure_reading& context, std::size_t statement)
{
    if (!has_head(context, statement))
        return;
    row_words words = words_of(context, statement);
    std::string_view word;
    for (std::size_t count = count_words(spelling_of(context, statement).short_form); count > 0; --count)
        words.next(word);
    if (is_word(words.peek(), "LOAD"))
        words.next(word);
    if (!words.peek().empty())
        context.report_unread(context.deck.statement(statement).first_row, "words after the command that say nothing");
}

} // namespace STAAD::detail
