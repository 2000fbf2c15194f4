#include "staad/text/encoding.h"

#include "staad/text/words.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace STAAD {
namespace {

/// A character in UTF-8: its code point and its length in bytes; length 0: the bytes are no character.
struct utf8_character {
    std::uint32_t code = 0;
    std::size_t length = 0;
};

std::uint32_t byte_at(std::string_view text, std::size_t index) noexcept
{
    return static_cast<unsigned char>(text[index]);
}

std::size_t length_by_first_byte(std::uint32_t byte) noexcept
{
    if (byte < 0x80)
        return 1;
    if (byte >= 0xC2 && byte < 0xE0)
        return 2;
    if (byte >= 0xE0 && byte < 0xF0)
        return 3;
    return byte >= 0xF0 && byte < 0xF5 ? 4 : 0;
}

utf8_character first_character(std::string_view text) noexcept
{
    const std::uint32_t first = byte_at(text, 0);
    const std::size_t length = length_by_first_byte(first);
    if (length == 0 || length > text.size())
        return {};
    std::uint32_t code = length == 1 ? first : first & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte_at(text, i) & 0xC0U) != 0x80U)
            return {};
        code = (code << 6U) | (byte_at(text, i) & 0x3FU);
    }
    constexpr std::uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (code < smallest[length] || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF))
        return {};
    return {code, length};
}

bool is_control(std::uint32_t code) noexcept
{
    return code < 0x20 || (code >= 0x7F && code < 0xA0);
}

bool is_control_byte(std::uint32_t byte) noexcept
{
    return byte < 0x20 || byte == 0x7F;
}

bool is_wide(std::uint32_t code) noexcept
{
    return (code >= 0x1100 && code <= 0x115F) || (code >= 0x2E80 && code <= 0xA4CF) ||
           (code >= 0xAC00 && code <= 0xD7A3) || (code >= 0xF900 && code <= 0xFAFF) ||
           (code >= 0xFE30 && code <= 0xFE6F) || (code >= 0xFF00 && code <= 0xFF60) ||
           (code >= 0xFFE0 && code <= 0xFFE6) || (code >= 0x20000 && code <= 0x3FFFD);
}

/// The longest beginning of a text that takes no more than so many cells.
struct beginning {
    std::size_t bytes = 0;
    std::size_t width = 0;
};

beginning first_cells(std::string_view text, std::size_t most) noexcept
{
    beginning taken;
    while (taken.bytes < text.size()) {
        const utf8_character character = first_character(text.substr(taken.bytes));
        const std::size_t width = is_wide(character.code) ? 2 : 1;
        if (taken.width + width > most)
            break;
        taken.bytes += std::max<std::size_t>(character.length, 1);
        taken.width += width;
    }
    return taken;
}

void append_hex_escape(std::string& out, std::uint32_t code)
{
    constexpr char digits[] = "0123456789ABCDEF";
    out += "\\x";
    out += digits[(code >> 4U) & 0xFU];
    out += digits[code & 0xFU];
}

std::string escape_control_characters(std::string_view utf8)
{
    std::string out;
    while (!utf8.empty()) {
        const utf8_character character = first_character(utf8);
        if (is_control(character.code))
            append_hex_escape(out, character.code);
        else
            out += utf8.substr(0, character.length);
        utf8.remove_prefix(character.length);
    }
    return out;
}

template<class IsEscaped>
std::string escape_bytes(std::string_view bytes, IsEscaped is_escaped)
{
    std::string out;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const std::uint32_t byte = byte_at(bytes, i);
        if (is_escaped(byte))
            append_hex_escape(out, byte);
        else
            out += bytes[i];
    }
    return out;
}

char byte_of(std::uint32_t code) noexcept
{
    return static_cast<char>(static_cast<unsigned char>(code));
}

void append_utf8(std::string& out, std::uint32_t code)
{
    if (code < 0x80) {
        out += byte_of(code);
        return;
    }
    const std::uint32_t tails = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3; // bytes after the first
    constexpr std::uint32_t first_bytes[] = {0, 0xC0, 0xE0, 0xF0};
    out += byte_of(first_bytes[tails] | (code >> (6 * tails)));
    for (std::uint32_t left = tails; left-- > 0;)
        out += byte_of(0x80U | ((code >> (6 * left)) & 0x3FU));
}

