#include "staad/deck/deck.h"

#include "staad/deck/cut.h"
#include "staad/io/read_file.h"

#include <utility>

namespace STAAD {

Deck::Deck() : Deck(std::string()) {}

Deck::Deck(std::string text) : text_(std::move(text))
{
    line_begins_ = detail::cut_lines(text_);
    detail::deck_cutter(*this).cut();
}

Deck Deck::from_file(const std::filesystem::path& path, std::error_code& error)
{
    const FileBytes file = read_file(path);
    error = file.error;
    return file.outcome == FileBytes::Outcome::read ? Deck(std::string(file.text())) : Deck();
}

std::string_view Deck::line(std::size_t number) const noexcept
{
    const std::size_t begin = line_begins_[number - 1];
    return std::string_view(text_).substr(begin, line_begins_[number] - begin);
}

DeckRow Deck::row(std::size_t index) const noexcept
{
    return {rows_[index].kind, {rows_[index].first_line, rows_[index + 1].first_line - std::size_t{1}}};
}

std::string_view Deck::row_text(std::size_t index) const noexcept
{
    const std::size_t begin = line_begins_[rows_[index].first_line - std::size_t{1}];
    const std::size_t end = line_begins_[rows_[index + 1].first_line - std::size_t{1}];
    return std::string_view(text_).substr(begin, end - begin);
}

DeckStatement Deck::statement(std::size_t index) const noexcept
{
    return {statements_[index].command, statements_[index].first_row, statements_[index + 1].first_row};
}

FileLines Deck::lines(const DeckStatement& statement) const noexcept
{
    std::size_t last = statement.past_row;
    const auto says_nothing = [this](std::size_t index) {
        return rows_[index].kind == RowKind::blank || rows_[index].kind == RowKind::comment;
    };
    while (last > statement.first_row + 1 && says_nothing(last - 1))
        --last;
    return {row(statement.first_row).lines.first, row(last - 1).lines.last};
}

std::string_view Deck::statement_text(std::size_t index) const noexcept
{
    const DeckStatement cut = statement(index);
    const std::size_t begin = line_begins_[rows_[cut.first_row].first_line - std::size_t{1}];
    const std::size_t end = line_begins_[rows_[cut.past_row].first_line - std::size_t{1}];
    return std::string_view(text_).substr(begin, end - begin);
}

} // namespace STAAD
