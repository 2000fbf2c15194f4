#include "staad/deck/command_match.h"

#include "staad/text/words.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

namespace STAAD::detail {
namespace {

bool is_digit(char c) noexcept
{
    return c >= '0' && c <= '9';
}

bool is_whole_number(std::string_view word) noexcept
{
    return !word.empty() && std::ranges::all_of(word, is_digit);
}

/// Whether `word` is what one form asks for; see CommandInfo.
bool fits(std::string_view word, std::string_view form) noexcept
{
    if (form == "$")
        return word.empty();
    if (form == "*")
        return !word.empty();
    if (form == "@")
        return starts_with_letter(word);
    if (form == "#")
        return is_whole_number(word);
    if (form == "R#")
        return word.size() > 1 && to_upper_ascii(word.front()) == 'R' && is_whole_number(word.substr(1));
    return is_word(word, form);
}

/// Whether the words begin with all forms of one alternative.
bool begins_with_one(row_words words, std::string_view forms) noexcept
{
    word_cursor each(forms);
    std::string_view word;
    for (std::string_view form; each.next(form);) {
        words.next(word) ? void() : void(word = {});
        if (!fits(word, form))
            return false;
    }
    return true;
}

/// A row of the catalogue is looked for by the first letter of its form: a dozen rows at most have the same.
constexpr std::size_t letters = 26;

struct rows_by_letter {
    std::array<std::uint8_t, letters + 2> begin{}; // into `rows`; the last list is of those that begin with "#"
    std::array<std::uint8_t, 255> rows{};
};

std::size_t list_of(char first) noexcept
{
    const char upper = to_upper_ascii(first);
    return upper >= 'A' && upper <= 'Z' ? static_cast<std::size_t>(upper - 'A') : letters;
}

rows_by_letter sort_rows() noexcept
{
    rows_by_letter sorted;
    std::size_t count = 0;
    for (std::size_t list = 0; list <= letters; ++list) {
        sorted.begin[list] = static_cast<std::uint8_t>(count);
        std::size_t index = 0;
        for (const CommandInfo& each : command_catalogue()) {
            if (*each.short_form != '\0' && list_of(*each.short_form) == list)
                sorted.rows[count++] = static_cast<std::uint8_t>(index);
            ++index;
        }
    }
    sorted.begin[letters + 1] = static_cast<std::uint8_t>(count);
    return sorted;
}

/// Words that may stand before the numbers of a list.
constexpr std::string_view list_heads[] = {"LIST", "MEMB", "ELEM", "JOIN", "BEAM", "PLAT"};
constexpr std::string_view list_words[] = {"ALL", "XR", "YR", "ZR", "XRAN", "YRAN", "ZRAN"};

bool is_one_of(std::string_view word, const auto& forms) noexcept
{
    return std::ranges::any_of(forms, [word](std::string_view form) { return is_word(word, form); });
}

bool is_list_word(std::string_view word) noexcept
{
    return !word.empty() && (is_digit(word.front()) || word.front() == '_' || is_one_of(word, list_words));
}

} // namespace

bool begins_with(const row_words& words, std::string_view forms) noexcept
{
    word_cursor alternatives(forms, "|");
    for (std::string_view each; alternatives.next(each);)
        if (begins_with_one(words, each))
            return true;
    return false;
}

const CommandInfo* find_command(const row_words& words) noexcept
{
    static const rows_by_letter sorted = sort_rows();
    const std::string_view first = words.peek();
    if (first.empty() || (!starts_with_letter(first) && !is_digit(first.front())))
        return nullptr;
    const std::size_t list = list_of(first.front());
    for (std::size_t i = sorted.begin[list]; i < sorted.begin[list + 1]; ++i) {
        const CommandInfo& info = command_catalogue().first[sorted.rows[i]];
        if (begins_with_one(words, info.short_form))
            return &info;
    }
    return nullptr;
}

bool begins_with_number(const row_words& words) noexcept
{
    std::string_view first = words.peek();
    if (!first.empty() && (first.front() == '-' || first.front() == '+'))
        first.remove_prefix(1);
    if (!first.empty() && first.front() == '.')
        first.remove_prefix(1);
    return !first.empty() && is_digit(first.front());
}

bool begins_a_list(const row_words& words) noexcept
{
    const std::string_view first = words.peek();
    if (is_list_word(first))
        return true;
    if (!is_one_of(first, list_heads))
        return false;
    row_words after = words;
    std::string_view head;
    after.next(head);
    return is_list_word(after.peek());
}

} // namespace STAAD::detail
