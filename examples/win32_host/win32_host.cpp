// A Windows program that builds a project from a .std file and lists its storeys in a window, the highest on top as
// in an elevation. Without a file name it asks for one; the library itself asks for the listing of forces if
// there is none beside the model. Escape closes the window. Its words are Chinese on a Chinese desktop.
//
//     win32_host [FILE.std]

#include "staad/host/platform_services.h"
#include "staad/storeys/layered_project.h"

#include <windows.h>
// after windows.h, which it needs
#include <commctrl.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cwchar>
#include <string>
#include <vector>

namespace {

using STAAD::StaadProProject_layered;

struct column {
    const wchar_t* title;
    int width;
};

struct words {
    column columns[6];
    const wchar_t* load_cases;
    const wchar_t* no_storeys;
    const char16_t* model_files;
};

const words english = {{{L"Storey", 80},
                        {L"Base (m)", 100},
                        {L"Height (m)", 100},
                        {L"Members", 100},
                        {L"With forces", 100},
                        {L"Shells", 100}},
                       L"Load cases:",
                       L"There are no storeys in this file:",
                       u"Models (*.std)|*.std|All files (*.*)|*.*||"};

const words chinese = {{{L"\u697C\u5C42", 80},                     // storey
                        {L"\u5E95\u6807\u9AD8 (m)", 100},          // height of its base
                        {L"\u5C42\u9AD8 (m)", 100},                // its own height
                        {L"\u6784\u4EF6\u6570", 100},              // number of members
                        {L"\u6709\u5185\u529B\u7684", 100},        // of those with forces
                        {L"\u677F\u5899\u5355\u5143\u6570", 100}}, // number of plate and wall elements
                       L"\u8377\u8F7D\u5DE5\u51B5\uFF1A",
                       // no storeys in this file
                       L"\u8BE5\u6587\u4EF6\u4E2D\u6CA1\u6709\u697C\u5C42\uFF1A",
                       // model files, all files
                       u"\u6A21\u578B\u6587\u4EF6(*.std)|*.std|\u6240\u6709\u6587\u4EF6(*.*)|*.*||"};

const words& words_of_desktop()
{
    return PRIMARYLANGID(GetUserDefaultUILanguage()) == LANG_CHINESE ? chinese : english;
}

/// The library's texts are in the ANSI code page: file names because narrow names on Windows are, texts of a
/// model because they are passed on unchanged from the file.
std::wstring wide(const std::string& narrow)
{
    const int narrow_size = static_cast<int>(narrow.size());
    const int size = MultiByteToWideChar(CP_ACP, 0, narrow.data(), narrow_size, nullptr, 0);
    std::wstring text(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(CP_ACP, 0, narrow.data(), narrow_size, text.data(), size);
    return text;
}

std::wstring file_name(const std::string& path)
{
    const std::wstring text = wide(path); // in the narrow one "\\" may be the second half of a character
    return text.substr(text.find_last_of(L"\\/") + 1);
}

std::wstring metres(double millimetres)
{
    wchar_t text[64];
    std::swprintf(text, 64, L"%.3f", millimetres / 1000.0);
    return text;
}

std::string ask_for_model()
{
    constexpr unsigned file_must_exist = 0x1000;
    constexpr unsigned hide_read_only = 0x0004;
    return STAAD::GetPlatformServices().AskForFile({words_of_desktop().model_files, file_must_exist | hide_read_only});
}

std::vector<std::wstring> cells_of(const STAAD::StoreyLayer& storey, std::size_t number)
{
    const auto with_forces = std::count_if(storey.members.begin(), storey.members.end(),
                                           [](const STAAD::LayerMember& one) { return !one.forces.records.empty(); });
    return {std::to_wstring(number),      metres(storey.base),
            metres(storey.height),        std::to_wstring(storey.members.size()),
            std::to_wstring(with_forces), std::to_wstring(storey.shells.size())};
}

std::wstring list_of_load_cases(const StaadProProject_layered& project)
{
    std::wstring text = words_of_desktop().load_cases;
    for (const auto& [number, load_case] : project.load_cases)
        text += L"  " + std::to_wstring(number) + L" " + wide(load_case.title);
    return text;
}

/// A list of storeys with a line of load cases below it.
class storey_window {
public:
    storey_window(HINSTANCE instance, const std::wstring& title, const StaadProProject_layered& project)
    {
        window_ = create(instance, title);
        list_ = add_child(WC_LISTVIEWW, L"", LVS_REPORT | LVS_SINGLESEL | WS_TABSTOP);
        load_cases_ = add_child(L"STATIC", list_of_load_cases(project).c_str(), SS_LEFT | SS_NOPREFIX);
        fill_columns();
        fill_rows(project);
        place_children();
    }

    /// Shows the window until it is closed.
    void run() const
    {
        ShowWindow(window_, SW_SHOWDEFAULT);
        SetFocus(list_);
        MSG message;
        while (GetMessageW(&message, nullptr, 0, 0) > 0) {
            if (IsDialogMessageW(window_, &message)) // passes Escape on to the window, among others
                continue;
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }

private:
    HWND create(HINSTANCE instance, const std::wstring& title)
    {
        WNDCLASSEXW kind{};
        kind.cbSize = sizeof kind;
        kind.lpfnWndProc = on_message;
        kind.hInstance = instance;
        kind.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512)); // the arrow
        kind.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
        kind.lpszClassName = L"storeys";
        RegisterClassExW(&kind);
        return CreateWindowExW(0, kind.lpszClassName, title.c_str(), WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT,
                               640, 480, nullptr, nullptr, instance, this);
    }

    HWND add_child(const wchar_t* kind, const wchar_t* text, DWORD style) const
    {
        const HWND child = CreateWindowExW(0, kind, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, window_, nullptr,
                                           nullptr, nullptr);
        SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), TRUE);
        return child;
    }

    void fill_columns() const
    {
        int position = 0;
        for (const column& one : words_of_desktop().columns) {
            std::wstring title = one.title;
            LVCOLUMNW entry{};
            entry.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
            entry.fmt = LVCFMT_RIGHT;
            entry.cx = one.width;
            entry.pszText = title.data();
            SendMessageW(list_, LVM_INSERTCOLUMNW, static_cast<WPARAM>(position++), reinterpret_cast<LPARAM>(&entry));
        }
    }

    void fill_rows(const StaadProProject_layered& project) const
    {
        int row = 0;
        for (std::size_t number = project.layers.size(); number > 0; --number)
            add_row(row++, cells_of(project.layers[number - 1], number));
    }

    void add_row(int row, std::vector<std::wstring> cells) const
    {
        LVITEMW item{};
        item.mask = LVIF_TEXT;
        item.iItem = row;
        for (std::wstring& cell : cells) {
            item.pszText = cell.data();
            SendMessageW(list_, item.iSubItem == 0 ? LVM_INSERTITEMW : LVM_SETITEMW, 0,
                         reinterpret_cast<LPARAM>(&item));
            ++item.iSubItem;
        }
    }

    void place_children() const
    {
        constexpr int line = 40;
        constexpr int margin = 8;
        RECT inside{};
        GetClientRect(window_, &inside);
        MoveWindow(list_, 0, 0, inside.right, inside.bottom - line, TRUE);
        MoveWindow(load_cases_, margin, inside.bottom - line + margin, inside.right - 2 * margin, line - margin, TRUE);
    }

    static LRESULT CALLBACK on_message(HWND window, UINT message, WPARAM w, LPARAM l)
    {
        if (message == WM_NCCREATE) {
            const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(l);
            SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
        }
        const auto* self = reinterpret_cast<const storey_window*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        switch (message) {
        case WM_SIZE:
            self->place_children();
            return 0;
        case WM_SETFOCUS:
            SetFocus(self->list_);
            return 0;
        case WM_COMMAND:
            if (LOWORD(w) == IDCANCEL) // Escape
                DestroyWindow(window);
            return 0;
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
        default:
            return DefWindowProcW(window, message, w, l);
        }
    }

    HWND window_ = nullptr;
    HWND list_ = nullptr;
    HWND load_cases_ = nullptr;
};

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int)
{
    const std::string path = __argc > 1 ? __argv[1] : ask_for_model();
    if (path.empty())
        return 2;

    StaadProProject_layered project;
    if (!project.BuidFromFile(path.c_str(), 1)) {
        const std::wstring text = words_of_desktop().no_storeys + (L"\n" + wide(path));
        MessageBoxW(nullptr, text.c_str(), L"win32_host", MB_OK | MB_ICONEXCLAMATION);
        return 1;
    }

    const INITCOMMONCONTROLSEX needed = {sizeof needed, ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&needed);
    storey_window(instance, file_name(path), project).run();
    return 0;
}
