/// The 8-bit texts of a file, whose encoding nothing declares, as UTF-8, and the way back to GBK.
#ifndef TOOLS_STAADKIT_CLI_TEXT_ENCODING_H
#define TOOLS_STAADKIT_CLI_TEXT_ENCODING_H

#include <optional>
#include <string>
#include <string_view>

namespace tool {

bool is_ascii(std::string_view text) noexcept;

/// True for well-formed UTF-8, plain ASCII included; surrogates and overlong forms are not.
bool is_utf8(std::string_view text) noexcept;

/// `text` decoded from GBK; nothing if it is no GBK, or the platform cannot tell.
std::optional<std::string> utf8_from_gbk(std::string_view text);

/// UTF-8 `text` in GBK; nothing if GBK lacks one of its characters, or the platform cannot tell.
std::optional<std::string> gbk_from_utf8(std::string_view text);

/// UTF-16 text of the library as UTF-8; half a pair of surrogates becomes U+FFFD.
std::string utf8_from_utf16(std::u16string_view text);

/// Every byte taken for the code point of its number: the last resort for bytes of no known
/// encoding, which loses none of them.
std::string utf8_from_bytes(std::string_view text);

/// `text` as it stands if it is UTF-8, else decoded from GBK, else byte by byte.
std::string utf8_text(std::string_view text);

/// The same for a terminal: control characters, and bytes of no known encoding, as "\x1B". A file
/// thus cannot drive the terminal on which its texts are shown.
std::string printable_text(std::string_view text);

/// The name of a file for a terminal: control characters as "\x1B", every other byte as it stands, so
/// that the name can be copied back; on Windows from the ANSI code page to UTF-8.
std::string printable_name(std::string_view name);

/// Terminal cells that UTF-8 `text` takes, Chinese, Japanese and Korean characters two each.
std::size_t display_width(std::string_view text) noexcept;

/// UTF-8 `text` as it stands if it takes at most `most` cells, else cut to that many, "..." included.
std::string clipped(std::string_view text, std::size_t most);

} // namespace tool

#endif
