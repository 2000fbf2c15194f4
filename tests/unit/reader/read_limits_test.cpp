/// Lists that ask for more numbers than a reading holds, and lists that may ask for any number because they only
/// touch what is there.

#include "staad/model/sd_reader.h"
#include "staad/report/read_limit.h"
#include "tests/support/deck.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <new>
#include <set>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using ints = std::vector<int>;

/// Reads `text`, which must pass a limit at physical lines `first` to `last`.
void expect_limit(SdReader& model, const std::string& text, std::size_t first, std::size_t last, std::size_t limit)
{
    try {
        model.ReadSDDataFromText(text);
        ADD_FAILURE() << "no exception";
    } catch (const ReadLimitError& error) {
        EXPECT_EQ(error.first_line(), first);
        EXPECT_EQ(error.last_line(), last);
        EXPECT_EQ(error.limit(), limit);
        EXPECT_NE(std::string(error.what()).find(std::to_string(first)), std::string::npos) << error.what();
    }
}

struct endless_list {
    const char* why;
    decks::lines lines;
    std::size_t first; ///< line of the list among `lines`, from 0
    std::size_t last;
};

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
    const endless_list rows[] = {
        {"supports", {"SUPPORTS", "1 TO 2000000000 FIXED"}, 1, 1},
        {"a later line", {"SUPPORTS", "1 FIXED", "2 FIXED", "3 TO 2000000000 FIXED"}, 3, 3},
        {"a continued line", {"SUPPORTS", "1 TO -", "", "2000000000 -", "FIXED"}, 1, 4},
        {"releases", {"MEMBER RELEASE", "1 TO 2000000000 START MZ"}, 1, 1},
        {"groups", {"START GROUP DEFINITION", "MEMBER", "_A 1 TO 2000000000", "END GROUP DEFINITION"}, 2, 2},
        {"groups, by a chain of ranges",
         {"START GROUP DEFINITION", "MEMBER", "_A 1 TO 10000000 TO 20000000", "END GROUP DEFINITION"},
         2,
         2},
        {"truss members", {"MEMBER TRUSS", "1 TO 2000000000"}, 1, 1},
        {"compression-only members", {"MEMBER COMPRESSION", "1 TO 2000000000"}, 1, 1},
        {"tension-only members", {"MEMBER TENSION", "1 TO 2000000000"}, 1, 1},
    };
    for (const endless_list& row : rows) {
        SCOPED_TRACE(row.why);
        SdReader model;
        expect_limit(model, decks::frame_deck(row.lines), decks::first_line_under_test + row.first,
                     decks::first_line_under_test + row.last, most_numbers_per_list);
        expect_readable_again(model);
    }
}

TEST(ReadLimits, AStoredListMayReachItsLimit)
{
    const SdReader model = decks::read_frame({"SUPPORTS", "1 TO 16777216 FIXED"});
    const std::vector<unsigned>& joints = model.supports.at("FIXED");
    ASSERT_EQ(joints.size(), most_numbers_per_list);
    EXPECT_EQ(joints.front(), 1U);
    EXPECT_EQ(joints.back(), 16777216U);
}

TEST(ReadLimits, OneDescriptionMayHoldSeveralLists)
{
    const SdReader model = decks::read_frame({"SUPPORTS", "1 TO 8388609 FIXED", "1 TO 8388609 FIXED"});
    EXPECT_EQ(model.supports.at("FIXED").size(), most_numbers_per_list + 2);
}

TEST(ReadLimits, BracesReadAloneStandInNoFile)
{
    SdReader model;
    model.brace_ids = {7};
    try {
        model.ReadBrace({"MEMBER TRUSS", "TO 16777217"});
        ADD_FAILURE() << "no exception";
    } catch (const ReadLimitError& error) {
        EXPECT_EQ(error.first_line(), 0U);
        EXPECT_EQ(error.last_line(), 0U);
        EXPECT_EQ(error.limit(), most_numbers_per_list);
    }
    EXPECT_EQ(model.brace_ids, (std::set<int>{7})) << "the range is refused before any of it is taken";
}

struct touching_list {
    decks::lines lines;
    std::function<int(const SdReader&)> marks; ///< how many records got what the list gives
    int want;
};

template<class Records, class Test>
int count_of(const Records& records, Test test)
{
    int count = 0;
    for (const auto& record : records)
        count += test(record) ? 1 : 0;
    return count;
}

