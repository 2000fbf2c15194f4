#include "cli/text_encoding.h"

#ifdef _WIN32
#    include <windows.h>
#endif

namespace tool {

#ifdef _WIN32
std::string printable_name(std::string_view name)
{
    const int bytes = static_cast<int>(name.size());
    const int size = MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, name.data(), bytes, nullptr, 0);
    if (size == 0)
        return STAAD::escape_controls(name);
    std::u16string wide(static_cast<std::size_t>(size), u'\0');
    static_assert(sizeof(wchar_t) == sizeof(char16_t));
    MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, name.data(), bytes, reinterpret_cast<wchar_t*>(wide.data()),
                        size);
    return STAAD::escape_controls(utf8_from_utf16(wide));
}
#else
std::string printable_name(std::string_view name)
{
    return STAAD::escape_controls(name);
}
#endif

} // namespace tool
