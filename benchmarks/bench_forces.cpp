/// Measures imports of large listings of beam forces, against a yardstick taken in the same run, and
/// judges them.
///
/// Times are processor time of one thread, user and system, the best of five warm rounds in which the import
/// and the yardstick alternate.
#include "bars.h"
#include "listing_text.h"
#include "measure.h"

#include "staad/model/sd_reader.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace STAAD::bench;
using STAAD::BeamLoadCaseRecord;
using STAAD::SdReader;

constexpr int rounds = 5;

/// Memory that an import may take beside the model: so many bytes per station kept, points as printed and
/// resampled ones together, ...
constexpr double bytes_per_station = 1.5 * sizeof(STAAD::ForcePoint);
/// ... the listing itself, and so much for everything else.
constexpr double bytes_for_all = 64e6;

/// Results go here, so that no optimiser can drop the work.
volatile double sink = 0;

/// A model that has the members of a listing and nothing else.
SdReader model_for(const listing_options& options)
{
    SdReader model;
    model.beams.resize(options.members);
    for (std::size_t i = 0; i < options.members; ++i) {
        const int number = static_cast<int>(i) + 1;
        model.beams[i].id = number;
        model.beam_index[number] = number;
    }
    return model;
}

std::size_t kept_stations(const SdReader& model)
{
    std::size_t count = 0;
    for (const auto& [member, forces] : model.beam_forces) {
        for (const auto& [load_case, record] : forces.records)
            count += record.points.size() + record.pkpm_points.size();
    }
    return count;
}

bool judge_time(const listing_options& options)
{
    const std::string text = listing_text(options);
    SdReader model = model_for(options);
    best_time import;
    best_time pass;
    for (int round = 0; round <= rounds; ++round) { // round 0 warms up
        model.beam_forces.clear();
        const stopwatch importing;
        model.ReadForceMomentFromText(text);
        if (round > 0)
            import.take(importing);
        const stopwatch scanning;
        const number_pass numbers = scan_numbers(text);
        if (round > 0)
            pass.take(scanning);
        else
            std::printf("  %.1f MB, %zu stations, %zu numbers\n", megabytes(text.size()), options.all_stations(),
                        numbers.count);
        sink = numbers.sum;
    }
    print_time("time to forces", import, text.size());
    print_time("std::from_chars over the numbers", pass, text.size());
    return judge("time / from_chars", import.processor / pass.processor, 15.0, 6.0);
}

/// A file that is deleted with the object.
class scratch_file {
public:
    explicit scratch_file(const std::string& text)
    {
        std::ofstream file(name_, std::ios::binary);
        if (!(file << text).flush())
            give_up(std::string("cannot write ") + name_);
    }
    ~scratch_file() { static_cast<void>(std::remove(name_)); }
    scratch_file(const scratch_file&) = delete;
    scratch_file& operator=(const scratch_file&) = delete;

    const char* name() const { return name_; }

private:
    const char* name_ = "bench_forces.tmp";
};

bool judge_memory(const listing_options& options)
{
    std::string text = listing_text(options);
    const double listing_bytes = static_cast<double>(text.size());
    const scratch_file file(text);
    text = std::string();
    SdReader model = model_for(options);
    const std::size_t peak = peak_bytes([&] { model.ReadForceMomentFromTxtFile(file.name()); });
    const std::size_t stations = kept_stations(model);
    const double allowed = listing_bytes + bytes_per_station * static_cast<double>(stations) + bytes_for_all;
    std::printf("  memory to import the file: %.1f MB, of which the listing %.1f MB; %zu stations kept, %.1f MB\n",
                megabytes(peak), 1e-6 * listing_bytes, stations, megabytes(stations * sizeof(STAAD::ForcePoint)));
    return judge("memory / allowed", static_cast<double>(peak) / allowed, 1.0, 1.0);
}

/// Processor time per station of a warm import: best of five rounds.
double seconds_of_station(const listing_options& options, memory_state state)
{
    const std::string text = listing_text(options);
    SdReader model = model_for(options);
    double best = std::numeric_limits<double>::infinity();
    for (int round = 0; round <= rounds; ++round) {
        model.beam_forces.clear();
        if (state == memory_state::fresh)
            give_back_free_memory();
        const stopwatch importing;
        model.ReadForceMomentFromText(text);
        const double spent = processor_seconds() - importing.processor;
        if (round > 0)
            best = std::min(best, spent / static_cast<double>(options.all_stations()));
    }
    return best;
}

bool judge_growth(const char* state_name, memory_state state, listing_options options)
{
    set_memory_state(state);
    const double large = seconds_of_station(options, state);
    options.members /= 10;
    const double small = seconds_of_station(options, state);
    std::printf("growth, %s: %.1f ns per station with %zu members, %.1f ns with ten times as many\n", state_name,
                1e9 * small, options.members, 1e9 * large);
    return judge("time per station, large / small", large / small, 2.0, 2.0);
}

/// Processor time per station of resampling one record of so many stations, printed in any order.
double seconds_of_resampling(std::size_t stations)
{
    std::mt19937 random;
    BeamLoadCaseRecord shuffled;
    for (std::size_t i = 0; i < stations; ++i)
        shuffled.points.push_back({static_cast<double>(i), 1, 2, 3, 4, 5, 6});
    std::shuffle(shuffled.points.begin(), shuffled.points.end(), random);
    const std::size_t records = 1'000'000 / stations;
    double best = std::numeric_limits<double>::infinity();
    for (int round = 0; round < rounds; ++round) {
        std::vector<BeamLoadCaseRecord> work(records, shuffled);
        const stopwatch resampling;
        for (BeamLoadCaseRecord& record : work)
            record.sort_pkpm_format();
        best = std::min(best, (processor_seconds() - resampling.processor) / static_cast<double>(records * stations));
        sink = work.back().pkpm_points.back().position;
    }
    return best;
}

bool judge_resampling()
{
    const double few = seconds_of_resampling(100);
    const double many = seconds_of_resampling(1'000'000);
    std::printf("resampling: %.1f ns per station of a record of 100, %.1f ns of one of 1000000\n", 1e9 * few,
                1e9 * many);
    return judge("time per station, many / few", many / few, 20.0, 20.0); // n log n; n * n would give 10000
}

} // namespace

int main(int argc, char** argv)
{
    const int members = argc > 1 ? std::atoi(argv[1]) : 10'000;
    if (argc > 2 || members < 100) {
        std::fprintf(stderr, "usage: bench_forces [MEMBERS]\n"
                             "Measures imports of listings of MEMBERS (10000, at the least 100) under 20 load cases\n"
                             "at 13 stations; writes one to the current folder for a while.\n"
                             "Ends with 1 if a bar is missed.\n");
        return 2;
    }
    listing_options options;
    options.members = static_cast<std::size_t>(members);
    std::printf("%zu members, %zu load cases, %zu stations\n", options.members, options.cases, options.stations);
    bool kept = judge_memory(options);
    kept = judge_time(options) && kept;
    kept = judge_growth("memory kept", memory_state::kept, options) && kept;
    kept = judge_growth("fresh memory", memory_state::fresh, options) && kept;
    kept = judge_resampling() && kept;
    std::printf("%s\n", kept ? "every bar kept" : "a bar was missed");
    return kept ? 0 : 1;
}
