/// Random decks against the models they were made from. A failure prints the seed and the deck's size,
/// which together give the same deck again.
#include "tests/support/model_equal.h"
#include "tests/support/random_deck.h"
#include "tests/support/random_text.h"

#include "staad/report/read_report.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

namespace STAAD {
namespace {

/// 1 to 300 members, most decks small: small ones show a fault just as well and are easier to read.
int members_of(std::uint64_t seed)
{
    const double share = decks::chance(seed ^ 0x5eed).between(0, 1000) / 1000.0;
    return 1 + static_cast<int>(299.0 * share * share * share);
}

std::string failure_text(std::uint64_t seed, const decks::random_deck& deck,
                         const std::vector<std::string>& differences)
{
    return "make_random_deck(" + std::to_string(seed) + ", " + std::to_string(members_of(seed)) +
           "), read and wanted: " + testing::PrintToString(differences) + "\n" + deck.text.substr(0, 4000);
}

/// In four parts, so that a parallel run shares them out.
class RandomDeckOf : public testing::TestWithParam<std::uint64_t> {};

TEST_P(RandomDeckOf, TheNext750SeedsReadAsTheModelItWasMadeFrom)
{
    for (std::uint64_t seed = GetParam(); seed < GetParam() + 750; ++seed) {
        const decks::random_deck deck = decks::make_random_deck(seed, members_of(seed));
        SdReader model;
        ReadReport report; // of every tenth; the model is the same
        ASSERT_TRUE(seed % 10 == 0 ? model.ReadSDDataFromText(deck.text, report) : model.ReadSDDataFromText(deck.text))
            << failure_text(seed, deck, {});
        const auto differences = model_differences(model, deck.model);
        ASSERT_TRUE(differences.empty()) << failure_text(seed, deck, differences);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomDeckOf, testing::Values(1U, 751U, 1501U, 2251U));

/// A change anywhere in the text must show, or the comparison above would prove little.
TEST(RandomDeck, AnotherDeckReadsAsAnotherModel)
{
    for (std::uint64_t seed = 6001; seed <= 6050; ++seed) {
        const decks::random_deck deck = decks::make_random_deck(seed, 20);
        const decks::random_deck other = decks::make_random_deck(seed + 1, 20);
        SdReader model;
        ASSERT_TRUE(model.ReadSDDataFromText(deck.text));
        EXPECT_FALSE(model_differences(model, other.model).empty()) << seed;
    }
}

const struct {
    const char* what;
    bool (*is_there)(const SdReader& model);
} blocks[] = {
    {"surfaces", [](const SdReader& m) { return !m.surfaces.empty(); }},
    {"elements", [](const SdReader& m) { return !m.shell_index.empty(); }},
    {"an element number that no element has",
     [](const SdReader& m) {
         for (const auto& [number, position] : m.shell_index)
             if (position == 0)
                 return true;
         return false;
     }},
    {"a joint number that no joint has", [](const SdReader& m) { return m.node_index.size() > m.nodes.size(); }},
    {"groups", [](const SdReader& m) { return !m.groups.empty(); }},
    {"supports", [](const SdReader& m) { return !m.supports.empty(); }},
    {"releases", [](const SdReader& m) { return !m.releases.empty(); }},
    {"braces", [](const SdReader& m) { return !m.brace_ids.empty(); }},
    {"user tables", [](const SdReader& m) { return !m.usr_tables.empty(); }},
    {"a density", [](const SdReader& m) { return m.concrete_density != 23.5615; }},
    {"an offset", [](const SdReader& m) { return m.beams.front().offset_start.x != 0.0; }},
    {"a beta angle", [](const SdReader& m) { return m.beams.front().beta != 0.0; }},
    {"a section", [](const SdReader& m) { return !m.beams.front().sect_text.empty(); }},
    {"a material", [](const SdReader& m) { return !m.beams.front().material.empty(); }},
    {"load cases", [](const SdReader& m) { return !m.load_cases.empty(); }},
    {"load case 0", [](const SdReader& m) { return m.load_cases.count(0) > 0; }},
    {"a loaded member", [](const SdReader& m) { return !m.beams.front().int_list.empty(); }},
    {"a loaded joint", [](const SdReader& m) { return !m.nodes.front().extra_ids.empty(); }},
    {"a moment factor", [](const SdReader& m) { return m.force_length_factor != 1.0; }},
};

/// Every block stands in many of the decks: the generator has not quietly stopped making one.
TEST(RandomDeck, EveryBlockIsMetOften)
{
    std::array<int, std::size(blocks)> met{};
    for (std::uint64_t seed = 1; seed <= 200; ++seed) {
        const decks::random_deck deck = decks::make_random_deck(seed, 12);
        for (std::size_t i = 0; i < met.size(); ++i)
            met[i] += blocks[i].is_there(deck.model) ? 1 : 0;
    }
    for (std::size_t i = 0; i < met.size(); ++i)
        EXPECT_GE(met[i], 5) << blocks[i].what;
}

} // namespace
} // namespace STAAD
