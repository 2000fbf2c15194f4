/// Clocks, memory figures and the yardsticks that readings are measured against.
#ifndef STAADKIT_BENCHMARKS_MEASURE_H
#define STAADKIT_BENCHMARKS_MEASURE_H

#include <cstddef>
#include <string_view>

namespace STAAD::bench {

/// Reads every number of `text` with std::from_chars: every word that begins like one. Words are
/// divided by blanks, line ends and ";".
struct number_pass {
    std::size_t count = 0;
    double sum = 0.0;
};
number_pass scan_numbers(std::string_view text);

/// Seconds of processor time, user and system, that this process has taken.
double processor_seconds();
/// Seconds of a steady clock.
double wall_seconds();

/// Bytes of live heap memory, allocator overhead included.
std::size_t heap_bytes();
/// Bytes of memory resident now, and at the most so far.
std::size_t resident_bytes();
std::size_t peak_resident_bytes();
/// Restarts peak_resident_bytes() from now; false if the system does not allow it.
bool restart_peak_resident_bytes();

/// Where work gets its memory. By default the allocator keeps the memory of a small model and returns that of a
/// large one, so that only large models need fresh pages; growth is measured with both sizes in the same state.
enum class memory_state {
    kept, ///< the pages of earlier work are still there
    fresh ///< every page comes from the system
};
void set_memory_state(memory_state state);
void give_back_free_memory();

} // namespace STAAD::bench

#endif
