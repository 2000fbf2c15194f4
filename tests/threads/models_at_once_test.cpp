/// Models in threads of their own at the same time give what they give one after the other. Under
/// ThreadSanitizer these tests also fail on anything that the threads share without a lock.

#include "tests/support/example_files.h"
#include "tests/support/host_models.h"
#include "tests/support/model_equal.h"
#include "tests/support/random_deck.h"
#include "tests/support/temporary_file.h"

#include "staad/report/read_report.h"
#include "staad/storeys/layered_project.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

namespace STAAD {
namespace {

constexpr int rounds = 10;

/// Runs all, the first in this thread and each of the others in one of its own; none begins before all threads are
/// there. They wait awake: the first moments are the ones that matter, and a waking thread would miss them.
template<class First, class... Others>
void at_once(First first, Others... others)
{
    std::atomic<std::size_t> there = 0;
    const auto wait_for_the_others = [&there] {
        ++there;
        while (there <= sizeof...(Others))
            std::this_thread::yield();
    };
    const auto started = [&wait_for_the_others](auto& work) {
        return std::jthread([&] {
            wait_for_the_others();
            work();
        });
    };
    const std::array<std::jthread, sizeof...(Others)> threads{started(others)...};
    wait_for_the_others();
    first();
}

/// Writing renumbers the model, so that a copy is written.
std::string written_text(SdReader model)
{
    return model.WriteDataToText();
}

std::string written_file(SdReader model)
{
    const temporary_file file("");
    std::error_code error;
    return model.WriteDataToFile(file.path(), error) ? file.content() : error.message();
}

/// Two models with everything that is written, whose texts differ in load numbers, running load number and lists.
const SdReader small = host_models::every_block();
const SdReader large = host_models::tower();

TEST(TwoModels, AreWrittenAtOnceAsOneAfterTheOther)
{
    for (const auto write : {written_text, written_file}) {
        const std::string small_alone = write(small);
        const std::string large_alone = write(large);
        EXPECT_NE(small_alone, large_alone);
        for (int round = 0; round < rounds; ++round) {
            std::string small_at_once;
            std::string large_at_once;
            at_once([&] { small_at_once = write(small); }, [&] { large_at_once = write(large); });
            EXPECT_EQ(small_at_once, small_alone);
            EXPECT_EQ(large_at_once, large_alone);
        }
    }
}

/// A reading with everything that it gives.
struct reading_result {
    SdReader model;
    ReadReport report;
    bool read = false;
};

reading_result read_text(const std::string& text)
{
    reading_result result;
    result.read = result.model.ReadSDDataFromText(text, result.report);
    return result;
}

reading_result read_file(const std::string& text)
{
    const temporary_file file(text);
    reading_result result;
    result.read = result.model.ReadSDDataFromStdFile(file.path(), result.report);
    return result;
}

std::vector<std::string> finding_lines(const ReadReport& report)
{
    std::vector<std::string> lines;
    for (const Finding& finding : report.findings)
        lines.push_back(std::to_string(finding.first_line) + ' ' + std::to_string(finding.last_line) + ' ' +
                        finding.code + ' ' + finding.text + ' ' + std::to_string(finding.count));
    return lines;
}

/// The model that the deck was made from, and the findings of a reading without company.
void expect_reading(const reading_result& result, const decks::random_deck& deck, std::uint64_t seed)
{
    EXPECT_TRUE(result.read) << "seed " << seed;
    EXPECT_EQ(model_differences(result.model, deck.model), std::vector<std::string>{}) << "seed " << seed;
    EXPECT_EQ(finding_lines(result.report), finding_lines(read_text(deck.text).report)) << "seed " << seed;
}

constexpr std::uint64_t decks_of_a_test = 20; // with every block in one or another of them
constexpr int members_of_a_deck = 120;

TEST(TwoModels, AreReadAtOnceAsOneAfterTheOther)
{
    for (const auto read : {read_text, read_file}) {
        for (std::uint64_t seed = 1; seed <= decks_of_a_test; ++seed) {
            const decks::random_deck first = decks::make_random_deck(seed, members_of_a_deck);
            const decks::random_deck second = decks::make_random_deck(seed + 100, members_of_a_deck);
            reading_result first_read;
            reading_result second_read;
            at_once([&] { first_read = read(first.text); }, [&] { second_read = read(second.text); });
            expect_reading(first_read, first, seed);
            expect_reading(second_read, second, seed + 100);
        }
    }
}

TEST(FourModels, TwoAreReadWhileTwoAreWritten)
{
    const std::string small_alone = written_text(small);
    const std::string large_alone = written_file(large);
    for (std::uint64_t seed = 1; seed <= decks_of_a_test; ++seed) {
        const decks::random_deck first = decks::make_random_deck(seed, members_of_a_deck);
        const decks::random_deck second = decks::make_random_deck(seed + 100, members_of_a_deck);
        reading_result first_read;
        reading_result second_read;
        std::string small_at_once;
        std::string large_at_once;
        at_once([&] { first_read = read_text(first.text); }, [&] { small_at_once = written_text(small); },
                [&] { second_read = read_file(second.text); }, [&] { large_at_once = written_file(large); });
        expect_reading(first_read, first, seed);
        expect_reading(second_read, second, seed + 100);
        EXPECT_EQ(small_at_once, small_alone);
        EXPECT_EQ(large_at_once, large_alone);
    }
}

/// Example model and listing of that name.
struct example {
    explicit example(const std::string& name)
        : model(examples::content(name + ".std")), listing(examples::content(name + ".txt"))
    {
    }

    std::string model;
    std::string listing;
};

/// Everything that is done with a model after its reading.
struct project_result {
    explicit project_result(const example& files)
    {
        EXPECT_TRUE(model.ReadSDDataFromText(files.model));
        model.ReadForceMomentFromText(files.listing);
        EXPECT_FALSE(model.beam_forces.empty());
        const SdReader earlier = model;
        model.TakeOverFrom(earlier);
        EXPECT_TRUE(project.BuildFromModel(model));
    }

    SdReader model;
    StaadProProject_layered project;
};

TEST(FourModels, BecomeProjectsAtOnce)
{
    const example frame("concrete-frame");
    const example portal("steel-portal");
    const project_result frame_alone(frame);
    const project_result portal_alone(portal);
    const auto expect_same = [](const std::optional<project_result>& one, const project_result& want) {
        ASSERT_TRUE(one);
        EXPECT_EQ(model_differences(one->model, want.model), std::vector<std::string>{});
        EXPECT_EQ(one->project.layers.size(), want.project.layers.size());
    };
    for (int round = 0; round < rounds; ++round) {
        std::array<std::optional<project_result>, 4> results;
        at_once([&] { results[0].emplace(frame); }, [&] { results[1].emplace(portal); },
                [&] { results[2].emplace(frame); }, [&] { results[3].emplace(portal); });
        for (std::size_t i = 0; i < results.size(); ++i)
            expect_same(results[i], i % 2 == 0 ? frame_alone : portal_alone);
    }
}

} // namespace
} // namespace STAAD
