#include "cli/read_input.h"

#include "cli/progress_line.h"
#include "staad/io/native_path.h"

#include <fmt/format.h>

#include <cstddef>
#include <cstdio>
#include <utility>

#ifdef _WIN32
#    include <fcntl.h> // _O_BINARY
#    include <io.h>    // _setmode
#endif

namespace tool {
namespace {

using STAAD::FindingCode;

input_bytes failure(FindingCode code, std::string text)
{
    return {{}, STAAD::make_finding(code, std::move(text))};
}

/// A kind of file that is taken for a deck or a listing by mistake, known by its first bytes.
struct file_kind {
    std::string_view first_bytes;
    const char* name;
};

constexpr file_kind file_kinds[] = {
    {"%PDF-", "a PDF document"},
    {"PK\x03\x04", "a ZIP archive or an Office document"},
    {"\xD0\xCF\x11\xE0", "an Office document"},
    {"{\\rtf", "a Rich Text document"},
    {"<!DOCTYPE", "a web page"},
    {"<html", "a web page"},
    {"\x89PNG", "a picture"},
    {"\xFF\xD8\xFF", "a picture"},
    {"GIF8", "a picture"},
    {{"II*\0", 4}, "a picture"},
    {{"MM\0*", 4}, "a picture"},
    {"\x1F\x8B", "a compressed file"},
    {"7z\xBC\xAF", "a compressed file"},
    {"Rar!", "a compressed file"},
};

std::string kind_of(std::string_view bytes)
{
    if (bytes.find_first_not_of(" \t\r\n") == std::string_view::npos)
        return "empty";
    for (const file_kind& kind : file_kinds) {
        if (bytes.starts_with(kind.first_bytes))
            return kind.name;
    }
    return {};
}

STAAD::FileBytes read_bytes(const std::string& name)
{
    progress_line shown(input_name(name));
    const auto progress = [&shown](std::size_t done, std::size_t total) { shown.update(done, total); };
    if (name != "-")
        return STAAD::read_file(STAAD::native_path(name), progress);
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY);
#endif
    return STAAD::read_stream(stdin, progress);
}

} // namespace

input_bytes read_input(const std::string& name, FindingCode wrong_kind)
{
    STAAD::FileBytes file = read_bytes(name);
    switch (file.outcome) {
    case STAAD::FileBytes::Outcome::missing:
        return failure(FindingCode::file_missing, "the file does not exist");
    case STAAD::FileBytes::Outcome::directory:
        return failure(wrong_kind, "it is a folder, not a file");
    case STAAD::FileBytes::Outcome::refused:
        return failure(FindingCode::file_access, fmt::format("the file cannot be opened: {}", file.error.message()));
    case STAAD::FileBytes::Outcome::unreadable:
        return failure(FindingCode::file_unreadable,
                       fmt::format("it cannot be read to its end: {}", file.error.message()));
    case STAAD::FileBytes::Outcome::read:
        break;
    }
    const std::string kind = kind_of(file.text());
    if (!kind.empty())
        return {{}, kind_error(name, wrong_kind, kind)};
    return {std::move(file), {}};
}

bool is_utf16(std::string_view bytes)
{
    return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
}

bool is_binary(std::string_view bytes)
{
    return !is_utf16(bytes) && bytes.find('\0') != std::string_view::npos;
}

STAAD::Finding kind_error(const std::string& name, STAAD::FindingCode code, const std::string& kind)
{
    return STAAD::make_finding(code, fmt::format("{} is {}", name == "-" ? "standard input" : "the file", kind));
}

std::string input_name(const std::string& name)
{
    return name == "-" ? "<stdin>" : name;
}

} // namespace tool
