/// The form of every fuzz target, one function that takes any bytes and returns, and what these functions
/// share.
///
/// A target ends the program only on a fault; exhausted memory is none (memory_limit.h).
#ifndef FUZZ_FUZZ_TARGET_H
#define FUZZ_FUZZ_TARGET_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

inline std::string_view text_of(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

/// Ends the program if the claim does not hold.
inline void require(bool holds, const char* claim, const std::string& details = {})
{
    if (holds)
        return;
    static_cast<void>(std::fprintf(stderr, "does not hold: %s\n%s\n", claim, details.c_str()));
    std::abort();
}

/// The same of a list of differences, which must be empty.
inline void require_none(const std::vector<std::string>& differences, const char* claim)
{
    std::string listed;
    for (const std::string& difference : differences)
        listed += "  " + difference + '\n';
    require(differences.empty(), claim, listed);
}

} // namespace fuzz

#endif
