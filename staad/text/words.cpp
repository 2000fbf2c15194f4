#include "staad/text/words.h"

#include <algorithm>

namespace STAAD {

std::vector<std::string> SplitString(const std::string& text, const std::string& separators)
{
    std::vector<std::string> words;
    detail::word_cursor cursor(text, separators);
    for (std::string_view word; cursor.next(word);)
        words.emplace_back(word);
    return words;
}

bool chk_isdigit(std::string_view text) noexcept
{
    return !text.empty() && text.front() >= '0' && text.front() <= '9';
}

namespace detail {

bool is_letter(char c) noexcept
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool starts_with_letter(std::string_view text) noexcept
{
    return !text.empty() && is_letter(text.front());
}

char to_upper_ascii(char c) noexcept
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

char to_lower_ascii(char c) noexcept
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string to_upper_ascii(std::string_view text)
{
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), [](char c) { return to_upper_ascii(c); });
    return upper;
}

std::string to_lower_ascii(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) { return to_lower_ascii(c); });
    return lower;
}

std::string_view trim_blanks(std::string_view text) noexcept
{
    const std::size_t begin = text.find_first_not_of(" \t");
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(" \t") - begin + 1);
}

std::size_t count_words(std::string_view text) noexcept
{
    std::size_t count = 0;
    word_cursor cursor(text);
    for (std::string_view word; cursor.next(word);)
        ++count;
    return count;
}

std::string_view word_at(std::string_view text, std::size_t index) noexcept
{
    word_cursor cursor(text);
    for (std::string_view word; cursor.next(word); --index)
        if (index == 0)
            return word;
    return {};
}

namespace {

/// `text` up to the end of its last word.
std::string_view without_trailing_blanks(std::string_view text) noexcept
{
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

} // namespace

std::string_view last_word(std::string_view text) noexcept
{
    text = without_trailing_blanks(text);
    return text.substr(text.find_last_of(' ') + 1);
}

std::string_view without_last_words(std::string_view text, std::size_t count) noexcept
{
    for (; count > 0; --count) {
        text = without_trailing_blanks(text);
        text = text.substr(0, text.find_last_of(' ') + 1);
    }
    return text;
}

std::string join_words(word_cursor words, std::size_t most)
{
    std::string text;
    for (std::string_view word; most > 0 && words.next(word); --most) {
        if (!text.empty())
            text += ' ';
        text += word;
    }
    return text;
}

} // namespace detail
} // namespace STAAD
