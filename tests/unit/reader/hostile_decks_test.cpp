/// Texts made to do harm come to an answer, and what they leave can be used. How time and memory grow with them is
/// measured by benchmarks/bench_hostile.cpp.

#include "staad/model/sd_reader.h"
#include "staad/report/read_limit.h"
#include "staad/report/read_report.h"
#include "staad/storeys/layered_project.h"
#include "tests/support/deck.h"
#include "tests/support/hostile_decks.h"
#include "tests/support/model_equal.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

constexpr std::size_t deck_size = 16384;

template<class Read>
decks::answer answer_of(Read read)
{
    try {
        return read() ? decks::answer::model : decks::answer::no_model;
    } catch (const ReadLimitError& error) {
        EXPECT_GT(error.first_line(), 0U);
        return decks::answer::too_large;
    }
}

TEST(HostileDecks, AreAnsweredTheSameWithAndWithoutAReport)
{
    for (const decks::hostile_deck& deck : decks::hostile_decks()) {
        SCOPED_TRACE(deck.name);
        const std::string text = deck.text(deck_size);
        SdReader model;
        EXPECT_EQ(answer_of([&] { return model.ReadSDDataFromText(text); }), deck.want);
        SdReader reported;
        ReadReport report;
        EXPECT_EQ(answer_of([&] { return reported.ReadSDDataFromText(text, report); }), deck.want);
        EXPECT_EQ(model_differences(model, reported), std::vector<std::string>{});
        EXPECT_LE(report.findings.size(), 2000U) << "findings of one kind are counted, not listed";
    }
}

TEST(HostileDecks, LeaveModelsThatCanBeUsed)
{
    for (const decks::hostile_deck& deck : decks::hostile_decks()) {
        SCOPED_TRACE(deck.name);
        SdReader model;
        answer_of([&] { return model.ReadSDDataFromText(deck.text(deck_size)); });
        EXPECT_EQ(model.WriteDataToText().substr(0, 11), "STAAD SPACE");
        SdReader earlier = model;
        model.TakeOverFrom(earlier);
        EXPECT_EQ(model.old_proj_maps.joints_new_to_old.size(), model.nodes.size()) << "each is its own counterpart";
        StaadProProject_layered project;
        const bool has_levels = project.BuildFromModel(std::move(earlier));
        EXPECT_EQ(has_levels, !model.beams.empty());
        EXPECT_TRUE(model.ReadSDDataFromText(decks::frame_deck({})));
        EXPECT_EQ(model.nodes.size(), 6U);
    }
}

} // namespace
} // namespace STAAD
