#include "measure.h"

#include <charconv>
#include <chrono>
#include <fstream>
#include <limits>
#include <string>

#include <malloc.h> // mallinfo2: the allocator's own account of live memory; mallopt, malloc_trim
#include <time.h>   // clock_gettime: processor time of the process, which std::clock rounds

namespace STAAD::bench {
namespace {

bool separates(char c)
{
    return c == ' ' || c == '\n' || c == ';' || c == '\r';
}

bool begins_number(const char* at, const char* end)
{
    if (*at == '-' && at + 1 < end)
        ++at;
    return (*at >= '0' && *at <= '9') || *at == '.';
}

/// A "Vm...: 1234 kB" line of the process status.
std::size_t status_bytes(std::string_view name)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.compare(0, name.size(), name) == 0)
            return static_cast<std::size_t>(std::stoull(line.substr(name.size() + 1))) * 1024;
    }
    return 0;
}

} // namespace

number_pass scan_numbers(std::string_view text)
{
    number_pass pass;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at < end) {
        if (separates(*at)) {
            ++at;
            continue;
        }
        if (begins_number(at, end)) {
            double value = 0.0;
            at = std::from_chars(at, end, value).ptr;
            pass.sum += value;
            ++pass.count;
        }
        while (at < end && !separates(*at))
            ++at;
    }
    return pass;
}

double processor_seconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

double wall_seconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

std::size_t heap_bytes()
{
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

std::size_t resident_bytes()
{
    return status_bytes("VmRSS:");
}

std::size_t peak_resident_bytes()
{
    return status_bytes("VmHWM:");
}

bool restart_peak_resident_bytes()
{
    std::ofstream file("/proc/self/clear_refs");
    file << '5';
    return static_cast<bool>(file.flush());
}

void set_memory_state(memory_state state)
{
    const bool keep = state == memory_state::kept;
    mallopt(M_MMAP_THRESHOLD, keep ? 1 << 30 : 128 << 10);
    mallopt(M_TRIM_THRESHOLD, keep ? std::numeric_limits<int>::max() : 128 << 10);
    malloc_trim(0);
}

void give_back_free_memory()
{
    malloc_trim(0);
}

} // namespace STAAD::bench
