#include "cli/read_input.h"

#include "cli/native_path.h"
#include "cli/progress_line.h"

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string_view>
#include <system_error>
#include <utility>

#ifdef _WIN32
#    include <fcntl.h> // _O_BINARY
#    include <io.h>    // _setmode
#endif

namespace tool {
namespace {

using STAAD::FindingCode;

struct close_file {
    void operator()(std::FILE* file) const noexcept
    {
        static_cast<void>(std::fclose(file)); // nothing was written, so nothing can be lost
    }
};

input_bytes failure(FindingCode code, std::string text)
{
    return {{}, STAAD::make_finding(code, std::move(text))};
}

/// ": Permission denied"
std::string reason(int error)
{
    return ": " + std::error_code(error, std::generic_category()).message();
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

std::string kind_of(const std::string& bytes)
{
    if (bytes.find_first_not_of(" \t\r\n") == std::string::npos)
        return "empty";
    for (const file_kind& kind : file_kinds) {
        if (bytes.starts_with(kind.first_bytes))
            return kind.name;
    }
    return {};
}

/// `size` is that of the file; 0 if it has none, as a pipe.
input_bytes read_stream(std::FILE* stream, const std::string& name, std::size_t size)
{
    input_bytes input;
    progress_line shown(input_name(name));
    if (!read_to_end(stream, input.bytes, [&shown, size](std::size_t done) { shown.update(done, size); }))
        return failure(FindingCode::file_unreadable, "it cannot be read to its end" + reason(errno));
    return input;
}

input_bytes read_standard_input()
{
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY);
#endif
    return read_stream(stdin, "-", 0);
}

input_bytes read_file(const std::string& name)
{
    std::error_code no_size;
    const std::uintmax_t size = std::filesystem::file_size(native_path(name), no_size);
    errno = 0;
    const std::unique_ptr<std::FILE, close_file> file(open_file(native_path(name), "rb"));
    if (file)
        return read_stream(file.get(), name, no_size ? 0 : static_cast<std::size_t>(size));
    if (errno == ENOENT)
        return failure(FindingCode::file_missing, "the file does not exist");
    return failure(FindingCode::file_access, "the file cannot be opened" + reason(errno));
}

} // namespace

input_bytes read_input(const std::string& name, FindingCode wrong_kind)
{
    std::error_code no_file;
    if (name != "-" && std::filesystem::is_directory(native_path(name), no_file))
        return {{}, STAAD::make_finding(wrong_kind, "it is a folder, not a file")};
    input_bytes input = name == "-" ? read_standard_input() : read_file(name);
    if (input.error)
        return input;
    const std::string kind = kind_of(input.bytes);
    if (!kind.empty())
        return {{}, kind_error(name, wrong_kind, kind)};
    return input;
}

bool is_utf16(const std::string& bytes)
{
    return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
}

bool is_binary(const std::string& bytes)
{
    return !is_utf16(bytes) && bytes.find('\0') != std::string::npos;
}

STAAD::Finding kind_error(const std::string& name, STAAD::FindingCode code, const std::string& kind)
{
    return STAAD::make_finding(code, (name == "-" ? "standard input is " : "the file is ") + kind);
}

std::string input_name(const std::string& name)
{
    return name == "-" ? "<stdin>" : name;
}

} // namespace tool
