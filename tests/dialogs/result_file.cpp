#include "tests/dialogs/result_file.h"

#include <windows.h>

#include <cstddef>

namespace STAAD {
namespace {

std::string utf8(std::wstring_view text)
{
    const int wide_size = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), wide_size, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), wide_size, narrow.data(), size, nullptr, nullptr);
    return narrow;
}

} // namespace

result_file::result_file(const char* path) : file_(path, std::ios::binary) {}

void result_file::line(const std::string& text)
{
    file_ << text << std::endl;
}

void result_file::line(const std::string& text, std::wstring_view more)
{
    std::wstring in_one_line;
    for (const wchar_t letter : more)
        in_one_line += letter == L'\n' ? std::wstring(L" / ") : std::wstring(1, letter);
    line(text + " [" + utf8(in_one_line) + "]");
}

} // namespace STAAD
