#include "fuzz/memory_limit.h"

#include <cstdlib>

namespace {

// Targets run in one thread.
bool is_limited = false;
std::size_t bytes_left = 0;

void* allocate(std::size_t size) noexcept
{
    if (is_limited) {
        if (size > bytes_left)
            return nullptr;
        bytes_left -= size;
    }
    return std::malloc(size == 0 ? 1 : size);
}

void* allocate_or_throw(std::size_t size)
{
    void* const memory = allocate(size);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

} // namespace

namespace fuzz {

memory_limit::memory_limit(std::size_t bytes) noexcept
{
    bytes_left = bytes;
    is_limited = true;
}

memory_limit::~memory_limit()
{
    is_limited = false;
}

} // namespace fuzz

void* operator new(std::size_t size)
{
    return allocate_or_throw(size);
}

void* operator new[](std::size_t size)
{
    return allocate_or_throw(size);
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    return allocate(size);
}

void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    return allocate(size);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, const std::nothrow_t& /*tag*/) noexcept
{
    std::free(memory);
}
