/// A deck as its author wrote it: every byte kept, cut into rows and statements.
///
/// Knows the words of the command language, not what they mean for a structure.
#ifndef STAAD_DECK_DECK_H
#define STAAD_DECK_DECK_H

#include "staad/deck/catalogue.h"
#include "staad/export.h"
#include "staad/report/read_report.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace STAAD {

namespace detail {
class deck_cutter;
}

/// What a row of a deck is.
enum class RowKind : std::uint8_t {
    blank,     ///< nothing but blanks and tabs
    comment,   ///< begins with "*"
    generated, ///< a block "<! ... !>" that a program left for itself
    head,      ///< begins a statement
    data,      ///< belongs to the statement above it
    after_end, ///< stands after FINISH
};

/// One line of the deck, or several of which all but the last are continued by a "-"; comments and blank lines
/// between them belong to it.
struct DeckRow {
    RowKind kind = RowKind::blank;
    FileLines lines; ///< physical lines, from 1, both included
};

/// A command with the rows that belong to it: its head, its data, the comments and blank lines among and after
/// them. The first statement of a deck may be without a head.
struct DeckStatement {
    Command command = Command::none;
    std::size_t first_row = 0; ///< the head; index into the rows of the deck
    std::size_t past_row = 0;  ///< one past the last row
};

/// The text of a deck. Its rows put together are the text, and so are the rows of its statements, for any
/// bytes at all. Lines end with LF, CR LF, or CR. A copy copies the text.
class Deck {
public:
    /// A deck of no bytes.
    STAAD_API Deck();
    /// Cost: the text is kept and walked once; about 16 bytes a line are kept beside it. Throws std::bad_alloc.
    STAAD_API explicit Deck(std::string text);

    /// The deck in a file, which need only be readable. Where it cannot be read, `error` says why and the deck
    /// is empty. Throws std::bad_alloc.
    STAAD_API static Deck from_file(const std::filesystem::path& path, std::error_code& error);

    const std::string& text() const noexcept { return text_; }

    /// Physical lines; one that nothing ends counts, too.
    std::size_t line_count() const noexcept { return line_begins_.size() - 1; }
    /// Physical line `number`, from 1, with what ends it.
    STAAD_API std::string_view line(std::size_t number) const noexcept;

    std::size_t row_count() const noexcept { return rows_.size() - 1; }
    STAAD_API DeckRow row(std::size_t index) const noexcept;
    /// The bytes of a row, all its physical lines.
    STAAD_API std::string_view row_text(std::size_t index) const noexcept;

    std::size_t statement_count() const noexcept { return statements_.size() - 1; }
    STAAD_API DeckStatement statement(std::size_t index) const noexcept;
    /// Physical lines of a statement without the comments and blank lines after its last row of data.
    STAAD_API FileLines lines(const DeckStatement& statement) const noexcept;
    /// The bytes of a statement, all its rows.
    STAAD_API std::string_view statement_text(std::size_t index) const noexcept;

private:
    friend class detail::deck_cutter;

    struct Row {
        std::uint32_t first_line; // from 1
        RowKind kind;
    };
    struct Statement {
        std::uint32_t first_row;
        Command command;
    };

    // Each list ends with one entry more, which stands where the next would begin.
    std::string text_;
    std::vector<std::size_t> line_begins_;
    std::vector<Row> rows_;
    std::vector<Statement> statements_;
};

} // namespace STAAD

#endif
