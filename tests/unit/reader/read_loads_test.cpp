/// The load section: case headers, the texts of definitions, and the members and joints that carry them.

#include "staad/model/sd_reader.h"
#include "tests/support/deck.h"
#include "tests/support/shown.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using ints = std::vector<int>;
using texts = std::vector<std::string>;

/// Definition texts in the order of their numbers, which must run from 1.
texts texts_of(const SdReader& model)
{
    texts found;
    for (const auto& [number, raw] : model.raw_load_defs) {
        found.push_back(raw.text);
        EXPECT_EQ(number, static_cast<int>(found.size()));
    }
    return found;
}

/// Definition numbers by the position of the record, for records that carry any: "1: 1; 2: 1 2".
template<class Records, class Record>
std::string loaded(const Records& records, ints Record::*numbers)
{
    std::map<std::size_t, ints> found;
    for (std::size_t i = 0; i < records.size(); ++i)
        if (!(records[i].*numbers).empty())
            found[i + 1] = records[i].*numbers;
    return shown(found);
}

std::string loaded_members(const SdReader& model)
{
    return loaded(model.beams, &SdBeam::int_list);
}

std::string loaded_joints(const SdReader& model)
{
    return loaded(model.nodes, &SdNode::extra_ids);
}

struct load_line {
    const char* why;
    const char* line;
    const char* text;    ///< of the definition
    const char* members; ///< that carry it
};

void expect_loads(const char* block, const std::vector<load_line>& rows)
{
    for (const load_line& row : rows) {
        SCOPED_TRACE(std::string(row.line) + ": " + row.why);
        const SdReader model = decks::read_frame({"LOAD 1", block, row.line});
        EXPECT_EQ(shown(texts_of(model)), row.text);
        EXPECT_EQ(loaded_members(model), row.members);
        EXPECT_EQ(loaded_joints(model), "-");
        EXPECT_EQ(model.beam_index.size(), 5U) << "no number enters the index";
    }
}

TEST(ReadLoad, StoresTheBlockAndTheWordsAfterTheNumbers)
{
    expect_loads(
        "MEMBER LOAD",
        {
            {"one member", "2 UNI GY -5", "MEMBER LOAD UNI GY -5", "2: 1"},
            {"range and number", "1 TO 3 5 UNI GY -5 0 3", "MEMBER LOAD UNI GY -5 0 3", "1: 1; 2: 1; 3: 1; 5: 1"},
            {"single blanks in the text", " 2   UNI  GY   -5 ", "MEMBER LOAD UNI GY -5", "2: 1"},
            {"repeats kept", "2 2 1 UNI GY -5", "MEMBER LOAD UNI GY -5", "1: 1; 2: 1 1"},
            {"a second TO counts from the last number that stands alone", "1 TO 2 TO 3 UNI GY -5",
             "MEMBER LOAD UNI GY -5", "1: 1; 2: 1 1; 3: 1"},
            {"a falling range has no number that exists but counts among the words of the list", "3 TO 2 UNI GY -5",
             "MEMBER LOAD UNI GY -5", "3: 1"},
            {"unknown members are passed over", "99 2 UNI GY -5", "MEMBER LOAD UNI GY -5", "2: 1"},
            {"the definition is stored even if no member carries it", "99 TO 101 UNI GY -5", "MEMBER LOAD UNI GY -5",
             "-"},
            {"numbers alone: the block is the text", "1 2 3", "MEMBER LOAD", "1: 1; 2: 1; 3: 1"},
            {"one word after the numbers drops the line", "1 2 3 UNI", "-", "-"},
            {"after a range, too", "1 TO 3 UNI", "-", "-"},
            {"TO without a bound is such a word", "1 TO", "-", "-"},
            {"TO before a word ends the list and belongs to the text", "1 TO UNI GY -5", "MEMBER LOAD TO UNI GY -5",
             "1: 1"},
            {"a bound of 0, too", "1 TO 0 UNI GY -5", "MEMBER LOAD TO 0 UNI GY -5", "1: 1"},
            {"0 ends the list and belongs to the text", "5 0 UNI GY -5", "MEMBER LOAD 0 UNI GY -5", "5: 1"},
            {"no numbers, no load", "UNI GY -5", "-", "-"},
            {"0 is no number", "0 UNI GY -5", "-", "-"},
            {"a line with a semicolon is skipped whole", "1 UNI GY -5; 2 UNI GY -5", "-", "-"},
            {"a comment is skipped", "* 1 UNI GY -5", "-", "-"},
            {"a leading blank makes no comment, but the list stops at once", " * 1 UNI GY -5", "-", "-"},
            {"a line whose last word is LOAD is a block", "1 UNI LOAD", "-", "-"},
            {"a line that begins with LOAD is a header", "LOAD 1 UNI GY -5", "-", "-"},
        });
}

