#include "cli/native_path.h"

#include <array>

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

bool read_to_end(std::FILE* stream, std::string& text, const std::function<void(std::size_t)>& progress)
{
    std::array<char, 1U << 16U> block;
    for (std::size_t count = block.size(); count == block.size();) {
        count = std::fread(block.data(), 1, block.size(), stream);
        text.append(block.data(), count);
        if (progress)
            progress(text.size());
    }
    return std::ferror(stream) == 0;
}

} // namespace tool
