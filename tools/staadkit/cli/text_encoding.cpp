#include "cli/text_encoding.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#ifdef _WIN32
#    include <windows.h>
#elif defined(__linux__) && __has_include(<iconv.h>)
#    define STAADKIT_HAS_ICONV 1
#    include <iconv.h> // part of the C library here: nothing to link
#endif

namespace tool {
namespace {

/// A character in UTF-8: its code point and its length in bytes; length 0: none stands here.
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

std::string escape_controls(std::string_view utf8)
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
    const std::uint32_t tails = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3; // bytes behind the first
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

#ifdef _WIN32
constexpr UINT gbk = 936;

/// `text` of a code page as UTF-16; nothing if it is no text of it.
std::optional<std::wstring> decoded(UINT code_page, std::string_view text)
{
    const int bytes = static_cast<int>(text.size());
    const int size = MultiByteToWideChar(code_page, MB_ERR_INVALID_CHARS, text.data(), bytes, nullptr, 0);
    if (size == 0 && bytes != 0)
        return std::nullopt;
    std::wstring wide(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(code_page, MB_ERR_INVALID_CHARS, text.data(), bytes, wide.data(), size);
    return wide;
}

/// UTF-16 `text` in GBK; nothing if GBK lacks one of its characters.
std::optional<std::string> encoded_in_gbk(const std::wstring& text)
{
    const int units = static_cast<int>(text.size());
    BOOL lacks_one = FALSE;
    const int size =
        WideCharToMultiByte(gbk, WC_NO_BEST_FIT_CHARS, text.data(), units, nullptr, 0, nullptr, &lacks_one);
    if (lacks_one != FALSE)
        return std::nullopt;
    std::string narrow(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(gbk, WC_NO_BEST_FIT_CHARS, text.data(), units, narrow.data(), size, nullptr, nullptr);
    return narrow;
}

std::string utf8_from_wide(const std::wstring& text)
{
    return utf8_from_utf16(std::u16string(text.begin(), text.end()));
}
#endif

#ifdef STAADKIT_HAS_ICONV
/// Opened once: opening loads the conversion tables.
class converter {
public:
    converter(const char* to, const char* from) : handle_(iconv_open(to, from)) {}
    converter(const converter&) = delete;
    converter& operator=(const converter&) = delete;
    ~converter()
    {
        if (is_open())
            iconv_close(handle_);
    }

    std::optional<std::string> convert(std::string_view text)
    {
        if (!is_open())
            return std::nullopt;
        // Two bytes of GBK are at most three of UTF-8, an ASCII byte is one; the other way nothing grows.
        std::string in(text);
        std::string out(2 * in.size(), '\0');
        char* from = in.data();
        char* to = out.data();
        std::size_t from_left = in.size();
        std::size_t to_left = out.size();
        iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        if (iconv(handle_, &from, &from_left, &to, &to_left) == static_cast<std::size_t>(-1))
            return std::nullopt;
        out.resize(out.size() - to_left);
        return out;
    }

private:
    // The failure value of iconv_open is the address -1.
    bool is_open() const noexcept { return reinterpret_cast<std::intptr_t>(handle_) != -1; }

    iconv_t handle_;
};
#endif

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

std::optional<std::string> utf8_from_gbk(std::string_view text)
{
#if defined(_WIN32)
    const std::optional<std::wstring> wide = decoded(gbk, text);
    return wide ? std::optional(utf8_from_wide(*wide)) : std::nullopt;
#elif defined(STAADKIT_HAS_ICONV)
    static converter decoder("UTF-8", "GBK"); // the tool has one thread
    return decoder.convert(text);
#else
    static_cast<void>(text);
    return std::nullopt;
#endif
}

std::optional<std::string> gbk_from_utf8(std::string_view text)
{
    if (is_ascii(text))
        return std::string(text);
#if defined(_WIN32)
    const std::optional<std::wstring> wide = decoded(CP_UTF8, text);
    return wide ? encoded_in_gbk(*wide) : std::nullopt;
#elif defined(STAADKIT_HAS_ICONV)
    static converter encoder("GBK", "UTF-8");
    return encoder.convert(text);
#else
    return std::nullopt;
#endif
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

std::string utf8_from_bytes(std::string_view text)
{
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i)
        append_utf8(out, byte_at(text, i));
    return out;
}

std::string utf8_text(std::string_view text)
{
    if (is_utf8(text))
        return std::string(text);
    if (std::optional<std::string> decoded = utf8_from_gbk(text))
        return *std::move(decoded);
    return utf8_from_bytes(text);
}

std::string printable_text(std::string_view text)
{
    if (is_utf8(text))
        return escape_controls(text);
    const std::optional<std::string> decoded = utf8_from_gbk(text);
    if (decoded)
        return escape_controls(*decoded);
    return escape_bytes(text, [](std::uint32_t byte) { return byte >= 0x80 || is_control_byte(byte); });
}

std::string printable_name(std::string_view name)
{
#ifdef _WIN32
    // Names are in the ANSI code page there, what is printed in UTF-8.
    if (const std::optional<std::wstring> wide = decoded(CP_ACP, name))
        return escape_controls(utf8_from_wide(*wide));
#endif
    return is_utf8(name) ? escape_controls(name) : escape_bytes(name, is_control_byte);
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

} // namespace tool
