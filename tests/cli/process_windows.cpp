#include "process.h"

#include <iostream>
#include <stdexcept>
#include <string_view>

#include <windows.h>

namespace cli_test {
namespace {

std::wstring wide(std::string_view narrow)
{
    const int narrow_size = static_cast<int>(narrow.size());
    const int size = MultiByteToWideChar(CP_ACP, 0, narrow.data(), narrow_size, nullptr, 0);
    std::wstring text(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(CP_ACP, 0, narrow.data(), narrow_size, text.data(), size);
    return text;
}

/// A word as the C runtime of the program will read it back from the command line.
std::wstring quoted(const std::wstring& word)
{
    std::wstring text = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : word) {
        if (c == L'"')
            text.append(backslashes + 1, L'\\'); // those before a quote count twice, and it needs its own
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        text += c;
    }
    return text.append(backslashes, L'\\') + L'"';
}

std::string with_error(const std::string& message, DWORD error)
{
    return message + ": error " + std::to_string(error);
}

/// A handle that the program to be inherits.
class stream {
public:
    stream(const std::string& name, DWORD access, DWORD disposition)
    {
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        handle_ = CreateFileW(wide(name).c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, disposition,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
        if (handle_ == INVALID_HANDLE_VALUE)
            throw std::runtime_error(with_error("cannot open " + name, GetLastError()));
    }
    ~stream() { CloseHandle(handle_); }
    stream(const stream&) = delete;
    stream& operator=(const stream&) = delete;

    HANDLE get() const { return handle_; }

private:
    HANDLE handle_;
};

int exit_code_of(HANDLE process)
{
    DWORD code = 0;
    WaitForSingleObject(process, INFINITE);
    if (GetExitCodeProcess(process, &code) == 0)
        throw std::runtime_error("a program was lost");
    constexpr DWORD first_exception = 0x80000000U;
    return code >= first_exception ? -1 : static_cast<int>(code);
}

/// Of some thousand starts under Wine on a busy machine one fails with ERROR_INTERNAL_ERROR, the new process having
/// ended before it began, and the next one succeeds: such a start is tried a few times, and each failure is printed.
PROCESS_INFORMATION start(const std::string& name, std::wstring command, const std::wstring& folder,
                          STARTUPINFOW& startup)
{
    constexpr int most_tries = 5;
    constexpr DWORD pause = 300; // ms
    for (int tries = 1;; ++tries) {
        PROCESS_INFORMATION process{};
        if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr,
                           folder.empty() ? nullptr : folder.c_str(), &startup, &process))
            return process;
        const DWORD error = GetLastError();
        const std::string message = with_error("cannot start " + name, error);
        if (error != ERROR_INTERNAL_ERROR || tries == most_tries)
            throw std::runtime_error(message);
        std::cerr << message << "; trying again\n";
        Sleep(pause);
    }
}

} // namespace

int run_to_end(std::vector<std::string> words, const process_streams& streams)
{
    std::wstring command;
    for (const std::string& word : words)
        command += quoted(wide(word)) + L' ';
    const stream in(streams.in, GENERIC_READ, OPEN_EXISTING);
    const stream out(streams.out, GENERIC_WRITE, CREATE_ALWAYS);
    const stream err(streams.err, GENERIC_WRITE, CREATE_ALWAYS);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = in.get();
    startup.hStdOutput = out.get();
    startup.hStdError = err.get();
    const PROCESS_INFORMATION process = start(words.front(), command, wide(streams.folder), startup);
    const int code = exit_code_of(process.hProcess);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code;
}

} // namespace cli_test