TEST(ReadLoad, ReadsSelfweightInAnyBlock)
{
    expect_loads("FLOOR LOAD",
                 {
                     {"no member carries it", "SELFWEIGHT Y -1", "SELFWEIGHT Y -1", "-"},
                     {"the list begins at the fifth word", "SELFWEIGHT Y -1 LIST 1 TO 2 4", "SELFWEIGHT Y -1",
                      "1: 1; 2: 1; 4: 1"},
                     {"whatever the fourth is", "SELFWEIGHT Y -1 1 2 3", "SELFWEIGHT Y -1", "2: 1; 3: 1"},
                     {"unknown members are passed over", "SELFWEIGHT X 1.5 LIST 99 3 TO 7", "SELFWEIGHT X 1.5",
                      "3: 1; 4: 1; 5: 1"},
                     {"ALL lists no number", "SELFWEIGHT Y -1 ALL", "SELFWEIGHT Y -1", "-"},
                     {"single blanks in the text", "SELFWEIGHT  Y   -1  LIST 1", "SELFWEIGHT Y -1", "1: 1"},
                     {"two words", "SELFWEIGHT Y", "SELFWEIGHT Y", "-"},
                     {"one word", "SELFWEIGHT", "SELFWEIGHT", "-"},
                     {"any word that begins so", "SELFWEIGHTS Y -1 LIST 1", "SELFWEIGHTS Y -1", "1: 1"},
                     {"but a line whose last word is LOAD is a block", "SELFWEIGHT LOAD", "-", "-"},
                     {"and with a semicolon it is skipped", "SELFWEIGHT Y -1;", "-", "-"},
                     {"a leading blank makes it a line without numbers", " SELFWEIGHT Y -1", "-", "-"},
                 });
}

TEST(ReadLoad, LooksNumbersUpAmongJointsUnderJointLoadOnly)
{
    const struct {
        const char* why;
        const char* block;
        const char* text;
        const char* kind;
        bool joints;
    } rows[] = {
        {"joints", "JOINT LOAD", "JOINT LOAD FY -10", "JOINT LOAD", true},
        {"a trailing blank makes it another block", "JOINT LOAD ", "JOINT LOAD  FY -10", "JOINT LOAD", false},
        {"so do two blanks inside", "JOINT  LOAD", "JOINT  LOAD FY -10", "", false},
        {"elements are looked up among members", "ELEMENT LOAD", "ELEMENT LOAD FY -10", "", false},
        {"any line that ends so is a block", "2 UNI LOAD", "2 UNI LOAD FY -10", "", false},
        {"floors", "FLOOR LOAD", "FLOOR LOAD FY -10", "FLOOR LOAD", false},
        {"areas", "AREA LOAD", "AREA LOAD FY -10", "AREA LOAD FY", false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.block) + ": " + row.why);
        const SdReader model = decks::read_frame({"LOAD 1", row.block, "5 FY -10"});
        EXPECT_EQ(texts_of(model), (texts{row.text}));
        EXPECT_EQ(loaded_joints(model), row.joints ? "5: 1" : "-");
        EXPECT_EQ(loaded_members(model), row.joints ? "-" : "5: 1");
        EXPECT_EQ(model.load_defs.at(1).kind, row.kind);
    }
}

