/// Cutting a text into lines, rows and statements.
#ifndef STAAD_DECK_CUT_H
#define STAAD_DECK_CUT_H

#include "staad/deck/command_match.h"
#include "staad/deck/deck.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

namespace STAAD::detail {

/// Where the lines of a text begin, and its size.
std::vector<std::size_t> cut_lines(std::string_view text);

/// Fills the rows and statements of a deck whose lines are cut.
class deck_cutter {
public:
    explicit deck_cutter(Deck& deck) noexcept : deck_(deck) {}

    void cut()
    {
        cut_rows();
        cut_statements();
    }

private:
    void cut_rows();
    std::size_t last_line_of_row(std::size_t first) const noexcept;
    std::size_t last_line_of_generated(std::size_t first) noexcept;
    RowKind kind_of_line(std::size_t line) const noexcept;

    void cut_statements();
    void add_text_row(std::size_t row);
    void add_row_of_ended_block(const row_words& words, std::size_t row);
    bool goes_on_after_unit(const row_words& words, const CommandInfo* command) noexcept;
    void begin_statement(std::size_t row, const CommandInfo& info);
    void resume_statement(std::size_t row);
    bool is_data(const row_words& words, const CommandInfo* command) const noexcept;
    bool is_ended_by_line(const CommandInfo& info, std::size_t head) noexcept;

    Deck& deck_;
    bool no_end_of_generated_ = false; // after the line looked at last
    const CommandInfo* open_ = &command_info(Command::none);
    const CommandInfo* interrupted_ = nullptr; // by the UNIT line that is open: its data may go on after it
    DataLines interrupted_data_ = DataLines::none;
    bool in_design_ = false;           // words that are no commands are parameters of the design
    DataLines data_ = DataLines::none; // of the open statement
    /// By command: no line after the one looked at last ends a block of it. A search that failed is not made again.
    std::array<bool, number_of_commands> without_end_{};
};

} // namespace STAAD::detail

#endif
