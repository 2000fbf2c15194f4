#include "staad/io/windows_path.h"

#ifdef _WIN32

#    include <windows.h>

namespace STAAD::detail {
namespace {

/// Longer paths are refused without the prefix for long paths; for folders the limit is a little lower than for
/// files.
constexpr std::size_t longest_plain_path = 247;

/// The whole path from the drive on, with "\" between its parts: what follows the prefix is taken
/// as it is. Empty if the system refuses it.
std::wstring full_path(const std::wstring& path)
{
    const DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    std::wstring full(size, L'\0');
    full.resize(GetFullPathNameW(path.c_str(), size, full.data(), nullptr));
    return full;
}

} // namespace

std::wstring wide_text(std::string_view narrow)
{
    const int narrow_size = static_cast<int>(narrow.size());
    const int size = MultiByteToWideChar(CP_ACP, 0, narrow.data(), narrow_size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(CP_ACP, 0, narrow.data(), narrow_size, wide.data(), size);
    return wide;
}

std::string narrow_text(std::wstring_view wide)
{
    // No look-alike letters: they might name another file. UTF-8 has all letters and refuses the flag.
    const DWORD flags = GetACP() == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS;
    const int wide_size = static_cast<int>(wide.size());
    const int size = WideCharToMultiByte(CP_ACP, flags, wide.data(), wide_size, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, flags, wide.data(), wide_size, narrow.data(), size, nullptr, nullptr);
    return narrow;
}

std::wstring long_path(std::wstring path)
{
    const std::wstring full = full_path(path);
    if (full.size() <= longest_plain_path || full.starts_with(L"\\\\?\\"))
        return path;
    return full.starts_with(L"\\\\") ? L"\\\\?\\UNC" + full.substr(1) : L"\\\\?\\" + full;
}

std::wstring wide_path(std::string_view narrow)
{
    return long_path(wide_text(narrow));
}

} // namespace STAAD::detail

#endif
