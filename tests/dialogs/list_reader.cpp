#include "tests/dialogs/list_reader.h"

#include <commctrl.h>

#include <cstddef>
#include <iterator>
#include <stdexcept>
#include <string>

namespace STAAD {
namespace {

/// One cell as the list writes it: in its own program's memory.
struct cell {
    LVITEMW item;
    wchar_t text[256];
};

class list_of_other_program {
public:
    explicit list_of_other_program(HWND list) : list_(list)
    {
        DWORD id = 0;
        GetWindowThreadProcessId(list, &id);
        program_ = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
        there_ = static_cast<cell*>(VirtualAllocEx(program_, nullptr, sizeof(cell), MEM_COMMIT, PAGE_READWRITE));
        if (there_ == nullptr)
            throw std::runtime_error("no memory in the other program");
    }
    ~list_of_other_program()
    {
        VirtualFreeEx(program_, there_, 0, MEM_RELEASE);
        CloseHandle(program_);
    }
    list_of_other_program(const list_of_other_program&) = delete;
    list_of_other_program& operator=(const list_of_other_program&) = delete;

    int rows() const { return static_cast<int>(SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0)); }
    int columns() const
    {
        const LRESULT header = SendMessageW(list_, LVM_GETHEADER, 0, 0);
        return static_cast<int>(SendMessageW(reinterpret_cast<HWND>(header), HDM_GETITEMCOUNT, 0, 0));
    }
    std::wstring text(int row, int column) const
    {
        cell here{};
        here.item.iSubItem = column;
        here.item.pszText = there_->text;
        here.item.cchTextMax = static_cast<int>(std::size(here.text));
        WriteProcessMemory(program_, there_, &here, sizeof here, nullptr);
        SendMessageW(list_, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&there_->item));
        ReadProcessMemory(program_, there_, &here, sizeof here, nullptr);
        return here.text;
    }

private:
    HWND list_;
    HANDLE program_ = nullptr;
    cell* there_ = nullptr;
};

std::wstring text_of(HWND window)
{
    std::wstring text(1024, L'\0');
    const LRESULT size = SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(size));
    return text;
}

} // namespace

void read_rows(HWND list_view, result_file& result)
{
    const list_of_other_program list(list_view);
    for (int row = 0; row < list.rows(); ++row) {
        std::wstring cells = list.text(row, 0);
        for (int column = 1; column < list.columns(); ++column)
            cells += L" " + list.text(row, column);
        result.line("row", cells);
    }
}

void read_list(const wchar_t* window_class, result_file& result)
{
    const HWND window = FindWindowW(window_class, nullptr);
    result.line("title", text_of(window));
    read_rows(FindWindowExW(window, nullptr, WC_LISTVIEWW, nullptr), result);
    result.line("below", text_of(FindWindowExW(window, nullptr, L"STATIC", nullptr)));
}

} // namespace STAAD
