/// Files by their names on the command line.
#ifndef TOOLS_STAADKIT_CLI_NATIVE_PATH_H
#define TOOLS_STAADKIT_CLI_NATIVE_PATH_H

#include "staad/io/native_path.h"

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>

namespace tool {

using STAAD::native_path;

/// As std::fopen.
std::FILE* open_file(const std::filesystem::path& path, const char* mode);

/// Appends what is left of `stream` to `text`; false, and errno says why, if it cannot be read to its end. Calls
/// `progress`, if there is one, with the size of `text` after every block.
bool read_to_end(std::FILE* stream, std::string& text, const std::function<void(std::size_t)>& progress = {});

} // namespace tool

#endif
