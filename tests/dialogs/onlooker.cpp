#include "tests/dialogs/onlooker.h"

#include <windows.h>
// after it
#include <dlgs.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

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

std::wstring class_of(HWND window)
{
    std::wstring name(256, L'\0');
    name.resize(static_cast<std::size_t>(GetClassNameW(window, name.data(), static_cast<int>(name.size()))));
    return name;
}

std::wstring text_of(HWND window)
{
    std::wstring text(4096, L'\0');
    const LRESULT size = SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(size));
    return text;
}

constexpr DWORD any_program = 0;

struct dialog_search {
    DWORD program;
    HWND found;
};

BOOL CALLBACK look_at_window(HWND window, LPARAM data)
{
    auto* search = reinterpret_cast<dialog_search*>(data);
    DWORD program = 0;
    GetWindowThreadProcessId(window, &program);
    const bool belongs = search->program == any_program || search->program == program;
    if (!belongs || !IsWindowVisible(window) || class_of(window) != L"#32770")
        return TRUE;
    search->found = window;
    return FALSE;
}

/// The dialog in sight, or null.
HWND dialog_of(DWORD program)
{
    dialog_search search{program, nullptr};
    EnumWindows(look_at_window, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

BOOL CALLBACK add_to_list(HWND window, LPARAM list)
{
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

std::vector<HWND> parts_of(HWND dialog)
{
    std::vector<HWND> parts;
    EnumChildWindows(dialog, add_to_list, reinterpret_cast<LPARAM>(&parts));
    return parts;
}

void describe_icon(HWND part, result_file& result)
{
    const auto icon = reinterpret_cast<HICON>(SendMessageW(part, STM_GETICON, 0, 0));
    if (icon == LoadIconW(nullptr, IDI_EXCLAMATION))
        result.line("icon exclamation");
    else if (icon != nullptr)
        result.line("icon other");
}

void describe_static(HWND part, result_file& result)
{
    if ((GetWindowLongW(part, GWL_STYLE) & SS_TYPEMASK) == SS_ICON)
        describe_icon(part, result);
    else
        result.line("text", text_of(part));
}

std::string button(HWND part)
{
    switch (GetDlgCtrlID(part)) {
    case IDOK:
        return "button OK";
    case IDYES:
        return "button yes";
    case IDNO:
        return "button no";
    default:
        return "button other";
    }
}

/// The visible parts of one window class.
std::vector<HWND> parts_of(HWND dialog, const wchar_t* kind)
{
    std::vector<HWND> parts = parts_of(dialog);
    const auto is_other = [kind](HWND part) { return !IsWindowVisible(part) || class_of(part) != kind; };
    parts.erase(std::remove_if(parts.begin(), parts.end(), is_other), parts.end());
    return parts;
}

void describe_message_box(HWND dialog, result_file& result)
{
    result.line("caption", text_of(dialog));
    for (const HWND part : parts_of(dialog, L"Static"))
        describe_static(part, result);
    for (const HWND part : parts_of(dialog, L"Button"))
        result.line(button(part));
}

void describe_filters(HWND list, result_file& result)
{
    const LRESULT count = SendMessageW(list, CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        const WPARAM index = static_cast<WPARAM>(i);
        std::wstring text(static_cast<std::size_t>(SendMessageW(list, CB_GETLBTEXTLEN, index, 0)) + 1, L'\0');
        SendMessageW(list, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data()));
        text.pop_back();
        result.line(SendMessageW(list, CB_GETCURSEL, 0, 0) == i ? "filter in use" : "filter", text);
    }
}

/// Where the name is typed in a file dialog; null if there is none.
HWND name_field(HWND dialog)
{
    const HWND combined = GetDlgItem(dialog, cmb13); // with a list of earlier names
    return combined != nullptr ? combined : GetDlgItem(dialog, edt1);
}

void describe_file_dialog(HWND dialog, result_file& result)
{
    describe_filters(GetDlgItem(dialog, cmb1), result);
    const HWND name = name_field(dialog);
    result.line(name != nullptr ? "initial name" : "no field for a name", text_of(name));
    result.line(IsWindowVisible(GetDlgItem(dialog, chx1)) ? "read-only box" : "no read-only box");
}

void describe(HWND dialog, result_file& result)
{
    result.line(GetWindow(dialog, GW_OWNER) == nullptr ? "dialog without owner" : "dialog with owner");
    if (GetDlgItem(dialog, cmb1) != nullptr)
        describe_file_dialog(dialog, result);
    else
        describe_message_box(dialog, result);
    result.line("shown");
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

onlooker::onlooker(result_file& result) : result_(result), thread_([this] { look(); }) {}

onlooker::~onlooker()
{
    finished_ = true;
    thread_.join();
}

void onlooker::look() const
{
    constexpr std::chrono::milliseconds interval{20};
    while (!finished_) {
        if (const HWND dialog = dialog_of(GetCurrentProcessId())) {
            describe(dialog, result_);
            return;
        }
        std::this_thread::sleep_for(interval);
    }
}

void read_file_dialog(result_file& result)
{
    result.line("name", text_of(name_field(dialog_of(any_program))));
}

} // namespace STAAD
