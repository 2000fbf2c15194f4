/// Runs a fuzz target once for every file given, and every file in the folders given: replays findings with any
/// compiler, and makes the seed corpus part of the suite.

#include "fuzz/fuzz_target.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// The files of a folder, its subfolders included, or the one file; sorted.
std::vector<fs::path> files_at(const fs::path& path)
{
    if (!fs::is_directory(path))
        return {path};
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path))
        if (entry.is_regular_file())
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

bool replay(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        std::cerr << path.string() << ": cannot be opened\n";
        return false;
    }
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    std::cout << path.string() << ", " << bytes.size() << " bytes" << std::endl; // a crash must not swallow it
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    std::size_t count = 0;
    for (int i = 1; i < argc; ++i) {
        for (const fs::path& file : files_at(argv[i])) {
            if (!replay(file))
                return 1;
            ++count;
        }
    }
    std::cout << count << " inputs\n";
    return count == 0 ? 1 : 0;
}
