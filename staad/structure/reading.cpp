#include "staad/structure/reading.h"

#include <algorithm>
#include <utility>

namespace STAAD::detail {

structure_reading::structure_reading(const Deck& read, Structure& made, ReadReport& report)
    : deck(read), structure(made), findings(&report)
{
    sort_statements();
    follow_units();
}

void structure_reading::sort_statements()
{
    for (std::size_t i = 0; i < deck.statement_count(); ++i)
        statements_[static_cast<std::size_t>(deck.statement(i).command)].push_back(i);
}

void structure_reading::follow_units()
{
    for (const std::size_t statement : statements_of(Command::unit))
        follow_unit_line(statement);
    fill_first_units();
}

void structure_reading::follow_unit_line(std::size_t statement)
{
    const std::size_t row = deck.statement(statement).first_row;
    exact_units units = unit_changes_.empty() ? exact_units() : unit_changes_.back().units;
    row_words words(deck, row);
    std::string_view word;
    words.next(word); // UNIT
    follow_unit_words(words, row, units);
    unit_changes_.push_back({statement, std::move(units)});
}

void structure_reading::follow_unit_words(row_words& words, std::size_t row, exact_units& units)
{
    for (std::string_view word; words.next(word);) {
        if (const auto length = exact_length(word)) {
            units.length = *length;
            units.length_word = word;
        } else if (const auto force = exact_force(word)) {
            units.force = *force;
            units.force_word = word;
        } else {
            report(FindingCode::unit_word, row,
                   [&] { return quote(word) + " is neither a length nor a force; the unit stays as it was"; });
        }
    }
}

void structure_reading::fill_first_units()
{
    const auto end = unit_changes_.end();
    const auto length =
        std::find_if(unit_changes_.begin(), end, [](auto& each) { return !each.units.length_word.empty(); });
    const auto force =
        std::find_if(unit_changes_.begin(), end, [](auto& each) { return !each.units.force_word.empty(); });
    for (auto each = unit_changes_.begin(); each != end; ++each) {
        if (length != end && each < length) {
            each->units.length = length->units.length;
            each->units.length_word = length->units.length_word;
        }
        if (force != end && each < force) {
            each->units.force = force->units.force;
            each->units.force_word = force->units.force_word;
        }
    }
}

const exact_units& structure_reading::units_at(std::size_t statement) const noexcept
{
    const auto later = std::upper_bound(unit_changes_.begin(), unit_changes_.end(), statement,
                                        [](std::size_t at, const unit_change& each) { return at < each.statement; });
    return later == unit_changes_.begin() ? later->units : std::prev(later)->units;
}

const open_case& structure_reading::case_at(std::size_t statement) const noexcept
{
    static constexpr open_case no_case;
    const auto later = std::upper_bound(case_changes_.begin(), case_changes_.end(), statement,
                                        [](std::size_t at, const case_change& each) { return at < each.statement; });
    return later == case_changes_.begin() ? no_case : std::prev(later)->opened;
}

void structure_reading::begin_case(std::size_t statement, open_case opened)
{
    case_changes_.push_back({statement, opened});
}

Structure::Source structure_reading::source_of(std::size_t row)
{
    if (row_of_last_source_ != row + 1) {
        structure.sources.push_back(deck.row(row).lines);
        row_of_last_source_ = row + 1;
    }
    return static_cast<Structure::Source>(structure.sources.size());
}

Structure::Source structure_reading::source_of_statement(std::size_t statement)
{
    structure.sources.push_back(deck.lines(deck.statement(statement)));
    row_of_last_source_ = 0;
    return static_cast<Structure::Source>(structure.sources.size());
}

line_place structure_reading::place_of(std::size_t row) const noexcept
{
    const FileLines lines = deck.row(row).lines;
    return {static_cast<std::uint32_t>(lines.first), static_cast<std::uint32_t>(lines.last)};
}

void structure_reading::take_generated(std::size_t count, std::size_t row, std::size_t times)
{
    const FileLines lines = deck.row(row).lines;
    if (count > 0 && times > (most_generated_per_reading - generated_) / count)
        throw ReadLimitError(lines.first, lines.last, most_generated_per_reading);
    generated_ += count * times;
}

void structure_reading::report_unread(std::size_t row, std::string_view what)
{
    report(FindingCode::line_unread, row, [&] { return std::string(what) + ": " + quoted_row(row); });
}

std::string structure_reading::quoted_row(std::size_t row) const
{
    return quote(row_words(deck, row).rest());
}

} // namespace STAAD::detail
