/// Memory of a program as operator new gives it: counted, and made to run out on purpose. Whoever links
/// allocations.cpp has its operators in the place of the usual ones. For programs of one thread.
#ifndef STAAD_TESTS_SUPPORT_ALLOCATIONS_H
#define STAAD_TESTS_SUPPORT_ALLOCATIONS_H

#include <cstddef>

namespace allocations {

/// Allocations that were asked for so far.
std::size_t asked() noexcept;
/// Blocks given and not given back.
std::size_t live() noexcept;

/// While it lives, operator new gives `bytes` in all, given back or not, then fails. One at a time.
class byte_limit {
public:
    explicit byte_limit(std::size_t bytes) noexcept;
    ~byte_limit();
    byte_limit(const byte_limit&) = delete;
    byte_limit& operator=(const byte_limit&) = delete;
};

enum class failure { once, from_then_on };

/// While it lives, the allocation of that number, counted from 1, fails. One at a time.
class failing {
public:
    failing(std::size_t number, failure how) noexcept;
    ~failing();
    failing(const failing&) = delete;
    failing& operator=(const failing&) = delete;

    /// Whether that allocation was asked for yet.
    bool has_failed() const noexcept;
};

} // namespace allocations

#endif
