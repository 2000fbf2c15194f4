/// How reading grows: with the size of the building, and block by block with the length of its lists.
#include "frame_deck.h"
#include "measure.h"

#include "staad/model/sd_reader.h"

#include <benchmark/benchmark.h>

#include <optional>
#include <string>

namespace {

using namespace STAAD::bench;
using STAAD::SdReader;

std::string deck_of(std::size_t members, bool full)
{
    frame_options blocks;
    if (full)
        blocks.with_all_blocks();
    return make_frame_deck(frame_of_about(members, blocks));
}

void report(benchmark::State& state, std::size_t bytes, std::size_t members)
{
    const auto total = static_cast<double>(state.iterations()) * static_cast<double>(members);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
    state.counters["members/s"] = benchmark::Counter(total, benchmark::Counter::kIsRate);
    state.counters["time/member"] =
        benchmark::Counter(total, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void read_frame(benchmark::State& state, bool full)
{
    const std::string deck = deck_of(static_cast<std::size_t>(state.range(0)), full);
    std::size_t members = 0;
    for (auto _ : state) {
        std::optional<SdReader> model(std::in_place);
        if (!model->ReadSDDataFromText(deck))
            state.SkipWithError("no model");
        state.PauseTiming();
        members = model->beams.size();
        model.reset();
        state.ResumeTiming();
    }
    report(state, deck.size(), members);
}

void scan_frame_numbers(benchmark::State& state, bool full)
{
    const auto wanted = static_cast<std::size_t>(state.range(0));
    const std::string deck = deck_of(wanted, full);
    for (auto _ : state)
        benchmark::DoNotOptimize(scan_numbers(deck).sum);
    report(state, deck.size(), frame_of_about(wanted).members());
}

void copy_frame(benchmark::State& state, bool full)
{
    const std::string deck = deck_of(static_cast<std::size_t>(state.range(0)), full);
    SdReader model;
    model.ReadSDDataFromText(deck);
    for (auto _ : state) {
        std::optional<SdReader> copy(model);
        benchmark::DoNotOptimize(copy->beams.data());
        state.PauseTiming();
        copy.reset();
        state.ResumeTiming();
    }
    report(state, deck.size(), model.beams.size());
}

void sizes(benchmark::internal::Benchmark* bench)
{
    bench->RangeMultiplier(10)->Range(1'000, 1'000'000)->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(read_frame, geometry, false)->Apply(sizes);
BENCHMARK_CAPTURE(read_frame, full, true)->Apply(sizes);
BENCHMARK_CAPTURE(scan_frame_numbers, geometry, false)->Apply(sizes);
BENCHMARK_CAPTURE(scan_frame_numbers, full, true)->Apply(sizes);
BENCHMARK_CAPTURE(copy_frame, geometry, false)->Apply(sizes);
BENCHMARK_CAPTURE(copy_frame, full, true)->Apply(sizes);

/// The whole reading of a deck with one block; the rest of the deck grows with n, too.
void read_lists(benchmark::State& state, list_block block, list_style style, int lines)
{
    const std::string deck = make_list_deck(block, style, static_cast<int>(state.range(0)), lines);
    for (auto _ : state) {
        std::optional<SdReader> model(std::in_place);
        model->ReadSDDataFromText(deck);
        state.PauseTiming();
        model.reset();
        state.ResumeTiming();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(deck.size()));
    state.SetComplexityN(state.range(0));
}

struct named_block {
    const char* name;
    list_block block;
};

constexpr named_block blocks[] = {
    {"property", list_block::property},
    {"beta", list_block::beta},
    {"material", list_block::material},
    {"support", list_block::support},
    {"release", list_block::release},
    {"offset", list_block::offset},
    {"truss", list_block::truss},
    {"group", list_block::group},
    {"thickness", list_block::thickness},
    {"surface_thickness", list_block::surface_thickness},
    {"member_load", list_block::member_load},
    {"joint_load", list_block::joint_load},
};

/// Lines that name everything each. With n up to 2^14 they stay within the numbers one reading may hold.
constexpr int many_lines = 2'000;

void add_list_benchmarks()
{
    for (const auto& [name, block] : blocks) {
        const auto add = [name = std::string(name), block = block](const char* style_name, list_style style, int lines,
                                                                   int smallest, int largest) {
            const std::string full_name = "read_lists/" + name + "/" + style_name;
            auto* bench = benchmark::RegisterBenchmark(full_name.c_str(), read_lists, block, style, lines);
            bench->RangeMultiplier(4)->Range(smallest, largest)->Unit(benchmark::kMillisecond);
            bench->Complexity(benchmark::oN);
        };
        add("one_range", list_style::one_range, 1, 1 << 12, 1 << 20);
        add("shuffled", list_style::shuffled_numbers, 1, 1 << 12, 1 << 20);
        add("many_lines", list_style::one_range, many_lines, 1 << 10, 1 << 14);
    }
}

} // namespace

int main(int argc, char** argv)
{
    add_list_benchmarks();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
