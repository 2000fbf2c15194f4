/// Lists that ask for more numbers than a reading holds, and lists that may ask for any number because they only
/// touch what is there.

#include "staad/model/sd_reader.h"
#include "staad/report/read_limit.h"
#include "tests/support/deck.h"
#include "tests/support/shown.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <set>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using ints = std::vector<int>;

/// Another reading into the object gives a whole model.
void expect_readable_again(SdReader& model)
{
    ASSERT_TRUE(model.ReadSDDataFromText(
        decks::frame_deck({"LOAD 1", "MEMBER LOAD", "1 TO 2 UNI GY -1"}, {"UNIT METER KN", 2})));
    EXPECT_EQ(model.nodes.size(), 3U);
    ASSERT_EQ(model.beams.size(), 2U);
    EXPECT_EQ(model.beams[1].int_list, (ints{1}));
    EXPECT_EQ(model.load_defs.size(), 1U);
}

TEST(ReadLimits, AStoredListHoldsNoMoreThanItsLimit)
{
    const struct {
        const char* why;
        const char* lines;
        std::size_t first; ///< line of the list among `lines`, from 0
        std::size_t last;
    } rows[] = {
        {"supports", "SUPPORTS\n1 TO 2000000000 FIXED", 1, 1},
        {"a later line", "SUPPORTS\n1 FIXED\n2 FIXED\n3 TO 2000000000 FIXED", 3, 3},
        {"a continued line", "SUPPORTS\n1 TO -\n\n2000000000 -\nFIXED", 1, 4},
        {"releases", "MEMBER RELEASE\n1 TO 2000000000 START MZ", 1, 1},
        {"groups", "START GROUP DEFINITION\nMEMBER\n_A 1 TO 2000000000\nEND GROUP DEFINITION", 2, 2},
        {"groups, by a chain of ranges",
         "START GROUP DEFINITION\nMEMBER\n_A 1 TO 10000000 TO 20000000\nEND GROUP DEFINITION", 2, 2},
        {"truss members", "MEMBER TRUSS\n1 TO 2000000000", 1, 1},
        {"compression-only members", "MEMBER COMPRESSION\n1 TO 2000000000", 1, 1},
        {"tension-only members", "MEMBER TENSION\n1 TO 2000000000", 1, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.why);
        SdReader model;
        decks::expect_limit([&] { model.ReadSDDataFromText(decks::frame_deck({row.lines})); },
                            decks::first_line_under_test + row.first, decks::first_line_under_test + row.last,
                            most_numbers_per_list);
        expect_readable_again(model);
    }
}

TEST(ReadLimits, AStoredListMayReachItsLimitAndADescriptionHoldSeveral)
{
    const SdReader model =
        decks::read_frame({"SUPPORTS", "1 TO 16777216 FIXED", "1 TO 8388609 PINNED", "1 TO 8388609 PINNED"});
    const std::vector<unsigned>& joints = model.supports.at("FIXED");
    ASSERT_EQ(joints.size(), most_numbers_per_list);
    EXPECT_EQ(joints.front(), 1U);
    EXPECT_EQ(joints.back(), 16777216U);
    EXPECT_EQ(model.supports.at("PINNED").size(), most_numbers_per_list + 2);
}

TEST(ReadLimits, BracesReadAloneStandInNoFile)
{
    SdReader model;
    model.brace_ids = {7};
    decks::expect_limit([&] { model.ReadBrace({"MEMBER TRUSS", "TO 16777217"}); }, 0, 0, most_numbers_per_list);
    EXPECT_EQ(model.brace_ids, (std::set<int>{7})) << "the range is refused before any of it is taken";
}

using see = std::string (*)(const SdReader&);

std::string beam_materials(const SdReader& model)
{
    return shown_fields(model.beams, &SdBeam::material);
}

std::string loads(const SdReader& model)
{
    return shown_fields(model.beams, &SdBeam::int_list);
}

