/// Narrow names of files on Windows, where the system itself takes wide ones. Knows no model.
#ifndef STAAD_IO_WINDOWS_PATH_H
#define STAAD_IO_WINDOWS_PATH_H

#ifdef _WIN32

#    include <string>
#    include <string_view>

namespace STAAD::detail {

/// Text in the ANSI code page, in which narrow names are, as UTF-16.
std::wstring wide_text(std::string_view narrow);

/// UTF-16 text in the ANSI code page; characters that it lacks become "?".
std::string narrow_text(std::wstring_view wide);

/// `path` as the system needs it, in the form for long paths if it is long.
std::wstring long_path(std::wstring path);

/// The same for a narrow name.
std::wstring wide_path(std::string_view narrow);

} // namespace STAAD::detail

#endif

#endif
