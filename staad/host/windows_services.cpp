#include "staad/host/windows_services.h"

#ifdef _WIN32

#    include "staad/io/open_file.h"
#    include "staad/io/windows_path.h"

#    include <windows.h>
// after it
#    include <commdlg.h>

#    include <algorithm>

namespace STAAD::detail {
namespace {

std::wstring wide(const std::u16string& text)
{
    return {text.begin(), text.end()}; // both are UTF-16 here
}

UINT box_style(const PlatformServices::Message& message)
{
    const UINT buttons = message.buttons == PlatformServices::Buttons::YesNo ? MB_YESNO : MB_OK;
    const UINT icon = message.icon == PlatformServices::Icon::Exclamation ? MB_ICONEXCLAMATION : 0;
    return buttons | icon;
}

/// Restores the current folder, which the file dialog changes to that of the file chosen.
class kept_folder {
public:
    kept_folder() : folder_(GetCurrentDirectoryW(0, nullptr), L'\0')
    {
        folder_.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder_.size()), folder_.data()));
    }
    ~kept_folder() { SetCurrentDirectoryW(folder_.c_str()); }
    kept_folder(const kept_folder&) = delete;
    kept_folder& operator=(const kept_folder&) = delete;

private:
    std::wstring folder_;
};

/// A name that the ANSI code page can hold: the short name if it lacks characters of the long one.
std::string narrow_path(const std::wstring& path)
{
    std::string narrow = narrow_text(path);
    if (wide_text(narrow) == path)
        return narrow;
    std::wstring short_path(GetShortPathNameW(path.c_str(), nullptr, 0), L'\0');
    if (short_path.empty())
        return narrow;
    short_path.resize(GetShortPathNameW(path.c_str(), short_path.data(), static_cast<DWORD>(short_path.size())));
    return narrow_text(short_path);
}

} // namespace

PlatformServices::Answer windows_services::ShowMessage(const Message& message)
{
    const int pressed =
        MessageBoxW(nullptr, wide(message.text).c_str(), wide(message.caption).c_str(), box_style(message));
    if (message.buttons != Buttons::YesNo)
        return Answer::Ok;
    return pressed == IDYES ? Answer::Yes : Answer::No;
}

std::string windows_services::AskForFile(const FileQuestion& question)
{
    constexpr std::size_t longest_path = 32768;
    const kept_folder keep;
    std::wstring filter = wide(question.filter);
    std::replace(filter.begin(), filter.end(), L'|', L'\0'); // the list must end in two zero characters
    std::wstring path(longest_path, L'\0');
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.lpstrFilter = filter.c_str();
    dialog.nFilterIndex = 1;
    dialog.lpstrFile = path.data();
    dialog.nMaxFile = static_cast<DWORD>(path.size());
    dialog.Flags = question.flags;
    if (GetOpenFileNameW(&dialog) == 0)
        return {};
    path.resize(path.find(L'\0'));
    return narrow_path(path);
}

bool windows_services::CanRead(const char* path)
{
    return can_read(path);
}

} // namespace STAAD::detail

#endif
