/// Exhausts memory in one run of a target long before the machine's does: a list such as "1 TO 9000000", which
/// a reading may hold, must not take the time of thousands of inputs.
#ifndef FUZZ_MEMORY_LIMIT_H
#define FUZZ_MEMORY_LIMIT_H

#include "tests/support/allocations.h"

#include <cstddef>
#include <new>

namespace fuzz {

/// Far more than any step needs for an input of the usual length.
inline constexpr std::size_t enough_memory = 4U << 20U;

/// Whether `step` ended within the limit. ReadLimitError is a std::bad_alloc, too.
template<class Step>
bool within_memory(Step step)
{
    const allocations::byte_limit limit(enough_memory);
    try {
        step();
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

} // namespace fuzz

#endif
