/// The words of a row, across the lines that continue it.
#ifndef STAAD_DECK_ROW_WORDS_H
#define STAAD_DECK_ROW_WORDS_H

#include "staad/deck/deck.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace STAAD::detail {

/// What separates words, beside ";": blank, tab, comma, line ends, and the 0x1A that ends some files.
constexpr bool is_separator(char c) noexcept
{
    return c == ' ' || c == '\t' || c == ',' || c == '\n' || c == '\r' || c == '\x1a';
}

/// `line` without separators at its ends, and without the "-" that continues it: one that stands alone, or
/// after a number. A "-" that ends any other word is part of it ("Q345-").
std::string_view line_content(std::string_view line) noexcept;
/// Physical line `number` without the mark that may stand at the start of UTF-8 texts.
std::string_view line_after_mark(const Deck& deck, std::size_t number) noexcept;
/// Whether `line` is continued by a "-", see line_content(). Comments are not.
bool is_continued(std::string_view line) noexcept;
/// Whether `line` begins with "*".
bool is_comment_line(std::string_view line) noexcept;

/// Walks the words of one row: what separators or ";" part. A word in quotes is one word, quotes included, if
/// they are closed on the same line. A ";" that nothing stands before ends no item. Words are views of the text of the
/// deck, which must outlive them.
class row_words {
public:
    row_words(const Deck& deck, std::size_t row) noexcept : row_words(deck, deck.row(row)) {}

    /// Takes the next word of the item; false at a ";" and at the end of the row.
    bool next(std::string_view& word) noexcept
    {
        if (!find_word())
            return false;
        word = take_word();
        return true;
    }
    /// The next word without taking it; empty where next() gives false.
    std::string_view peek() const noexcept
    {
        row_words copy = *this;
        std::string_view word;
        copy.next(word);
        return word;
    }
    /// Goes past the next ";"; false if there is nothing but separators after it, or no ";".
    bool next_item() noexcept;
    /// What is left of the row as it stands in the text, ";" included, without separators at its ends; what
    /// stands on several lines with a single blank between these.
    std::string rest();

private:
    row_words(const Deck& deck, const DeckRow& row) noexcept;

    /// Goes to the beginning of a word; false at a ";" and at the end.
    bool find_word() noexcept
    {
        for (;;) {
            while (at_ != end_ && is_separator(*at_))
                ++at_;
            if (at_ != end_)
                return *at_ != ';';
            if (!enter_next_line())
                return false;
        }
    }
    std::string_view take_word() noexcept;
    void enter_line(std::size_t line) noexcept;
    /// Enters the next line that is no comment; false if the row has none.
    bool enter_next_line() noexcept;

    const Deck* deck_;
    const char* at_;
    const char* end_; // of the content of the line
    std::size_t line_;
    std::size_t last_line_;
};

/// Whether `word` is the one whose shortest form is given; see CommandInfo.
bool is_word(std::string_view word, std::string_view short_form) noexcept;

} // namespace STAAD::detail

#endif