bool is_high_surrogate(char16_t unit) noexcept
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool is_low_surrogate(char16_t unit) noexcept
{
    return unit >= 0xDC00 && unit < 0xE000;
}

/// The letters of Latin-1 above ASCII; the rest are signs.
bool is_latin1_letter(std::uint32_t byte) noexcept
{
    return byte >= 0xC0 && byte != 0xD7 && byte != 0xF7; // the signs of multiplication and division
}

char at_or_blank(std::string_view text, std::size_t index) noexcept
{
    return index < text.size() ? text[index] : ' ';
}

bool is_lower_case(char c) noexcept
{
    return c >= 'a' && c <= 'z';
}

/// Bytes above ASCII from `begin` to `end`, ASCII on both sides: whether they read as Latin-1.
bool is_latin1_run(std::string_view text, std::size_t begin, std::size_t end) noexcept
{
    const char before = begin == 0 ? ' ' : text[begin - 1];
    const char after = at_or_blank(text, end);
    const std::uint32_t first = byte_at(text, begin);
    if (end - begin == 1)
        return is_latin1_letter(first) ? detail::is_letter(before) || detail::is_letter(after) : first >= 0xA0;
    return end - begin == 2 && is_latin1_letter(first) && is_latin1_letter(byte_at(text, begin + 1)) &&
           is_lower_case(before) && is_lower_case(after);
}

/// `text` as UTF-8; nothing if it is of no known encoding.
std::optional<std::string> decoded(std::string_view text)
{
    if (is_utf8(text))
        return std::string(text);
    if (looks_like_latin1(text))
        return utf8_from_latin1(text);
    return utf8_from_gbk(text);
}

} // namespace

bool is_ascii(std::string_view text) noexcept
{
    return std::none_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

bool is_utf8(std::string_view text) noexcept
{
    if (is_ascii(text))
        return true;
    while (!text.empty()) {
        const std::size_t length = first_character(text).length;
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

std::string utf8_from_utf16(std::u16string_view text)
{
    constexpr std::uint32_t unknown = 0xFFFD;
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::uint32_t code = text[i];
        if (is_high_surrogate(text[i]) && i + 1 < text.size() && is_low_surrogate(text[i + 1])) {
            code = 0x10000U + ((code & 0x3FFU) << 10U) + (text[i + 1] & 0x3FFU);
            ++i;
        } else if (is_high_surrogate(text[i]) || is_low_surrogate(text[i])) {
            code = unknown;
        }
        append_utf8(out, code);
    }
    return out;
}

std::string utf8_from_latin1(std::string_view text)
{
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i)
        append_utf8(out, byte_at(text, i));
    return out;
}

bool looks_like_latin1(std::string_view text) noexcept
{
    bool has_any = false;
    for (std::size_t i = 0; i < text.size();) {
        if (byte_at(text, i) < 0x80) {
            ++i;
            continue;
        }
        const std::size_t begin = i;
        while (i < text.size() && byte_at(text, i) >= 0x80)
            ++i;
        if (!is_latin1_run(text, begin, i))
            return false;
        has_any = true;
    }
    return has_any;
}

std::string utf8_text(std::string_view text)
{
    if (std::optional<std::string> utf8 = decoded(text))
        return *std::move(utf8);
    return utf8_from_latin1(text);
}

std::string printable_text(std::string_view text)
{
    if (const std::optional<std::string> utf8 = decoded(text))
        return escape_control_characters(*utf8);
    return escape_bytes(text, [](std::uint32_t byte) { return byte >= 0x80 || is_control_byte(byte); });
}

std::string escape_controls(std::string_view text)
{
    return is_utf8(text) ? escape_control_characters(text) : escape_bytes(text, is_control_byte);
}

std::size_t display_width(std::string_view text) noexcept
{
    return first_cells(text, text.size() * 2).width;
}

std::string clipped(std::string_view text, std::size_t most)
{
    if (first_cells(text, most).bytes == text.size())
        return std::string(text);
    constexpr std::string_view dots = "...";
    std::string cut(text.substr(0, first_cells(text, most - dots.size()).bytes));
    return cut.append(dots);
}

} // namespace STAAD
