/// Any bytes as a deck: its lines, rows and statements put together are the text, and all words lie in it.

#include "fuzz/fuzz_target.h"
#include "fuzz/memory_limit.h"
#include "staad/deck/deck.h"
#include "staad/deck/row_words.h"

#include <functional>
#include <optional>

namespace {

using STAAD::Deck;

void check_words(const Deck& deck, std::size_t row)
{
    const std::string& text = deck.text();
    STAAD::detail::row_words words(deck, row);
    std::size_t size = 0;
    do
        for (std::string_view word; words.next(word); size += word.size()) {
            const std::less_equal<const char*> is_not_after;
            fuzz::require(!word.empty() && is_not_after(text.data(), word.data()) &&
                              is_not_after(word.data() + word.size(), text.data() + text.size()),
                          "a word lies in the text");
        }
    while (words.next_item());
    fuzz::require(size <= deck.row_text(row).size(), "words are no more than their row");
    fuzz::require(words.rest().empty(), "nothing is left after the last item");
}

void check_deck(const Deck& deck, std::string_view text)
{
    std::string lines;
    for (std::size_t line = 1; line <= deck.line_count(); ++line)
        lines += deck.line(line);
    fuzz::require(lines == text, "the lines are the text");

    std::string rows;
    for (std::size_t row = 0; row < deck.row_count(); ++row) {
        rows += deck.row_text(row);
        check_words(deck, row);
    }
    fuzz::require(rows == text, "the rows are the text");

    std::string statements;
    std::size_t next_row = 0;
    for (std::size_t i = 0; i < deck.statement_count(); ++i) {
        const STAAD::DeckStatement statement = deck.statement(i);
        fuzz::require(statement.first_row == next_row && statement.past_row > next_row, "statements follow each other");
        const STAAD::FileLines written = deck.lines(statement);
        fuzz::require(written.first >= 1 && written.first <= written.last && written.last <= deck.line_count(),
                      "a statement has lines");
        next_row = statement.past_row;
        statements += deck.statement_text(i);
    }
    fuzz::require(statements == text && next_row == deck.row_count(), "the statements are the text");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = fuzz::text_of(data, size);
    std::optional<Deck> deck;
    if (fuzz::within_memory([&] { deck.emplace(std::string(text)); }))
        check_deck(*deck, text);
    return 0;
}
