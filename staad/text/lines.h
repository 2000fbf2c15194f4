/// Physical lines of a text, and the logical lines that blocks are read from. Knows no model.
#ifndef STAAD_TEXT_LINES_H
#define STAAD_TEXT_LINES_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace STAAD::detail {

/// Where something stands in the file: physical lines, from 1, both included. 0: nowhere.
struct line_place {
    std::uint32_t first = 0;
    std::uint32_t last = 0;
};

/// One line, in place in the buffer of its list.
struct text_line {
    std::string_view text;
    line_place place;
};

/// Walks the physical lines of a text in place. Drops a byte order mark at the start, a run of 0x1A at
/// the end, one CR before each LF and one at the end of an unterminated last line; keeps everything
/// else. A copy goes on from where the original stood.
class line_cursor {
public:
    explicit line_cursor(std::string_view text) noexcept;

    /// Takes the next line; false at the end.
    bool next(text_line& line) noexcept;

    /// What has not been walked yet.
    std::string_view rest() const noexcept { return rest_; }

private:
    std::string_view rest_;
    std::uint32_t number_ = 0; // of the line taken last
};

/// The lines of one text, which it owns. Moves keep every view valid; there are no copies.
class line_list {
public:
    line_list() = default;
    /// Cuts `size` characters of `buffer` into lines as line_cursor does. Drops every line that begins
    /// with `skip_prefix` unless that is empty; keeps empty lines.
    line_list(std::unique_ptr<char[]> buffer, std::size_t size, std::string_view skip_prefix);

    /// Copies the text.
    static line_list from_text(std::string_view text, std::string_view skip_prefix);

    std::size_t size() const noexcept { return lines_.size(); }
    bool empty() const noexcept { return lines_.empty(); }
    const text_line& operator[](std::size_t index) const noexcept { return lines_[index]; }
    /// The text of a line; empty past the end.
    std::string_view text(std::size_t index) const noexcept
    {
        return index < lines_.size() ? lines_[index].text : std::string_view();
    }
    const text_line* begin() const noexcept { return lines_.data(); }
    const text_line* end() const noexcept { return lines_.data() + lines_.size(); }

    /// Drops lines of nothing but blanks and tabs, then joins continued lines: a line that ends in
    /// "-" takes the next one in place of it, with one blank between. A line that begins with "*" is a comment;
    /// a "-" at its end, which is often part of a ruler, does not continue it. A "-" at the end of the last
    /// line becomes a blank.
    void prepare();

    // Once prepared, keywords are looked for only among the lines that begin with a letter: a few hundred of
    // the hundreds of thousands of lines of a large deck.

    /// First line from `from` on that is exactly `keyword`; size() if there is none.
    std::size_t find_equal(std::string_view keyword, std::size_t from = 0) const noexcept;
    /// First line from `from` on that begins with `keyword`; size() if there is none.
    std::size_t find_start(std::string_view keyword, std::size_t from = 0) const noexcept;
    /// Positions of all lines that begin with an ASCII letter, ascending.
    const std::vector<std::size_t>& commands() const noexcept { return commands_; }

private:
    void join_continued() noexcept;
    template<class Match>
    std::size_t find_command(std::size_t from, Match match) const noexcept;

    std::unique_ptr<char[]> buffer_;
    std::vector<text_line> lines_;
    std::vector<std::size_t> commands_;
};

} // namespace STAAD::detail

#endif
