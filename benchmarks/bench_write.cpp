/// Measures writings of large models that a host filled in, against yardsticks taken in the same run,
/// and judges them.
///
/// Times are processor time of one thread, user and system, without that of other programs: the best of five
/// warm rounds in which the writing and the yardstick alternate. Memory is the most that is resident during the
/// writing, beyond what was resident before.
#include "bars.h"
#include "host_model.h"
#include "measure.h"
#include "written_numbers.h"

#include "staad/model/sd_reader.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <system_error>

namespace {

using namespace STAAD::bench;
using STAAD::SdReader;

constexpr int rounds = 5;

/// What a writing may take: so many times the std::to_chars pass and so much per load of a member...
constexpr double passes = 6.0;
constexpr double seconds_per_reference = 60e-9;
/// ... and so much memory.
constexpr std::size_t bytes_per_reference = 16;
constexpr std::size_t bytes_for_all = 64'000'000;

constexpr const char* nowhere = "/dev/null";

/// Results go here, so that no optimiser can drop the work.
volatile std::size_t sink = 0;

void write_to_nowhere(SdReader& model)
{
    std::error_code error;
    if (!model.WriteDataToFile(nowhere, error))
        give_up("writing to " + std::string(nowhere) + ": " + error.message());
}

struct write_times {
    best_time text;
    best_time file;
    best_time numbers;
};

write_times time_writing(SdReader& model, const written_numbers& numbers)
{
    write_times times;
    for (int round = 0; round <= rounds; ++round) { // round 0 warms up
        const stopwatch writing;
        const std::string text = model.WriteDataToText();
        if (round > 0)
            times.text.take(writing);
        sink = text.size();
        const stopwatch filing;
        write_to_nowhere(model);
        if (round > 0)
            times.file.take(filing);
        const stopwatch formatting;
        sink = numbers.write_all();
        if (round > 0)
            times.numbers.take(formatting);
    }
    return times;
}

struct memory_figures {
    std::size_t file = 0; ///< for a writing to a file
    std::size_t text = 0; ///< for a writing to a text, which is part of it
};

memory_figures measure_memory(SdReader& model)
{
    memory_figures figures;
    figures.file = peak_bytes([&] { write_to_nowhere(model); });
    figures.text = peak_bytes([&] { sink = model.WriteDataToText().size(); });
    return figures;
}

bool judge_memory(const char* what, std::size_t bytes, std::size_t references)
{
    const double allowed = megabytes(bytes_per_reference * references + bytes_for_all);
    std::printf("  %-34s %8.1f MB, allowed %.1f MB\n", what, megabytes(bytes), allowed);
    return judge("memory / allowed", megabytes(bytes) / allowed, 1.0, 1.0);
}

bool judge_times(const write_times& times, std::size_t references, std::size_t text_bytes)
{
    const double allowed = passes * times.numbers.processor + seconds_per_reference * static_cast<double>(references);
    print_time("time to text", times.text, text_bytes);
    print_time("time to /dev/null", times.file, text_bytes);
    print_time("std::to_chars over the numbers", times.numbers, text_bytes);
    std::printf("  %-34s %8.3f s: %.0f passes and %.0f ns per load reference\n", "allowed", allowed, passes,
                1e9 * seconds_per_reference);
    return judge("time to text / allowed", times.text.processor / allowed, 1.0, 1.0);
}

bool judge_model(const char* name, const host_options& options)
{
    SdReader model = make_host_model(options);
    const memory_figures memory = measure_memory(model);
    const std::string text = model.WriteDataToText();
    const written_numbers numbers(text);
    const std::size_t references = options.references();
    std::printf("%s: %zu members, %zu load definitions, %zu load references\n", name, options.members,
                options.definitions(), references);
    std::printf("  text of %.1f MB: %zu integers, %zu reals, %zu numbers of six decimals\n", megabytes(text.size()),
                numbers.integers(), numbers.reals(), numbers.six_places());
    bool kept = judge_times(time_writing(model, numbers), references, text.size());
    kept = judge_memory("memory to write a file", memory.file, references) && kept;
    const std::size_t beside_text = memory.text - std::min(memory.text, text.size());
    return judge_memory("memory to write a text, beside it", beside_text, references) && kept;
}

/// Processor time per load reference of a warm writing: best of five rounds of at least 0.2 s each.
double seconds_of_reference(const host_options& options, memory_state state)
{
    SdReader model = make_host_model(options);
    double best = std::numeric_limits<double>::infinity();
    for (int round = 0; round <= rounds; ++round) {
        double spent = 0.0;
        int writings = 0;
        do {
            if (state == memory_state::fresh)
                give_back_free_memory();
            const stopwatch writing;
            const std::string text = model.WriteDataToText();
            spent += processor_seconds() - writing.processor;
            sink = text.size();
            ++writings;
        } while (spent < 0.2);
        if (round > 0)
            best = std::min(best, spent / writings / static_cast<double>(options.references()));
    }
    return best;
}

bool judge_growth(const char* name, const char* state_name, memory_state state, host_options options)
{
    set_memory_state(state);
    const std::size_t large_size = options.members;
    const double large = seconds_of_reference(options, state);
    options.members /= 10;
    const double small = seconds_of_reference(options, state);
    std::printf("%s, growth, %s: %.1f ns per load reference at %zu members, %.1f ns at %zu\n", name, state_name,
                1e9 * small, options.members, 1e9 * large, large_size);
    return judge("time per reference, large / small", large / small, 2.0, 2.0);
}

bool judge_growth(const char* name, const host_options& options)
{
    const bool kept = judge_growth(name, "memory kept", memory_state::kept, options);
    return judge_growth(name, "fresh memory", memory_state::fresh, options) && kept;
}

} // namespace

int main(int argc, char** argv)
{
    const int members = argc > 1 ? std::atoi(argv[1]) : 1'000'000;
    if (argc > 2 || members < 1'000) {
        std::fprintf(stderr, "usage: bench_write [MEMBERS]\n"
                             "Measures writings of models of MEMBERS (1000000, at the least 1000).\n"
                             "Ends with 1 if a bar is missed.\n");
        return 2;
    }
    host_options consecutive;
    consecutive.members = static_cast<std::size_t>(members);
    host_options shuffled = consecutive;
    shuffled.shuffled = true;
    host_options many = shuffled;
    many.definitions_per_case = members / 200;
    many.lists = members / 200;
    bool kept = judge_model("consecutive numbers", consecutive);
    kept = judge_model("shuffled numbers", shuffled) && kept;
    kept = judge_model("shuffled numbers, many lists", many) && kept;
    kept = judge_growth("consecutive numbers", consecutive) && kept;
    kept = judge_growth("shuffled numbers", shuffled) && kept;
    std::printf("%s\n", kept ? "every bar kept" : "a bar was missed");
    return kept ? 0 : 1;
}
