#include "staad/deck/row_words.h"

#include "staad/text/number.h"
#include "staad/text/words.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace STAAD::detail {
namespace {

/// `line` without separators at its ends.
std::string_view trim(std::string_view line) noexcept
{
    while (!line.empty() && is_separator(line.front()))
        line.remove_prefix(1);
    while (!line.empty() && is_separator(line.back()))
        line.remove_suffix(1);
    return line;
}

bool is_number(std::string_view word) noexcept
{
    return !word.empty() && parse_real(word).size == word.size();
}

/// Whether the "-" at the end of `line`, which is trimmed, continues it.
bool ends_in_continuation(std::string_view line) noexcept
{
    if (line.empty() || line.back() != '-')
        return false;
    line.remove_suffix(1);
    if (line.empty() || is_separator(line.back()) || line.back() == ';')
        return true;
    const auto blank = std::find_if(line.rbegin(), line.rend(), [](char c) { return is_separator(c) || c == ';'; });
    return is_number(line.substr(static_cast<std::size_t>(line.rend() - blank)));
}

} // namespace

std::string_view line_content(std::string_view line) noexcept
{
    line = trim(line);
    if (!ends_in_continuation(line))
        return line;
    line.remove_suffix(1);
    return trim(line);
}

std::string_view line_after_mark(const Deck& deck, std::size_t number) noexcept
{
    const std::string_view line = deck.line(number);
    return number == 1 && starts_with(line, "\xEF\xBB\xBF") ? line.substr(3) : line;
}

bool is_continued(std::string_view line) noexcept
{
    // Nearly no line is: the last byte tells.
    std::size_t size = line.size();
    while (size > 0 && is_separator(line[size - 1]))
        --size;
    return size > 0 && line[size - 1] == '-' && !is_comment_line(line) && ends_in_continuation(trim(line));
}

bool is_comment_line(std::string_view line) noexcept
{
    for (const char c : line)
        if (!is_separator(c))
            return c == '*';
    return false;
}

row_words::row_words(const Deck& deck, const DeckRow& row) noexcept : deck_(&deck), last_line_(row.lines.last)
{
    enter_line(row.lines.first);
    while (!find_word() && at_ != end_)
        ++at_;
}

void row_words::enter_line(std::size_t line) noexcept
{
    line_ = line;
    // Only a row of several lines, or the last row of a text, has a "-" to take off.
    const std::string_view content = line_content(line_after_mark(*deck_, line));
    at_ = content.data();
    end_ = at_ + content.size();
}

bool row_words::enter_next_line() noexcept
{
    std::size_t line = line_ + 1;
    while (line <= last_line_ && is_comment_line(deck_->line(line)))
        ++line;
    if (line > last_line_)
        return false;
    enter_line(line);
    return true;
}

std::string_view row_words::take_word() noexcept
{
    const char* begin = at_;
    if (*at_ == '\'' || *at_ == '"') {
        const auto* close =
            static_cast<const char*>(std::memchr(at_ + 1, *at_, static_cast<std::size_t>(end_ - at_ - 1)));
        if (close != nullptr)
            at_ = close + 1;
    }
    while (at_ != end_ && !is_separator(*at_) && *at_ != ';')
        ++at_;
    return {begin, static_cast<std::size_t>(at_ - begin)};
}

bool row_words::next_item() noexcept
{
    while (find_word())
        take_word();
    bool passed = false;
    while (at_ != end_ && *at_ == ';') {
        ++at_;
        passed = find_word();
    }
    return passed;
}

std::string row_words::rest()
{
    std::string rest;
    find_word(); // goes past separators, to the next line if this one is used up
    do {
        if (at_ != end_)
            rest.append(rest.empty() ? "" : " ").append(at_, end_);
        at_ = end_;
    } while (enter_next_line());
    return rest;
}

bool is_word(std::string_view word, std::string_view short_form) noexcept
{
    if (word.size() < short_form.size() || (short_form.size() < 3 && word.size() != short_form.size()))
        return false;
    return std::equal(short_form.begin(), short_form.end(), word.begin(),
                      [](char form, char c) { return form == to_upper_ascii(c); });
}

} // namespace STAAD::detail
