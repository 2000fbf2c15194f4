/// One operation on inputs of middling size, measured for benchmarks/guard, which runs this program of two commits in
/// turn: its names and its output stay as they are.
#include "bars.h"
#include "frame_deck.h"
#include "listing_text.h"
#include "measure.h"

#include "staad/model/sd_reader.h"
#include "staad/storeys/layered_project.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

namespace {

using namespace STAAD::bench;
using STAAD::SdReader;

constexpr int rounds = 5;
constexpr std::size_t members = 100'000;
constexpr std::size_t listed_members = 2'000;

struct cost {
    double seconds = std::numeric_limits<double>::infinity();
    std::size_t bytes = 0; ///< of memory resident beside the input
};

/// The best time of several rounds, each on an input of its own, and the peak of the first.
template<class Prepare, class Work>
cost measure(Prepare prepare, Work work)
{
    cost result;
    for (int round = 0; round < rounds; ++round) {
        auto input = prepare();
        const auto timed = [&] {
            const double begin = processor_seconds();
            work(input);
            result.seconds = std::min(result.seconds, processor_seconds() - begin);
        };
        if (round == 0)
            result.bytes = peak_bytes(timed);
        else
            timed();
    }
    return result;
}

std::string frame_text()
{
    return make_frame_deck(frame_of_about(members, frame_options().with_all_blocks()));
}

SdReader frame_model()
{
    SdReader model;
    if (!model.ReadSDDataFromText(frame_text()))
        give_up("the deck was not read");
    return model;
}

cost measure_read()
{
    const std::string text = frame_text();
    return measure([] { return SdReader(); }, [&text](SdReader& model) { model.ReadSDDataFromText(text); });
}

cost measure_write()
{
    const SdReader model = frame_model();
    return measure([&model] { return SdReader(model); }, [](SdReader& copy) { copy.WriteDataToText(); });
}

cost measure_forces()
{
    SdReader model;
    for (std::size_t i = 1; i <= listed_members; ++i) {
        STAAD::SdBeam member;
        member.id = static_cast<int>(i);
        model.beams.push_back(member);
        model.beam_index[member.id] = member.id;
    }
    const std::string text = listing_text({listed_members});
    return measure([&model] { return SdReader(model); },
                   [&text](SdReader& copy) { copy.ReadForceMomentFromText(text); });
}

cost measure_storeys()
{
    const SdReader model = frame_model();
    return measure([&model] { return std::make_pair(SdReader(model), STAAD::StaadProProject_layered()); },
                   [](auto& input) { input.second.BuildFromModel(std::move(input.first)); });
}

cost measure_compare()
{
    const SdReader model = frame_model();
    return measure([&model] { return SdReader(model); }, [&model](SdReader& copy) { copy.MakeMap(model); });
}

struct operation {
    std::string_view name;
    cost (*measure)();
};

constexpr operation operations[] = {
    {"read", measure_read},       {"write", measure_write},     {"forces", measure_forces},
    {"storeys", measure_storeys}, {"compare", measure_compare},
};

} // namespace

int main(int argc, char** argv)
{
    const std::string_view wanted = argc == 2 ? argv[1] : "";
    for (const operation& each : operations) {
        if (wanted != each.name)
            continue;
        const cost measured = each.measure();
        std::printf("%.9f %zu\n", measured.seconds, measured.bytes);
        return 0;
    }
    std::fprintf(stderr, "usage: bench_guard read|write|forces|storeys|compare\n"
                         "Prints seconds of processor time and bytes of memory of that operation.\n");
    return 2;
}
