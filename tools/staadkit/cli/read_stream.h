/// All the bytes of an open stream.
#ifndef TOOLS_STAADKIT_CLI_READ_STREAM_H
#define TOOLS_STAADKIT_CLI_READ_STREAM_H

#include <array>
#include <cstdio>
#include <string>

namespace tool {

/// Appends what is left of `stream` to `text`; false, and errno says why, if it cannot be read to its end.
inline bool read_to_end(std::FILE* stream, std::string& text)
{
    std::array<char, 1U << 16U> block;
    for (std::size_t count = block.size(); count == block.size();) {
        count = std::fread(block.data(), 1, block.size(), stream);
        text.append(block.data(), count);
    }
    return std::ferror(stream) == 0;
}

} // namespace tool

#endif
