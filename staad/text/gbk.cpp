// GBK by the tables of the platform.

#include "staad/text/encoding.h"

#include <cstddef>
#include <cstdint>

#ifdef _WIN32
#    include <windows.h>
#elif defined(__linux__) && __has_include(<iconv.h>)
#    define STAADKIT_HAS_ICONV 1
#    include <iconv.h> // part of the C library here: nothing to link
#endif

namespace STAAD {
namespace {

#ifdef _WIN32
constexpr UINT gbk = 936;

/// `text` of a code page as UTF-16; nothing if it is no text of it.
std::optional<std::wstring> decoded(UINT code_page, std::string_view text)
{
    const int bytes = static_cast<int>(text.size());
    const int size = MultiByteToWideChar(code_page, MB_ERR_INVALID_CHARS, text.data(), bytes, nullptr, 0);
    if (size == 0 && bytes != 0)
        return std::nullopt;
    std::wstring wide(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(code_page, MB_ERR_INVALID_CHARS, text.data(), bytes, wide.data(), size);
    return wide;
}

/// UTF-16 `text` in GBK; nothing if GBK lacks one of its characters.
std::optional<std::string> encoded_in_gbk(const std::wstring& text)
{
    const int units = static_cast<int>(text.size());
    BOOL lacks_one = FALSE;
    const int size =
        WideCharToMultiByte(gbk, WC_NO_BEST_FIT_CHARS, text.data(), units, nullptr, 0, nullptr, &lacks_one);
    if (lacks_one != FALSE)
        return std::nullopt;
    std::string narrow(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(gbk, WC_NO_BEST_FIT_CHARS, text.data(), units, narrow.data(), size, nullptr, nullptr);
    return narrow;
}

std::string utf8_from_wide(const std::wstring& text)
{
    return utf8_from_utf16(std::u16string(text.begin(), text.end()));
}
#endif

#ifdef STAADKIT_HAS_ICONV
/// Opened once in a thread: opening loads the conversion tables.
class converter {
public:
    converter(const char* to, const char* from) : handle_(iconv_open(to, from)) {}
    converter(const converter&) = delete;
    converter& operator=(const converter&) = delete;
    ~converter()
    {
        if (is_open())
            iconv_close(handle_);
    }

    std::optional<std::string> convert(std::string_view text)
    {
        if (!is_open())
            return std::nullopt;
        // Two bytes of GBK are at most three of UTF-8, an ASCII byte is one; the other way nothing grows.
        std::string in(text);
        std::string out(2 * in.size(), '\0');
        char* from = in.data();
        char* to = out.data();
        std::size_t from_left = in.size();
        std::size_t to_left = out.size();
        iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        if (iconv(handle_, &from, &from_left, &to, &to_left) == static_cast<std::size_t>(-1))
            return std::nullopt;
        out.resize(out.size() - to_left);
        return out;
    }

private:
    // The failure value of iconv_open is the address -1.
    bool is_open() const noexcept { return reinterpret_cast<std::intptr_t>(handle_) != -1; }

    iconv_t handle_;
};
#endif

} // namespace

std::optional<std::string> utf8_from_gbk(std::string_view text)
{
#if defined(_WIN32)
    const std::optional<std::wstring> wide = decoded(gbk, text);
    return wide ? std::optional(utf8_from_wide(*wide)) : std::nullopt;
#elif defined(STAADKIT_HAS_ICONV)
    thread_local converter decoder("UTF-8", "GBK");
    return decoder.convert(text);
#else
    static_cast<void>(text);
    return std::nullopt;
#endif
}

std::optional<std::string> gbk_from_utf8(std::string_view text)
{
    if (is_ascii(text))
        return std::string(text);
#if defined(_WIN32)
    const std::optional<std::wstring> wide = decoded(CP_UTF8, text);
    return wide ? encoded_in_gbk(*wide) : std::nullopt;
#elif defined(STAADKIT_HAS_ICONV)
    thread_local converter encoder("GBK", "UTF-8");
    return encoder.convert(text);
#else
    return std::nullopt;
#endif
}

} // namespace STAAD
