#include "bars.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace STAAD::bench {

void best_time::take(const stopwatch& since)
{
    processor = std::min(processor, processor_seconds() - since.processor);
    wall = std::min(wall, wall_seconds() - since.wall);
}

bool judge(const char* what, double value, double hard, double aim)
{
    const char* verdict = value <= aim ? "aim met" : value <= hard ? "bar kept, aim missed" : "BAR MISSED";
    std::printf("  %-34s %8.2f   bar %5.2f   aim %5.2f   %s\n", what, value, hard, aim, verdict);
    return value <= hard;
}

void print_time(const char* what, const best_time& time, std::size_t bytes)
{
    std::printf("  %-34s %8.3f s processor, %8.3f s wall, %8.1f MB/s\n", what, time.processor, time.wall,
                1e-6 * static_cast<double>(bytes) / time.processor);
}

double megabytes(std::size_t bytes)
{
    return 1e-6 * static_cast<double>(bytes);
}

void give_up(const std::string& what)
{
    std::fprintf(stderr, "error: %s\n", what.c_str());
    std::exit(2);
}

} // namespace STAAD::bench