TEST(ReadLoad, GivesJointsTheNumbersOfTheirLoads)
{
    const SdReader model = decks::read_frame({"LOAD 1", "JOINT LOAD", "1 TO 3 5 5 99 FY -10", "2 FX 1", "6 FY", "4"});
    EXPECT_EQ(texts_of(model), (texts{"JOINT LOAD FY -10", "JOINT LOAD FX 1", "JOINT LOAD"}));
    EXPECT_EQ(loaded_joints(model), "1: 1; 2: 1 2; 3: 1; 4: 3; 5: 1 1");
    EXPECT_EQ(model.load_defs.at(1).values, (std::vector<double>{0, 0, -10, 0, 0, 0}));
    EXPECT_EQ(model.node_index.count(99), 0U);
}

TEST(ReadLoad, OfRecordsWithOneNumberTheLastIsLoaded)
{
    const SdReader model = decks::read(decks::joined(
        {"UNIT METER KN", "JOINT COORDINATES", "1 0 0 0; 2 1 0 0; 1 2 0 0", "MEMBER INCIDENCES", "7 1 2; 8 1 77; 7 2 1",
         "LOAD 1", "MEMBER LOAD", "7 8 UNI GY -1", "JOINT LOAD", "1 TO 2 77 FY -10", "FINISH"}));
    EXPECT_EQ(loaded_members(model), "2: 1; 3: 1");
    EXPECT_EQ(loaded_joints(model), "2: 2; 3: 2")
        << "joint 77 is in the index, since a member names it, but is no joint";
}

TEST(ReadLoad, NumbersDefinitionsThroughAllBlocksAndCases)
{
    const SdReader model = decks::read_frame({
        "LOAD 1 LOADTYPE Dead TITLE DL",
        "SELFWEIGHT Y -1 LIST 2",
        "MEMBER LOAD",
        "1 2 UNI GY -5",
        "LOAD 7 LOADTYPE Live TITLE LL",
        "2 UNI GY -3",
        "JOINT LOAD",
        "2 FY -10",
        "LOAD COMB 10 ULS",
        "1 1.2 7 1.4 0",
    });
    EXPECT_EQ(texts_of(model),
              (texts{"SELFWEIGHT Y -1", "MEMBER LOAD UNI GY -5", "MEMBER LOAD UNI GY -3", "JOINT LOAD FY -10"}))
        << "a header leaves the block as it is";
    EXPECT_EQ(loaded_members(model), "1: 2; 2: 1 2 3");
    EXPECT_EQ(loaded_joints(model), "2: 4");
    ASSERT_EQ(model.load_defs.size(), 4U);
    const int cases[] = {1, 1, 7, 7};
    for (int number = 1; number <= 4; ++number) {
        EXPECT_EQ(model.raw_load_defs.at(number).load_case, cases[number - 1]);
        EXPECT_EQ(model.load_defs.at(number).load_case, cases[number - 1]);
    }
    EXPECT_EQ(model.load_defs.at(3).kind, "MEMBER LOAD UNI");
    EXPECT_EQ(model.load_defs.at(3).direction, "GZ");
    EXPECT_EQ(model.load_defs.at(3).values, (std::vector<double>{-3.0 / 1000.0}));
}

TEST(ReadLoad, NumbersFromOneInEveryReading)
{
    SdReader model = decks::read_frame({"LOAD 4", "MEMBER LOAD", "1 UNI GY -5", "1 UNI GY -6"});
    ASSERT_TRUE(model.ReadSDDataFromText(decks::frame_deck({"LOAD 5", "MEMBER LOAD", "2 UNI GY -7"})));
    EXPECT_EQ(texts_of(model), (texts{"MEMBER LOAD UNI GY -7"}));
    EXPECT_EQ(loaded_members(model), "2: 1");
    EXPECT_EQ(model.load_defs.size(), 1U);
    EXPECT_EQ(model.load_cases.size(), 1U);
    EXPECT_EQ(model.load_cases.count(5), 1U);
}

} // namespace
} // namespace STAAD
