#include "staad/deck/cut.h"
#include "staad/deck/row_words.h"
#include "staad/text/words.h"

#include <algorithm>
#include <cstring>

namespace STAAD::detail {

std::vector<std::size_t> cut_lines(std::string_view text)
{
    std::vector<std::size_t> begins;
    begins.reserve(static_cast<std::size_t>(std::ranges::count(text, '\n')) + 2);
    std::size_t feed = 0; // the next LF that is not passed yet
    for (std::size_t at = 0; at < text.size();) {
        begins.push_back(at);
        if (at == 0 || at > feed)
            feed = std::min(text.find('\n', at), text.size());
        // A CR that no LF follows ends a line, too.
        const std::size_t carriage = std::min(text.substr(at, feed - at).find('\r'), feed - at) + at;
        const bool alone = carriage < feed && (carriage + 1 < feed || feed == text.size());
        at = std::min(alone ? carriage + 1 : feed + 1, text.size());
    }
    begins.push_back(text.size());
    return begins;
}

namespace {

/// The first character that is no separator; 0 if there is none.
char first_character(std::string_view line) noexcept
{
    const auto found = std::ranges::find_if_not(line, is_separator);
    return found == line.end() ? '\0' : *found;
}

bool begins_generated(std::string_view line) noexcept
{
    const std::size_t mark = line.find("<!");
    return mark != std::string_view::npos && std::ranges::all_of(line.substr(0, mark), is_separator);
}

} // namespace

RowKind deck_cutter::kind_of_line(std::size_t line) const noexcept
{
    const std::string_view text = line_after_mark(deck_, line);
    switch (first_character(text)) {
    case '\0':
        return RowKind::blank;
    case '*':
        return RowKind::comment;
    case '<':
        return begins_generated(text) ? RowKind::generated : RowKind::data;
    default:
        return RowKind::data;
    }
}

/// The line that ends the generated block which begins at `first`; `first` if none does.
std::size_t deck_cutter::last_line_of_generated(std::size_t first) noexcept
{
    if (no_end_of_generated_)
        return first;
    for (std::size_t line = first; line <= deck_.line_count(); ++line)
        if (contains(deck_.line(line), "!>"))
            return line;
    no_end_of_generated_ = true;
    return first;
}

/// The last line that continues `first`. Blank lines and comments stand between without ending it.
std::size_t deck_cutter::last_line_of_row(std::size_t first) const noexcept
{
    std::size_t last = first;
    bool continued = is_continued(line_after_mark(deck_, first));
    for (std::size_t line = first + 1; continued && line <= deck_.line_count(); ++line) {
        const RowKind kind = kind_of_line(line);
        if (kind == RowKind::blank || kind == RowKind::comment)
            continue;
        last = line;
        continued = is_continued(deck_.line(line));
    }
    return last;
}

void deck_cutter::cut_rows()
{
    const std::size_t lines = deck_.line_count();
    deck_.rows_.reserve(lines + 1);
    for (std::size_t line = 1; line <= lines;) {
        const RowKind kind = kind_of_line(line);
        deck_.rows_.push_back({static_cast<std::uint32_t>(line), kind});
        if (kind == RowKind::generated)
            line = last_line_of_generated(line);
        else if (kind == RowKind::data)
            line = last_line_of_row(line);
        ++line;
    }
    deck_.rows_.push_back({static_cast<std::uint32_t>(lines + 1), RowKind::blank});
}

} // namespace STAAD::detail
