// Texts made to do harm: the tool answers each with a model or with a message, and never ends by a signal.

#include "tests/support/hostile_decks.h"
#include "tool_run.h"

#include <gtest/gtest.h>

#include <string>

namespace cli_test {
namespace {

constexpr std::size_t deck_size = 20000;

using STAAD::decks::answer;

void expect_answer(const tool_result& result, answer want, const std::string& file)
{
    EXPECT_EQ(result.exit_code, want == answer::model ? 0 : 3) << result.err;
    if (want == answer::model)
        return;
    // The line of the first list, or of nothing in particular.
    const std::string what =
        want == answer::too_large ? ": error limit: a list of more than 16777216 numbers\n" : " error ";
    EXPECT_EQ(result.err.rfind(file + ":", 0), 0U) << result.err;
    EXPECT_TRUE(contains(result.err, what)) << result.err;
}

TEST(HostileDecks, AreAnsweredByEveryVerbThatReadsThem)
{
    const tool_run tool;
    for (const STAAD::decks::hostile_deck& deck : STAAD::decks::hostile_decks()) {
        SCOPED_TRACE(deck.name);
        const std::string in = tool.write("in.std", deck.text(deck_size));
        expect_answer(tool({"info", "--reading", "host", in}), deck.want, in);
        const tool_result complete = tool({"info", in}); // its bounds are others
        EXPECT_TRUE(complete.exit_code == 0 || (complete.exit_code == 3 && contains(complete.err, " error ")));
        expect_answer(tool({"storeys", in}), deck.want, in);
        expect_answer(tool({"convert", "--force", in, tool.missing("out.std")}), deck.want, in);
    }
}

} // namespace
} // namespace cli_test
