// The verb "dump": valid JSON, every field, numbers to the last bit, texts of any encoding.

#include "tool_run.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdint>
#include <cstring>

namespace cli_test {
namespace {

using nlohmann::ordered_json;

ordered_json dump_of(const std::string& deck)
{
    const tool_result result = tool_run()("dump -", deck);
    EXPECT_EQ(result.exit_code, 0) << result.err;
    return ordered_json::parse(result.out);
}

/// "id x y z"
std::string keys_of(const ordered_json& object)
{
    std::string keys;
    for (const auto& entry : object.items())
        keys += (keys.empty() ? "" : " ") + entry.key();
    return keys;
}

TEST(Dump, EveryFieldOfTheModelInDeclarationOrder)
{
    const ordered_json model = dump_of(tower_deck());
    EXPECT_EQ(keys_of(model),
              "concrete_density wl_param eq_param nodes beams shells surfaces groups supports releases load_cases "
              "load_defs usr_tables beam_forces raw_load_defs node_index beam_index shell_index surface_index "
              "unit_text length_factor force_factor force_length_factor old_proj_maps brace_ids");
    EXPECT_EQ(keys_of(model["nodes"][0]), "id x y z extra_ids");
    EXPECT_EQ(keys_of(model["beams"][0]), "id node_start node_end offset_start offset_end kind_code beta int_list "
                                          "material sect_text sect_country sect_extra sect_name");
}

struct value_case {
    const char* pointer;
    const char* want;
};

const value_case tower_dump[] = {
    {"/unit_text", R"("UNIT METER KN")"},
    {"/beams/9/node_end", "4"},
    {"/beams/0/sect_name", R"("UPTABLE 1 H300")"},
    {"/beams/0/beta", "90"},
    {"/shells/0/thickness", "200"},
    {"/surfaces/0/node_ids", "[5, 6, 8, 7]"},
    {"/groups/1/ids", "[1, 2, 3, 4, 5, 6]"},
    {"/supports", R"({"FIXED": [1, 2, 2], "PINNED": [9, 400]})"},
    {"/releases", R"({"START MY MZ": [7, 8]})"},
    {"/usr_tables/1/records/H300", R"("0.3 0.15 0.0065 0.009")"},
    {"/beam_forces", "{}"},
    {"/raw_load_defs/1", R"({"text": "SELFWEIGHT Y -1", "load_case": 1})"},
    {"/node_index/9", "9"},
    {"/surface_index", R"({"1": 1})"},
    {"/brace_ids", "[10, 11]"},
    {"/wl_param/is_betaz", "false"},
    {"/wl_param/mius", "[[0.0, 0.0, 0.0, 0.0], [0.0, 0.0, 0.0, 0.0], [0.0, 0.0, 0.0, 0.0], [0.0, 0.0, 0.0, 0.0]]"},
    {"/wl_param/intensities", "[[], [], [], [], [], [], [], [], [], [], [], [], [], [], [], []]"},
    {"/eq_param/spectrum_z", "[]"},
};

TEST(Dump, ValuesOfEveryBlock)
{
    const ordered_json model = dump_of(tower_deck());
    EXPECT_EQ(model["nodes"].size(), 9U);
    EXPECT_EQ(model["beams"].size(), 12U);
    EXPECT_EQ(model["shells"].size(), 2U) << "the element, and the copy of the surface";
    for (const value_case& each : tower_dump)
        EXPECT_EQ(model.at(ordered_json::json_pointer(each.pointer)), ordered_json::parse(each.want)) << each.pointer;
}

TEST(Dump, OffsetsAreThreeNumbersInTheModelsFrame)
{
    const ordered_json model = dump_of(small_deck("MEMBER OFFSET\n1 START 0.1 0.2 0.3\n"));
    // File (X, Y, Z) is model (y, z, x).
    const std::vector<double> want = {0.3 * 1000.0, 0.1 * 1000.0, 0.2 * 1000.0};
    EXPECT_EQ(model["beams"][0]["offset_start"].get<std::vector<double>>(), want);
    EXPECT_EQ(model["beams"][0]["offset_end"].get<std::vector<double>>(), (std::vector<double>{0, 0, 0}));
}

std::uint64_t bits_of(double number)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

struct number_case {
    const char* why;
    const char* text;
    double value;
};

const number_case numbers[] = {
    {"no short binary form", "0.1", 0.1},
    {"seventeen digits", "0.30000000000000004", 0.30000000000000004},
    {"one unit in the last place below", "304.79999999999995", 304.79999999999995},
    {"the smallest there is", "4.9406564584124654e-324", 4.9406564584124654e-324},
    {"the largest there is", "1.7976931348623157e308", 1.7976931348623157e308},
    {"above what whole numbers of 64 bits hold", "1e22", 1e22},
    {"a whole number past 2 to the 53rd", "9007199254740994", 9007199254740994.0},
    {"a sign that only zero can lose", "-0.0", -0.0},
};

TEST(Dump, NumbersReadBackToTheLastBit)
{
    for (const number_case& each : numbers) {
        const std::string deck =
            "UNIT MMS KN\nJOINT COORDINATES\n1 0 " + std::string(each.text) + " 0\nMEMBER INCIDENCES\n1 1 1\nFINISH\n";
        const double z = dump_of(deck)["nodes"][0]["z"].get<double>();
        EXPECT_EQ(bits_of(z), bits_of(each.value)) << each.why << ": " << z;
    }
}

TEST(Dump, NumbersThatJsonDoesNotHaveBecomeTexts)
{
    // Past the largest double once it is in mm.
    const ordered_json model =
        dump_of("UNIT METER KN\nJOINT COORDINATES\n1 0 1e308 -1e308\nMEMBER INCIDENCES\n1 1 1\nFINISH\n");
    EXPECT_EQ(model["nodes"][0]["z"], "Infinity");
    EXPECT_EQ(model["nodes"][0]["x"], "-Infinity");
}

struct text_case {
    const char* why;
    const char* bytes;
    const char* utf8;
};

const text_case texts[] = {
    {"ASCII", "DEAD", "DEAD"},
    {"UTF-8 passes, though it would be GBK as well", "caf\xC3\xA9", "caf\xC3\xA9"},
    {"GBK: steel column", "\xB8\xD6\xD6\xF9", "\xE9\x92\xA2\xE6\x9F\xB1"},
    {"GBK beside ASCII", "B1 \xB8\xD6", "B1 \xE9\x92\xA2"},
    {"neither: each byte is the code point of its number", "caf\xE9", "caf\xC3\xA9"},
    {"0xFF is in no GBK character", "\xFF\x41", "\xC3\xBF\x41"},
    {"an overlong form is no UTF-8, and no GBK", "\xC0\x80x\xFF", "\xC3\x80\xC2\x80x\xC3\xBF"},
    {"quotes, backslashes", "a\"b\\c", "a\"b\\c"},
    {"control characters", "a\tb\x01\x1F\x7F", "a\tb\x01\x1F\x7F"},
};

TEST(Dump, TextsOfAnyEncoding)
{
    for (const text_case& each : texts) {
        const std::string deck =
            small_deck("LOAD 1 LOADTYPE Dead TITLE " + std::string(each.bytes) + "\nSELFWEIGHT Y -1\n");
        EXPECT_EQ(dump_of(deck)["load_cases"]["1"]["title"], each.utf8) << each.why;
    }
}

TEST(Dump, UnknownBytesAreEscapedNotWritten)
{
    const std::string deck = small_deck("LOAD 1 LOADTYPE Dead TITLE caf\xE9\nSELFWEIGHT Y -1\n");
    const std::string out = tool_run()("dump -", deck).out;
    EXPECT_TRUE(contains(out, "\"caf\\u00e9\"")) << out;
}

TEST(Dump, DescriptionsAsKeysAreTextsToo)
{
    const ordered_json model = dump_of(small_deck("SUPPORTS\n1 FIXED \"\xB8\xD6\"\n"));
    EXPECT_EQ(keys_of(model["supports"]), "FIXED \"\xE9\x92\xA2\"");
}

TEST(Dump, KeysOfTheSameTextStayApart)
{
    // The same word in GBK, which comes first, and in UTF-8; then the UTF-8 of what takes its place.
    const std::string deck = small_deck("SUPPORTS\n1 \xB8\xD6\n2 \xE9\x92\xA2\n"
                                        "1 2 \xC3\xA9\xC2\x92\xC2\xA2\n");
    const ordered_json supports = dump_of(deck)["supports"];
    EXPECT_EQ(supports["\xE9\x92\xA2"], ordered_json::parse("[1]")) << supports;
    // In the order of their bytes the third key stands before the second.
    EXPECT_EQ(supports["\xC3\xA9\xC2\x92\xC2\xA2"], ordered_json::parse("[1, 2]")) << supports;
    // Byte by byte once more, for that one is taken, too.
    EXPECT_EQ(supports["\xC3\x83\xC2\xA9\xC3\x82\xC2\x92\xC3\x82\xC2\xA2"], ordered_json::parse("[2]")) << supports;
    EXPECT_EQ(supports.size(), 3U);
}

TEST(Dump, OfAFileHasLinesForRecordsAndIsTheSame)
{
    const tool_run tool;
    tool.write("deck.std", small_deck());
    const tool_result result = tool("dump deck.std");
    EXPECT_TRUE(has_line(result.out, R"(    {"id": 2, "x": 0, "y": 0, "z": 3000, "extra_ids": []})")) << result.out;
    EXPECT_TRUE(has_line(result.out, R"(    "1": 1,)")) << result.out;
    EXPECT_EQ(result.out.substr(result.out.size() - 3), "\n}\n");
    EXPECT_EQ(tool("dump -", small_deck()).out, result.out);
}

TEST(Dump, LargerThanTheBuffer)
{
    std::string deck = "UNIT METER KN\nJOINT COORDINATES\n";
    for (int joint = 1; joint <= 5000; ++joint)
        deck += std::to_string(joint) + " 0 " + std::to_string(joint) + ".5 0\n";
    const ordered_json model = dump_of(deck + "MEMBER INCIDENCES\n1 1 2\nFINISH\n");
    ASSERT_EQ(model["nodes"].size(), 5000U);
    EXPECT_EQ(model["nodes"][4999]["z"].get<double>(), 5000500.0);
    EXPECT_EQ(model["node_index"]["5000"], 5000);
}

} // namespace
} // namespace cli_test
