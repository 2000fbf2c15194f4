/// Splitting text into words and testing how it begins. Knows lines and words, no model.
#ifndef STAAD_TEXT_WORDS_H
#define STAAD_TEXT_WORDS_H

#include "staad/text/split_string.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace STAAD {

/// True if `text` begins with a decimal digit (ASCII).
bool chk_isdigit(std::string_view text) noexcept;

namespace detail {

/// Walks the words of a text in place. The one tokenizer of the library.
///
/// Bytes are compared one by one, so GBK text passes unharmed as long as the separators are ASCII
/// below 0x40, which no second byte of GBK is.
class word_cursor {
public:
    explicit word_cursor(std::string_view text, std::string_view separators = " ") noexcept
        : rest_(text), separators_(separators)
    {
    }

    /// Takes the next word; false and an empty word at the end.
    bool next(std::string_view& word) noexcept
    {
        std::size_t begin = 0;
        while (begin < rest_.size() && is_separator(rest_[begin]))
            ++begin;
        std::size_t end = begin;
        while (end < rest_.size() && !is_separator(rest_[end]))
            ++end;
        word = rest_.substr(begin, end - begin);
        rest_.remove_prefix(end);
        return !word.empty();
    }

    /// Takes the next word; empty at the end, so that a missing word reads as an empty one.
    std::string_view next_or_empty() noexcept
    {
        std::string_view word;
        next(word);
        return word;
    }

    /// What has not been walked yet, leading separators included.
    std::string_view rest() const noexcept { return rest_; }

private:
    bool is_separator(char c) const noexcept
    {
        return separators_.size() == 1 ? c == separators_.front() : separators_.find(c) != std::string_view::npos;
    }

    std::string_view rest_;
    std::string_view separators_;
};

inline bool starts_with(std::string_view text, std::string_view head) noexcept
{
    return text.substr(0, head.size()) == head;
}

inline bool contains(std::string_view text, std::string_view word) noexcept
{
    return text.find(word) != std::string_view::npos;
}

inline bool is_comment(std::string_view line) noexcept
{
    return starts_with(line, "*");
}

/// The test by which most blocks recognise their own lines. "0" does not pass.
inline bool starts_with_digit_1_to_9(std::string_view text) noexcept
{
    return !text.empty() && text.front() >= '1' && text.front() <= '9';
}

/// ASCII letters only, byte by byte, independent of the locale; bytes above 0x7F are no letters and never
/// change.
bool is_letter(char c) noexcept;
bool starts_with_letter(std::string_view text) noexcept;
char to_upper_ascii(char c) noexcept;
char to_lower_ascii(char c) noexcept;
std::string to_upper_ascii(std::string_view text);
std::string to_lower_ascii(std::string_view text);

/// `text` without blanks and tabs at both ends.
std::string_view trim_blanks(std::string_view text) noexcept;

std::size_t count_words(std::string_view text) noexcept;
/// Word `index` from 0; empty if there are fewer.
std::string_view word_at(std::string_view text, std::size_t index) noexcept;
std::string_view last_word(std::string_view text) noexcept;
/// `text` up to its last `count` words; empty if there are no more than that.
std::string_view without_last_words(std::string_view text, std::size_t count) noexcept;
/// Adds a word after a blank, the first one without.
inline void append_word(std::string& text, std::string_view word)
{
    if (!text.empty())
        text += ' ';
    text += word;
}
/// The remaining words of `words`, at most `most` of them, joined by single blanks.
std::string join_words(word_cursor words, std::size_t most = std::string_view::npos);

} // namespace detail
} // namespace STAAD

#endif
