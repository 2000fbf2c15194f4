/// Times measured in the same run, and their verdicts.
#ifndef STAADKIT_BENCHMARKS_BARS_H
#define STAADKIT_BENCHMARKS_BARS_H

#include "measure.h"

#include <cstddef>
#include <limits>
#include <string>

namespace STAAD::bench {

struct stopwatch {
    double processor = processor_seconds();
    double wall = wall_seconds();
};

/// The best of several measurements, of processor time and of wall time apart.
struct best_time {
    double processor = std::numeric_limits<double>::infinity();
    double wall = std::numeric_limits<double>::infinity();

    void take(const stopwatch& since);
};

/// Prints a figure with its bars; true if the hard bar is met.
bool judge(const char* what, double value, double hard, double aim);
/// Prints times and bytes per second.
void print_time(const char* what, const best_time& time, std::size_t bytes);

double megabytes(std::size_t bytes);

/// Prints why nothing can be measured, and ends the program.
[[noreturn]] void give_up(const std::string& what);

/// Memory resident while `work` runs, beyond what was there before.
template<class Work>
std::size_t peak_bytes(Work work)
{
    give_back_free_memory();
    if (!restart_peak_resident_bytes())
        give_up("the system does not let us measure the peak of resident memory");
    const std::size_t before = resident_bytes();
    work();
    return peak_resident_bytes() - before;
}

} // namespace STAAD::bench

#endif
