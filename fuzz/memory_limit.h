/// Exhaustion of memory within one run of a target, long before the machine's: a list such as "1 TO 9000000",
/// which a reading may well hold, is an input like any other and must not take the time of thousands.
#ifndef FUZZ_MEMORY_LIMIT_H
#define FUZZ_MEMORY_LIMIT_H

#include <cstddef>
#include <new>

namespace fuzz {

/// While it lives, operator new gives `bytes` in all, given back or not, then throws std::bad_alloc. One at a time.
class memory_limit {
public:
    explicit memory_limit(std::size_t bytes) noexcept;
    ~memory_limit();
    memory_limit(const memory_limit&) = delete;
    memory_limit& operator=(const memory_limit&) = delete;
};

/// Far more than any step needs for an input of the usual length.
inline constexpr std::size_t enough_memory = 32U << 20U;

/// Whether `step` came to its end within the limit. ReadLimitError is a std::bad_alloc, too.
template<class Step>
bool within_memory(Step step)
{
    const memory_limit limit(enough_memory);
    try {
        step();
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

} // namespace fuzz

#endif
