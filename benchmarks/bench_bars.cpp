/// Measures readings of large decks against yardsticks taken in the same run, and judges them.
///
/// Every figure with a bar is processor time of one thread, user and system, without that of other programs:
/// the best of five warm rounds in which reading, number pass and copy alternate. Memory is measured in a
/// process of its own, which also does the cold run.
#include "bars.h"
#include "frame_deck.h"
#include "measure.h"

#include "staad/model/sd_reader.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <memory>
#include <string>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace STAAD::bench;
using STAAD::SdReader;

constexpr int rounds = 5;

[[noreturn]] void give_up(const std::string& what)
{
    std::fprintf(stderr, "bench_bars: error: %s\n", what.c_str());
    std::exit(2);
}

/// Results are added here, so that no optimiser can remove the work.
volatile double sink = 0.0;

struct deck_times {
    best_time read;
    best_time numbers;
    best_time copy;
    std::size_t number_count = 0;
};

deck_times time_deck(const std::string& deck)
{
    deck_times times;
    for (int round = 0; round <= rounds; ++round) { // round 0 warms up
        SdReader model;
        const stopwatch read;
        if (!model.ReadSDDataFromText(deck))
            give_up("the deck gave no model");
        if (round > 0)
            times.read.take(read);
        const stopwatch numbers;
        const number_pass pass = scan_numbers(deck);
        if (round > 0)
            times.numbers.take(numbers);
        sink = pass.sum;
        times.number_count = pass.count;
        const stopwatch copying;
        const SdReader copy(model);
        if (round > 0)
            times.copy.take(copying);
        sink = static_cast<double>(copy.beams.size());
    }
    return times;
}

/// Processor time per member of a warm reading: best of five rounds of at least 0.2 s each.
double seconds_per_member(const frame_options& options, memory_state state)
{
    const std::string deck = make_frame_deck(options);
    const double members = static_cast<double>(options.members());
    double best = std::numeric_limits<double>::infinity();
    for (int round = 0; round <= rounds; ++round) {
        double spent = 0.0;
        int readings = 0;
        do {
            if (state == memory_state::fresh)
                give_back_free_memory();
            SdReader model;
            const stopwatch read;
            model.ReadSDDataFromText(deck);
            spent += processor_seconds() - read.processor;
            ++readings;
        } while (spent < 0.2);
        if (round > 0)
            best = std::min(best, spent / readings / members);
    }
    return best;
}

struct memory_figures {
    std::size_t base = 0;  ///< resident before the reading
    std::size_t peak = 0;  ///< resident at the most, the reading included
    std::size_t model = 0; ///< live heap memory of a copy of the finished model
    double cold_wall = 0.0;
};

/// In a process of its own: the first reading of a file that is not in the page cache.
int measure_memory(const char* path)
{
    memory_figures figures;
    figures.base = resident_bytes();
    SdReader model;
    const stopwatch cold;
    if (!model.ReadSDDataFromStdFile(path))
        return 1;
    figures.cold_wall = wall_seconds() - cold.wall;
    figures.peak = peak_resident_bytes();
    const std::size_t before = heap_bytes();
    const SdReader copy(model);
    figures.model = heap_bytes() - before;
    sink = static_cast<double>(copy.beams.size());
    std::printf("%zu %zu %zu %.6f\n", figures.base, figures.peak, figures.model, figures.cold_wall);
    return 0;
}

/// Writes the deck to a file, drops it from the page cache, and removes it at the end.
class deck_file {
public:
    explicit deck_file(const std::string& deck)
        : path_(std::filesystem::temp_directory_path() / ("staadkit-bench-" + std::to_string(getpid()) + ".std"))
    {
        std::ofstream(path_, std::ios::binary) << deck;
        const int file = open(path_.c_str(), O_RDONLY | O_CLOEXEC); // NOLINT: POSIX
        if (file < 0)
            give_up("cannot write " + path_.string());
        fsync(file);
        posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED);
        close(file);
    }
    ~deck_file()
    {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
    deck_file(const deck_file&) = delete;
    deck_file& operator=(const deck_file&) = delete;

    const char* path() const { return path_.c_str(); }

private:
    std::filesystem::path path_;
};

