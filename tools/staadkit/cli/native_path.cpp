#include "cli/native_path.h"

#include <array>

namespace tool {

std::FILE* open_file(const std::filesystem::path& path, const char* mode)
{
#ifdef _WIN32
    const std::string letters = mode;
    return _wfopen(path.c_str(), std::wstring(letters.begin(), letters.end()).c_str());
#else
    return std::fopen(path.c_str(), mode);
#endif
}

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
