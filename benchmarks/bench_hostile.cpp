/// Reads texts made to do harm at two sizes, and judges how time and memory grow with n + r: the bytes of the
/// text, and the numbers and references of its lists.
///
/// Times are processor time of one thread, user and system, the best of several rounds.
#include "bars.h"
#include "measure.h"

#include "staad/model/sd_reader.h"
#include "staad/report/read_limit.h"
#include "tests/support/hostile_decks.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>

namespace {

using namespace STAAD::bench;
using STAAD::SdReader;

constexpr int rounds = 3;
constexpr std::size_t growth_of_size = 8;
/// Time per byte and number, large text over small one: n log n, and caches that the large one leaves.
constexpr double most_growth = 3.0;
/// Bytes of memory per byte and number. The text with the most memory per byte is a member, "1 1 1;".
constexpr double most_memory = 64.0;

template<class Lists>
std::size_t numbers_in(const Lists& lists)
{
    std::size_t count = 0;
    for (const auto& entry : lists)
        count += entry.second.size();
    return count;
}

std::size_t numbers_in(const SdReader& model)
{
    std::size_t count = numbers_in(model.supports) + numbers_in(model.releases) + model.brace_ids.size();
    for (const STAAD::SdGroup& group : model.groups)
        count += group.ids.size();
    for (const STAAD::SdBeam& member : model.beams)
        count += member.int_list.size();
    for (const STAAD::SdNode& joint : model.nodes)
        count += joint.extra_ids.size();
    return count;
}

struct reading_cost {
    double seconds = std::numeric_limits<double>::infinity();
    std::size_t items = 0; ///< bytes, numbers and references
    std::size_t memory = 0;
    STAAD::decks::answer answer = STAAD::decks::answer::no_model;

    double seconds_of_item() const { return seconds / static_cast<double>(items); }
    double bytes_of_item() const { return static_cast<double>(memory) / static_cast<double>(items); }
};

STAAD::decks::answer read(SdReader& model, std::string_view text)
{
    try {
        return model.ReadSDDataFromText(text) ? STAAD::decks::answer::model : STAAD::decks::answer::no_model;
    } catch (const STAAD::ReadLimitError&) {
        return STAAD::decks::answer::too_large;
    }
}

reading_cost cost_of(const std::string& text)
{
    reading_cost cost;
    for (int round = 0; round < rounds; ++round) {
        SdReader model;
        const double begin = processor_seconds();
        cost.answer = read(model, text);
        cost.seconds = std::min(cost.seconds, processor_seconds() - begin);
        cost.items = text.size() + numbers_in(model);
    }
    cost.memory = peak_bytes([&text] {
        SdReader model;
        read(model, text);
    });
    return cost;
}

bool judge_deck(const STAAD::decks::hostile_deck& deck, std::size_t size)
{
    const reading_cost small = cost_of(deck.text(size));
    const reading_cost large = cost_of(deck.text(size * growth_of_size));
    const double growth = large.seconds_of_item() / small.seconds_of_item();
    const double memory = large.bytes_of_item();
    const bool kept = growth <= most_growth && memory <= most_memory && large.answer == deck.want;
    std::printf("%-52s %9.3f s %6.1f ns %6.2f %8.1f B  %s\n", deck.name.c_str(), large.seconds,
                1e9 * large.seconds_of_item(), growth, memory, kept ? "" : "BAR MISSED");
    std::fflush(stdout);
    return kept;
}

} // namespace

int main(int argc, char** argv)
{
    const int megabytes_of_large = argc > 1 ? std::atoi(argv[1]) : 8;
    if (argc > 2 || megabytes_of_large < 1) {
        std::fprintf(stderr,
                     "usage: bench_hostile [MB]\n"
                     "Reads texts made to do harm, of MB (8) million bytes and of an eighth of that. Ends with 1\n"
                     "if a bar is missed.\n");
        return 2;
    }
    const std::size_t size = static_cast<std::size_t>(megabytes_of_large) * 1'000'000 / growth_of_size;
    set_memory_state(memory_state::kept);
    std::printf("%-52s %11s %9s %6s %10s\n", "", "time", "per item", "growth", "per item");
    bool kept = true;
    for (const STAAD::decks::hostile_deck& deck : STAAD::decks::hostile_decks())
        kept = judge_deck(deck, size) && kept;
    std::printf("bars: growth %.1f, memory %.0f bytes per byte of the text and number of its lists\n%s\n", most_growth,
                most_memory, kept ? "every bar kept" : "a bar was missed");
    return kept ? 0 : 1;
}