/// Ranges of two thousand million numbers over a handful of records: a reader that counted them out would take
/// minutes or pass a limit.
TEST(ReadLimits, ListsThatTouchWhatIsThereMayNameAnyNumbers)
{
    const auto sections = [](const SdReader& model) {
        return count_of(model.beams, [](const SdBeam& member) { return member.sect_text == "TABLE ST A"; });
    };
    const auto angles = [](const SdReader& model) {
        return count_of(model.beams, [](const SdBeam& member) { return member.beta == 90.0; });
    };
    const auto offsets = [](const SdReader& model) {
        return count_of(model.beams, [](const SdBeam& member) { return member.offset_start.z == 100.0; });
    };
    const auto thick = [](const auto& record) { return record.thickness == 200; };
    const auto elements = [thick](const SdReader& model) { return count_of(model.shells, thick); };
    const auto surfaces = [thick](const SdReader& model) { return count_of(model.surfaces, thick); };
    const auto concrete = [](const auto& record) { return record.material == "C30"; };
    const auto materials = [concrete](const SdReader& model) {
        return count_of(model.beams, concrete) + count_of(model.shells, concrete);
    };
    const auto loads = [](const SdReader& model) {
        return count_of(model.beams, [](const SdBeam& member) { return member.int_list == ints{1}; });
    };
    const auto joint_loads = [](const SdReader& model) {
        return count_of(model.nodes, [](const SdNode& joint) { return joint.extra_ids == ints{1}; });
    };
    const decks::lines two_elements = {"ELEMENT INCIDENCES SHELL", "7 1 2 3; 8 2 3 4"};
    const decks::lines two_surfaces = {"SURFACE INCIDENCE", "1 2 3 SUR 7; 2 3 4 SUR 8"};
    const touching_list rows[] = {
        {{"MEMBER PROPERTY", "1 TO 2000000000 TABLE ST A"}, sections, 5},
        {{"MEMBER PROPERTY", "3 TO 2000000000 TO 2000000000 TABLE ST A"}, sections, 3},
        {{"BETA 90 MEMB 2 TO 2000000000"}, angles, 4},
        {{"MEMBER OFFSET", "2 TO 2000000000 START 0 0.1 0"}, offsets, 4},
        {{two_elements[0], two_elements[1], "MATERIAL C30 MEMB 4 TO 2000000000"}, materials, 4},
        {{two_elements[0], two_elements[1], "ELEMENT PROPERTY", "8 TO 2000000000 THICKNESS 0.2"}, elements, 1},
        {{two_surfaces[0], two_surfaces[1], "SURFACE PROPERTY", "7 TO 2000000000 THICKNESS 0.2"}, surfaces, 2},
        {{"LOAD 1", "MEMBER LOAD", "2 TO 2000000000 UNI GY -1"}, loads, 4},
        {{"LOAD 1", "SELFWEIGHT Y -1 LIST 2 TO 2000000000"}, loads, 4},
        {{"LOAD 1", "JOINT LOAD", "2 TO 2000000000 FY -1"}, joint_loads, 5},
    };
    for (const touching_list& row : rows) {
        SCOPED_TRACE(row.lines.back());
        const SdReader model = decks::read_frame(row.lines);
        EXPECT_EQ(row.marks(model), row.want);
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
    expect_limit(model, decks::frame_deck(parts, {"UNIT METER KN", members}), too_much, too_much,
                 most_numbers_per_reading);
    expect_readable_again(model); // with a total of its own
}

/// 131072 bytes, a part in 2048 of all the text that a reading gives out.
const std::string long_word(131072, 'C');

struct long_text {
    const char* why;
    decks::lines lines;
    int members;      ///< one more than the limit has room for
    std::size_t line; ///< the one to blame, among `lines`, from 0
};

std::string on_many_lines(const char* line, int count)
{
    std::string text = line;
    for (int i = 1; i < count; ++i)
        text.append("\n").append(line);
    return text;
}

TEST(ReadLimits, LongTextsAreGivenOutUpToALimit)
{
    const long_text rows[] = {
        {"a material for some", {"MATERIAL " + long_word + " MEMB 1 TO 2049"}, 2049, 0},
        {"a material for all", {"MATERIAL " + long_word + " ALL"}, 2049, 0},
        {"a section, a little longer than the word, as text and as name",
         {"MEMBER PROPERTY", "1 TO 1024 UPTABLE 3 " + long_word},
         1024,
         1},
        {"the code of a section: what the property lines are under",
         {"MEMBER PROPERTY " + long_word, "1 TO 2049 TABLE ST A"},
         2049,
         1},
        {"the words of a load block, a little longer than the word, in every definition",
         {"LOAD 1", long_word + " LOAD", on_many_lines("1 UNI GY -1", 2048)},
         1,
         1 + 2048},
    };
    for (const long_text& row : rows) {
        SCOPED_TRACE(row.why);
        SdReader model;
        const std::size_t line = decks::first_line_under_test + row.line;
        expect_limit(model, decks::frame_deck(row.lines, {"UNIT METER KN", row.members}), line, line,
                     most_text_per_reading);
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
