/// Names of files as the command line gives them, for the standard library's file functions.
#ifndef TOOLS_STAADKIT_CLI_NATIVE_PATH_H
#define TOOLS_STAADKIT_CLI_NATIVE_PATH_H

#include <cstdio>
#include <filesystem>
#include <string>

namespace tool {

/// `name` as a path; on Windows names are in the ANSI code page, and may be long.
std::filesystem::path native_path(const std::string& name);

/// As std::fopen.
std::FILE* open_file(const std::filesystem::path& path, const char* mode);

} // namespace tool

#endif
