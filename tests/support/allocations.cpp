#include "tests/support/allocations.h"

#include <cstdlib>
#include <limits>
#include <new>

namespace allocations {
namespace {

constexpr std::size_t never = std::numeric_limits<std::size_t>::max();

std::size_t asked_so_far = 0;
std::size_t given = 0;
std::size_t given_back = 0;
std::size_t bytes_left = never;
std::size_t first_to_fail = never; // of those asked for
std::size_t last_to_fail = never;

bool must_fail(std::size_t size) noexcept
{
    if (asked_so_far >= first_to_fail && asked_so_far <= last_to_fail)
        return true;
    if (bytes_left == never)
        return false;
    if (size > bytes_left)
        return true;
    bytes_left -= size;
    return false;
}

void* allocate(std::size_t size) noexcept
{
    ++asked_so_far;
    void* const memory = must_fail(size) ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (memory != nullptr)
        ++given;
    return memory;
}

void* allocate_or_throw(std::size_t size)
{
    void* const memory = allocate(size);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

void give_back(void* memory) noexcept
{
    if (memory != nullptr)
        ++given_back;
    std::free(memory);
}

} // namespace

std::size_t asked() noexcept
{
    return asked_so_far;
}

std::size_t live() noexcept
{
    return given - given_back;
}

byte_limit::byte_limit(std::size_t bytes) noexcept
{
    bytes_left = bytes;
}

byte_limit::~byte_limit()
{
    bytes_left = never;
}

failing::failing(std::size_t number, failure how) noexcept
{
    first_to_fail = asked_so_far + number;
    last_to_fail = how == failure::once ? first_to_fail : never;
}

failing::~failing()
{
    first_to_fail = never;
}

bool failing::has_failed() const noexcept
{
    return asked_so_far >= first_to_fail;
}

} // namespace allocations

void* operator new(std::size_t size)
{
    return allocations::allocate_or_throw(size);
}

void* operator new[](std::size_t size)
{
    return allocations::allocate_or_throw(size);
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    return allocations::allocate(size);
}

void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    return allocations::allocate(size);
}

void operator delete(void* memory) noexcept
{
    allocations::give_back(memory);
}

void operator delete[](void* memory) noexcept
{
    allocations::give_back(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    allocations::give_back(memory);
}

void operator delete[](void* memory, std::size_t /*size*/) noexcept
{
    allocations::give_back(memory);
}

void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept
{
    allocations::give_back(memory);
}

void operator delete[](void* memory, const std::nothrow_t& /*tag*/) noexcept
{
    allocations::give_back(memory);
}
