#include "tests/support/temporary_file.h"

#include <atomic>
#include <chrono>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

namespace STAAD {
namespace {

/// A folder of its own: tests of one suite run as many processes at a time.
std::filesystem::path new_folder()
{
    static std::atomic<unsigned> counter{0};
    const auto base = std::filesystem::temp_directory_path();
    for (;;) {
        const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
        const auto folder = base / ("staadkit-test-" + std::to_string(ticks) + "-" + std::to_string(counter++));
        if (std::filesystem::create_directory(folder))
            return folder;
    }
}

} // namespace

temporary_file::temporary_file(std::string_view content) : folder_(new_folder()), name_((folder_ / "deck.std").string())
{
    std::ofstream file(name_, std::ios::binary);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    if (!file.flush())
        throw std::runtime_error("cannot write " + name_);
}

temporary_file::~temporary_file()
{
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::string temporary_file::content() const
{
    std::ifstream file(name_, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace STAAD
