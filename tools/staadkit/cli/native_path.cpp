#include "cli/native_path.h"

#ifdef _WIN32
#    include "staad/io/windows_path.h"
#endif

namespace tool {

#ifdef _WIN32

std::filesystem::path native_path(const std::string& name)
{
    return STAAD::detail::wide_path(name);
}

std::FILE* open_file(const std::filesystem::path& path, const char* mode)
{
    return _wfopen(path.c_str(), STAAD::detail::wide_text(mode).c_str());
}

#else

std::filesystem::path native_path(const std::string& name)
{
    return name;
}

std::FILE* open_file(const std::filesystem::path& path, const char* mode)
{
    return std::fopen(path.c_str(), mode);
}

#endif

} // namespace tool