/// Ranges of two thousand million numbers over a handful of records: a reader that counted them out would take
/// minutes or pass a limit.
TEST(ReadLimits, ListsThatTouchWhatIsThereMayNameAnyNumbers)
{
    const see angles = [](const SdReader& model) { return shown_fields(model.beams, &SdBeam::beta); };
    const see shells = [](const SdReader& model) { return shown_fields(model.shells, &SdShell::thickness); };
    const see surfaces = [](const SdReader& model) { return shown_fields(model.surfaces, &SdSurface::thickness); };
    const see joint_loads = [](const SdReader& model) { return shown_fields(model.nodes, &SdNode::extra_ids); };
    const see offsets = [](const SdReader& model) {
        std::vector<double> found;
        for (const SdBeam& member : model.beams)
            found.push_back(member.offset_start.z);
        return shown(found);
    };
    const see materials = [](const SdReader& model) {
        return beam_materials(model) + ", " + shown_fields(model.shells, &SdShell::material);
    };
    const std::string two_elements = "ELEMENT INCIDENCES SHELL\n7 1 2 3; 8 2 3 4\n";
    const std::string two_surfaces = "SURFACE INCIDENCE\n1 2 3 SUR 7; 2 3 4 SUR 8\n";
    const struct {
        std::string lines;
        see what;
        const char* want;
    } rows[] = {
        {"MEMBER PROPERTY\n1 TO 2000000000 TABLE ST A", beam_materials, "STEEL STEEL STEEL STEEL STEEL"},
        {"MEMBER PROPERTY\n3 TO 2000000000 TO 2000000000 TABLE ST A", beam_materials, "- - STEEL STEEL STEEL"},
        {"BETA 90 MEMB 2 TO 2000000000", angles, "0 90 90 90 90"},
        {"MEMBER OFFSET\n2 TO 2000000000 START 0 0.1 0", offsets, "0 100 100 100 100"},
        {two_elements + "MATERIAL C30 MEMB 4 TO 2000000000", materials, "- - - C30 C30, C30 C30"},
        {two_elements + "ELEMENT PROPERTY\n8 TO 2000000000 THICKNESS 0.2", shells, "0 200"},
        {two_surfaces + "SURFACE PROPERTY\n7 TO 2000000000 THICKNESS 0.2", surfaces, "200 200"},
        {"LOAD 1\nMEMBER LOAD\n2 TO 2000000000 UNI GY -1", loads, "- 1 1 1 1"},
        {"LOAD 1\nSELFWEIGHT Y -1 LIST 2 TO 2000000000", loads, "- 1 1 1 1"},
        {"LOAD 1\nJOINT LOAD\n2 TO 2000000000 FY -1", joint_loads, "- 1 1 1 1 1"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.lines);
        const SdReader model = decks::read_frame({row.lines});
        EXPECT_EQ(row.what(model), row.want);
        EXPECT_EQ(model.node_index.size(), 6U) << "numbers inside a range enter no index";
        EXPECT_EQ(model.beam_index.size(), 5U);
        EXPECT_LE(model.shell_index.size(), 2U);
        EXPECT_LE(model.surface_index.size(), 2U);
    }
}

/// Half the numbers of a reading are stored lists, the other half references of members and joints: eight parts
/// of 16,777,216. The last line asks for one number more.
TEST(ReadLimits, AllListsOfAReadingShareOneTotal)
{
    constexpr int members = 4096;
    constexpr int lines_per_part = 16777216 / members;
    decks::lines parts = {"START GROUP DEFINITION",
                          "MEMBER",
                          "_A 1 TO 16777216",
                          "END GROUP DEFINITION",
                          "SUPPORTS",
                          "1 TO 16777216 FIXED",
                          "1 TO 16777216 PINNED",
                          "MEMBER RELEASE",
                          "1 TO 16777216 START MZ",
                          "LOAD 1",
                          "MEMBER LOAD"};
    for (int line = 0; line < 2 * lines_per_part; ++line)
        parts.emplace_back("1 TO 4096 UNI GY -1");
    parts.emplace_back("JOINT LOAD");
    for (int line = 0; line < lines_per_part; ++line)
        parts.emplace_back("1 TO 4096 FY -1");
    for (int line = 0; line < lines_per_part; ++line)
        parts.emplace_back("SELFWEIGHT Y -1 LIST 1 TO 4096");
    parts.emplace_back("4097 FY -1");
    const std::size_t too_much = decks::first_line_under_test + parts.size() - 1;

    SdReader model;
    const std::string text = decks::frame_deck(parts, {"UNIT METER KN", members});
    decks::expect_limit([&] { model.ReadSDDataFromText(text); }, too_much, too_much, most_numbers_per_reading);
    expect_readable_again(model); // with a total of its own
}

/// 131072 bytes, a part in 2048 of all the text that a reading gives out.
const std::string long_word(131072, 'C');

std::string on_many_lines(const char* line, int count)
{
    std::string text = line;
    for (int i = 1; i < count; ++i)
        text.append("\n").append(line);
    return text;
}

TEST(ReadLimits, LongTextsAreGivenOutUpToALimit)
{
    const struct {
        const char* why;
        std::string lines;
        int members;      ///< one more than the limit has room for
        std::size_t line; ///< the one to blame, among `lines`, from 0
    } rows[] = {
        {"a material for some", "MATERIAL " + long_word + " MEMB 1 TO 2049", 2049, 0},
        {"a material for all", "MATERIAL " + long_word + " ALL", 2049, 0},
        {"a section, a little longer than the word, as text and as name",
         "MEMBER PROPERTY\n1 TO 1024 UPTABLE 3 " + long_word, 1024, 1},
        {"the code of a section: what the property lines are under",
         "MEMBER PROPERTY " + long_word + "\n1 TO 2049 TABLE ST A", 2049, 1},
        {"the words of a load block, a little longer than the word, in every definition",
         "LOAD 1\n" + long_word + " LOAD\n" + on_many_lines("1 UNI GY -1", 2048), 1, 1 + 2048},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.why);
        SdReader model;
        const std::size_t line = decks::first_line_under_test + row.line;
        const std::string text = decks::frame_deck({row.lines}, {"UNIT METER KN", row.members});
        decks::expect_limit([&] { model.ReadSDDataFromText(text); }, line, line, most_text_per_reading);
        expect_readable_again(model);
    }
}

TEST(ReadLimits, LongTextsMayReachTheLimit)
{
    const SdReader model = decks::read_frame({"MATERIAL " + long_word + " ALL"}, {"UNIT METER KN", 2048});
    EXPECT_EQ(model.beams.back().material, long_word);
}

} // namespace
} // namespace STAAD