memory_figures memory_of(const std::string& deck)
{
    const deck_file file(deck);
    int ends[2];
    if (pipe(ends) != 0)
        give_up("no pipe");
    const pid_t child = fork();
    if (child == 0) {
        dup2(ends[1], STDOUT_FILENO);
        execl("/proc/self/exe", "bench_bars", "--memory-of", file.path(), static_cast<char*>(nullptr));
        _exit(2);
    }
    close(ends[1]);
    memory_figures figures;
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> answer(fdopen(ends[0], "r"), &std::fclose);
    const bool complete = std::fscanf(answer.get(), "%zu %zu %zu %lf", &figures.base, &figures.peak, &figures.model,
                                      &figures.cold_wall) == 4;
    int status = 0;
    waitpid(child, &status, 0);
    if (!complete || status != 0)
        give_up("the memory measurement failed");
    return figures;
}

bool judge_memory(const memory_figures& memory, std::size_t file)
{
    const double peak = megabytes(memory.peak - memory.base);
    const double allowed = 1.2 * megabytes(memory.model) + 2.5 * megabytes(file);
    std::printf("  %-34s %8.1f MB, finished model %.1f MB\n", "peak memory of the reading", peak,
                megabytes(memory.model));
    return judge("peak / (1.2 model + 2.5 file)", peak / allowed, 1.0, 1.0);
}

bool judge_deck(const char* name, std::size_t bytes, const frame_options& blocks)
{
    const frame_options options = frame_of_bytes(bytes, blocks);
    const std::string deck = make_frame_deck(options);
    const memory_figures memory = memory_of(deck);
    const deck_times times = time_deck(deck);
    std::printf("%s deck: %.1f MB, %zu joints, %zu members, %zu numbers\n", name, megabytes(deck.size()),
                options.joints(), options.members(), times.number_count);
    std::printf("  %-34s %8.3f s wall\n", "cold run, file not in the cache", memory.cold_wall);
    print_time("time to model", times.read, deck.size());
    print_time("one from_chars pass", times.numbers, deck.size());
    print_time("copy of the finished model", times.copy, deck.size());
    std::printf("  %-34s %8.1f ns\n", "time to model per member",
                1e9 * times.read.processor / static_cast<double>(options.members()));
    bool kept = judge("time to model / from_chars pass", times.read.processor / times.numbers.processor, 15.0, 8.0);
    kept = judge("time to model / copy", times.read.processor / times.copy.processor, 3.0, 2.0) && kept;
    return judge_memory(memory, deck.size()) && kept;
}

bool judge_growth(const char* name, const char* state_name, memory_state state, const frame_options& blocks)
{
    set_memory_state(state);
    const double small = seconds_per_member(frame_of_about(10'000, blocks), state);
    const double large = seconds_per_member(frame_of_about(1'000'000, blocks), state);
    std::printf("%s deck, growth, %s: %.1f ns per member at 10^4 members, %.1f ns at 10^6\n", name, state_name,
                1e9 * small, 1e9 * large);
    return judge("time per member, 10^6 / 10^4", large / small, 2.0, 2.0);
}

bool judge_growth(const char* name, const frame_options& blocks)
{
    const bool kept = judge_growth(name, "memory kept", memory_state::kept, blocks);
    return judge_growth(name, "fresh memory", memory_state::fresh, blocks) && kept;
}

} // namespace

int main(int argc, char** argv)
{
    const std::string first = argc > 1 ? argv[1] : "100";
    if (first == "--memory-of" && argc > 2)
        return measure_memory(argv[2]);
    const int size = std::atoi(first.c_str());
    if (argc > 2 || size < 1) {
        std::fprintf(stderr, "usage: bench_bars [MB]\n"
                             "Measures readings of a geometry deck and a full deck of MB million bytes (100).\n"
                             "Ends with 1 if a bar is missed.\n");
        return 2;
    }
    const std::size_t bytes = static_cast<std::size_t>(size) * 1'000'000;
    const frame_options geometry;
    const frame_options full = frame_options().with_all_blocks();
    bool kept = judge_deck("geometry", bytes, geometry);
    kept = judge_deck("full", bytes, full) && kept;
    kept = judge_growth("geometry", geometry) && kept;
    kept = judge_growth("full", full) && kept;
    std::printf("%s\n", kept ? "every bar kept" : "a bar was missed");
    return kept ? 0 : 1;
}
