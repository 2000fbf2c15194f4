/// The 8-bit texts of files, whose encoding nothing declares: as UTF-8, back to GBK, and for a terminal.
///
/// Decks are written in plain ASCII, UTF-8, GBK or Latin-1. Everything here takes any bytes, is
/// independent of the locale, safe to call from several threads, linear in the text, and throws nothing
/// but std::bad_alloc.
#ifndef STAAD_TEXT_ENCODING_H
#define STAAD_TEXT_ENCODING_H

#include "staad/export.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace STAAD {

/// True if no byte is above 0x7F.
STAAD_API bool is_ascii(std::string_view text) noexcept;

/// True for well-formed UTF-8, plain ASCII included; surrogates and overlong forms are not.
STAAD_API bool is_utf8(std::string_view text) noexcept;

/// True for a text that is more likely Latin-1 than GBK: it has bytes above 0x7F, none of them from 0x80
/// to 0x9F, and each stands as letters and signs of western languages do and Chinese does not:
///
/// - a letter alone, next to an ASCII letter: "Stra\xDFe", "caf\xE9 bar";
/// - two letters between lower-case ASCII ones: "Gr\xF6\xDF" "e";
/// - a sign alone: "20 \xB0" "C", "kN/m\xB2".
///
/// Nearly all characters of GBK are pairs of bytes above 0xA0, so that a text with a Chinese word in it does
/// not pass.
STAAD_API bool looks_like_latin1(std::string_view text) noexcept;

/// `text` decoded from GBK; nothing if it is not GBK, or the platform has no table of it (Windows and Linux
/// have).
STAAD_API std::optional<std::string> utf8_from_gbk(std::string_view text);

/// UTF-8 `text` in GBK; nothing if GBK lacks one of its characters, or the platform has no table of it.
STAAD_API std::optional<std::string> gbk_from_utf8(std::string_view text);

/// UTF-16 text, such as that of PlatformServices, as UTF-8; half a pair of surrogates becomes U+FFFD.
STAAD_API std::string utf8_from_utf16(std::u16string_view text);

/// Every byte becomes the code point of the same number. Works for any bytes, and loses none.
STAAD_API std::string utf8_from_latin1(std::string_view text);

/// `text` unchanged if it is UTF-8; else decoded from Latin-1 if it looks like that; else from GBK; else byte
/// by byte as Latin-1.
STAAD_API std::string utf8_text(std::string_view text);

/// The same for a terminal, safe against escape sequences in a file: control characters, and bytes of no known
/// encoding, are shown as "\x1B" and so on.
STAAD_API std::string printable_text(std::string_view text);

/// Control characters as "\x1B" and so on; everything else unchanged, bytes of no known encoding included.
STAAD_API std::string escape_controls(std::string_view text);

/// Terminal cells that UTF-8 `text` takes, Chinese, Japanese and Korean characters two each.
STAAD_API std::size_t display_width(std::string_view text) noexcept;

/// UTF-8 `text` unchanged if it takes at most `most` cells, else cut to that many, "..." included. `most` is 3
/// or more.
STAAD_API std::string clipped(std::string_view text, std::size_t most);

} // namespace STAAD

#endif
