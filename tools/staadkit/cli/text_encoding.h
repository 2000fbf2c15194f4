/// Texts of the library, and names of files, for a terminal.
#ifndef TOOLS_STAADKIT_CLI_TEXT_ENCODING_H
#define TOOLS_STAADKIT_CLI_TEXT_ENCODING_H

#include "staad/text/encoding.h"

#include <string>
#include <string_view>

namespace tool {

using STAAD::clipped;
using STAAD::display_width;
using STAAD::gbk_from_utf8;
using STAAD::is_ascii;
using STAAD::is_utf8;
using STAAD::printable_text;
using STAAD::utf8_from_gbk;
using STAAD::utf8_from_utf16;
using STAAD::utf8_text;

/// The name of a file for a terminal: control characters as "\x1B", every other byte unchanged, so that the
/// name can be copied; on Windows converted from the ANSI code page to UTF-8.
std::string printable_name(std::string_view name);

} // namespace tool

#endif
