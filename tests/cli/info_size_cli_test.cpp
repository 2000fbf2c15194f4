// The verb "info" on texts of unusual length, and with little memory.

#include "tool_run.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace cli_test {
namespace {

using nlohmann::json;

TEST(InfoSize, OneLongTextDoesNotWidenTheOthers)
{
    const tool_run tool;
    std::string deck = "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 3 0\nMEMBER INCIDENCES\n1 1 2\nSUPPORTS\n";
    const std::string long_text(1000000, 'Z');
    deck += "1 " + long_text + '\n';
    for (int i = 1000; i < 4000; ++i)
        deck += "1 KIND" + std::to_string(i) + '\n';
    const std::string path = tool.write("long.std", deck + "FINISH\n");
    const tool_result result = tool({"info", path});
    EXPECT_EQ(result.exit_code, 0);
    // "  KIND1000", padded to 42 columns, "  1 joint" behind.
    EXPECT_TRUE(has_line(result.out, "  KIND1000" + std::string(32, ' ') + "  1 joint"));
    EXPECT_TRUE(has_line(result.out, "  " + std::string(117, 'Z') + "...  1 joint"));
    EXPECT_LT(result.out.size(), 3001U * 60U);
    const json supports = json::parse(tool({"info", "--json", path}).out)["supports"];
    ASSERT_EQ(supports.size(), 3001U);
    EXPECT_EQ(supports.back()["description"], long_text);
}

TEST(InfoSize, TextsAreCutBetweenCharacters)
{
    const tool_run tool;
    // Two cells each: 58 of them and the dots fill 119 of 120, a 59th has no room.
    std::string title;
    for (int i = 0; i < 61; ++i)
        title += "\xE9\x92\xA2";
    const std::string shown = title.substr(0, 58U * 3U) + "...";
    const std::string path =
        tool.write("a.std", small_deck("LOAD 1 LOADTYPE Dead TITLE " + title + "\nJOINT LOAD\n1 FX 5\n"));
    const std::string text = tool({"info", path}).out;
    EXPECT_TRUE(has_line(text, "  1  dead  " + shown + "  0 members, 1 joint  1 JOINT LOAD")) << text;
    // One less fits as it is.
    title.resize(60U * 3U);
    const std::string fitting =
        tool.write("b.std", small_deck("LOAD 1 LOADTYPE Dead TITLE " + title + "\nJOINT LOAD\n1 FX 5\n"));
    EXPECT_TRUE(has_line(tool({"info", fitting}).out, "  1  dead  " + title + "  0 members, 1 joint  1 JOINT LOAD"));
}

#ifndef _WIN32
/// Support descriptions of a million bytes each. JSON writes each byte as six.
std::string deck_of_control_bytes(int descriptions)
{
    std::string lines = "SUPPORTS\n";
    for (int i = 0; i < descriptions; ++i)
        lines += "1 K" + std::to_string(i) + std::string(1000000, '\x01') + '\n';
    return small_deck(lines);
}

TEST(InfoSize, FilesBehindOneThatIsTooLargeStillAreTold)
{
    if (tool_has_address_sanitizer)
        GTEST_SKIP() << "takes more address space than any limit";
    const tool_run tool;
    const std::string small = tool.write("small.std", small_deck());
    const std::string large = tool.write("large.std", deck_of_control_bytes(20));
    // Enough to read it, and to tell it on a line; not enough for 120 MB of JSON.
    EXPECT_EQ(tool.within(140, {"info", large, small}).exit_code, 0);
    const tool_result result = tool.within(140, {"info", "--json", large, small});
    EXPECT_EQ(result.exit_code, 3);
    EXPECT_TRUE(contains(result.err, large + ": error memory: ")) << result.err;
    const json reports = json::parse(result.out);
    ASSERT_EQ(reports.size(), 2U);
    EXPECT_EQ(reports[0]["was_read"], false);
    EXPECT_EQ(reports[0]["findings"].back()["code"], "memory");
    EXPECT_EQ(reports[1]["joints"], 2);
}

TEST(InfoSize, FileTooLargeToReadIsNamed)
{
    if (tool_has_address_sanitizer)
        GTEST_SKIP() << "takes more address space than any limit";
    const tool_run tool;
    const std::string small = tool.write("small.std", small_deck());
    const std::string large = tool.write("large.std", deck_of_control_bytes(60));
    const tool_result result = tool.within(50, {"info", large, small});
    EXPECT_EQ(result.exit_code, 3);
    EXPECT_TRUE(contains(result.err, large + ": error memory: ")) << result.err;
    EXPECT_TRUE(contains(result.out, small + ": 2 joints, 1 member, ")) << result.out;
}
#endif

} // namespace
} // namespace cli_test
