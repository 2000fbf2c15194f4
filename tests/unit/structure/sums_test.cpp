#include "staad/report/read_limit.h"
#include "staad/structure/flattened.h"
#include "tests/unit/structure/described_loads.h"

#include <gtest/gtest.h>

namespace STAAD::test {
namespace {

/// "10 |1*1.5 2*1": number, title, terms; a method before them.
std::string described_combinations(const Structure& structure)
{
    std::string text;
    for (const Structure::Combination& each : structure.combinations)
        text += (text.empty() ? "" : "; ") + std::to_string(each.number) + " " + each.title + "|" + each.method +
                (each.method.empty() ? "" : " ") + described(each.terms);
    return text;
}

struct combination_row {
    std::vector<std::string> lines; // after cases 1 to 3
    const char* combinations;
    const char* warnings;
    const char* why;
};

Structure with_combinations(std::vector<std::string> lines)
{
    lines.insert(lines.begin(), {"LOAD 1", "SELFWEIGHT Y -1", "LOAD 2", "LOAD 3"});
    return read_in_frame(lines).structure;
}

std::string flattened_last(const Structure& structure)
{
    return described(flattened(structure, structure.combinations.back()));
}

} // namespace

TEST(sums, loads_of_other_cases)
{
    check_loads({
        {"repeat-load",
         {"LOAD 1", "LOAD 2", "LOAD 3", "REPEAT LOAD", "1 1.5 2 -0.3"},
         "cases 1*1.5 2*-0.3",
         "",
         "a sum, no list of members"},
        {"repeat-load",
         {"LOAD 1", "LOAD 2", "LOAD 3", "REPEAT LOAD", "1 1.5", "2 0.5 1 -", "0.1"},
         "cases 1*1.5 2*0.5 1*0.1",
         "",
         "over several rows and lines"},
        {"repeat-load",
         {"LOAD 1", "LOAD 2", "LOAD 3", "REPEAT LOAD", "1 1.5 2", "0.5"},
         "cases 1*1.5 2*0.5",
         "",
         "a factor on the next row"},
        {"repeat-load",
         {"LOAD 1", "LOAD 2", "LOAD 3", "REPEAT LOAD", "1 1.5 2", "2 0.5"},
         "cases 1*1.5 2*0.5",
         "line-unread",
         "no factor, and the next row has pairs of its own"},
        {"repeat-load", {"LOAD 1", "REPEAT LOAD", "1.5 1"}, "", "line-unread line-unread", "no number of a case"},
        {"repeat-load",
         {"DEFINE REFERENCE LOADS", "LOAD R2", "END DEFINE REFERENCE LOADS", "LOAD 1", "LOAD 2", "REPEAT LOAD",
          "1 1 R2 0.5"},
         "cases 1*1 R2*0.5",
         "",
         "a reference case among others"},
        {"repeat-load", {"LOAD 1", "REPEAT LOAD", "9 1"}, "cases 9*1", "case-unknown", "no such case"},
        {"repeat-load", {"LOAD 1", "REPEAT LOAD", "1 1"}, "cases 1*1", "line-unread", "a case of itself"},
        {"reference-load",
         {"DEFINE REFERENCE LOADS", "LOAD R1", "LOAD R2", "END DEFINE REFERENCE LOADS", "LOAD 1", "REFERENCE LOAD",
          "R1 1.0 R2 0.5"},
         "cases R1*1 R2*0.5",
         "",
         "reference cases"},
        {"reference-load", {"LOAD 1", "REFERENCE LOAD", "R1 1.0"}, "cases R1*1", "case-unknown", "case 1 is not R1"},
        {"spectrum",
         {"LOAD 1", "SPECTRUM SRSS X 1 ACC SCALE 9.8 DAMP 0.05 LIN IMR 3 STARTCASE 100", "0.1 2; 1 3", "LOAD 2",
          "REPEAT LOAD", "101 1 103 1 104 1"},
         "kept; cases 101*1 103*1 104*1",
         "case-unknown",
         "three cases of single modes, 101 to 103"},
    });
}

TEST(sums, combinations)
{
    const std::vector<combination_row> rows = {
        {{"LOAD COMB 10 1.2D + 1.6L", "1 1.2 2 1.6"}, "10 1.2D + 1.6L|1*1.2 2*1.6", "", "title and pairs"},
        {{"LOAD COMBINATION 10", "1 1.2", "2 1.6"}, "10 |1*1.2 2*1.6", "", "no title, several rows"},
        {{"LOAD COMB 10 A", "1 0.5 2 1.0 2 -0.3"}, "10 A|1*0.5 2*1 2*-0.3", "", "as stated"},
        {{"LOAD COMB 10 A", "1 1", "UNIT MMS KN", "2 1"}, "10 A|1*1 2*1", "", "goes on after a UNIT line"},
        {{"LOAD COMB SRSS 10 A", "1 1 2 1", "LOAD COMB ABS 11", "1 1"},
         "10 A|SRSS 1*1 2*1; 11 |ABS 1*1",
         "",
         "the method before the number"},
        {{"LOAD COMB A", "1 1"}, "", "load-number", "no number"},
        {{"LOAD COMB 10", "1 1 9 1"}, "10 |1*1 9*1", "case-unknown", "no such case"},
        {{"LOAD COMB 10", "1 1", "LOAD COMB 10", "2 1"}, "10 |1*1; 10 |2*1", "case-again", "both are kept"},
        {{"LOAD COMB 1", "2 1"}, "1 |2*1", "case-again", "the number of a load case"},
        {{"LOAD COMB 10", "1 X 2 1"}, "10 |", "line-unread", "the row is left at what is no factor"},
    };
    for (const combination_row& row : rows) {
        SCOPED_TRACE(std::string("combination") + ": " + row.why);
        std::vector<std::string> lines = row.lines;
        lines.insert(lines.begin(), {"LOAD 1", "LOAD 2", "LOAD 3"});
        const deck_reading reading = read_in_frame(lines);
        EXPECT_EQ(described_combinations(reading.structure), row.combinations);
        EXPECT_EQ(warnings(reading.report), row.warnings);
    }
}

TEST(flattened, combinations_come_to_load_cases)
{
    struct {
        std::vector<std::string> lines;
        const char* sum;
        const char* why;
    } const rows[] = {
        {{"LOAD COMB 10", "2 0.5 1 1.0 1 -0.3"}, "2*0.5 1*0.7", "factors of one case are added up"},
        {{"LOAD COMB 10", "1 2 2 3", "LOAD COMB 11", "10 10 3 1 2 1"}, "1*20 2*31 3*1", "combinations in it resolved"},
        {{"LOAD COMB 11", "10 2", "LOAD COMB 10", "1 3", "LOAD COMB 12", "11 1"}, "1*6", "in any order of the text"},
        {{"LOAD COMB 10", "10 5 1 1"}, "1*1", "a term that comes back counts as none"},
        {{"LOAD COMB 10", "11 2 1 1", "LOAD COMB 11", "10 2 2 1"}, "1*2 2*1", "the same in a ring"},
        {{"LOAD COMB SRSS 10", "1 2", "LOAD COMB 11", "10 3 1 1"}, "10*3 1*1", "SRSS is no sum"},
        {{"LOAD COMB 10", "1 2", "LOAD COMB SRSS 11", "10 3 1 1"}, "10*3 1*1", "nor is anything in it resolved"},
        {{"LOAD COMB 10", "77 2"}, "77*2", "a case that no record has stays"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(flattened_last(with_combinations(row.lines)), row.sum) << row.why;
}

TEST(flattened, load_cases_come_to_cases_with_loads)
{
    const Structure structure =
        read_in_frame({"DEFINE REFERENCE LOADS", "LOAD R1", "SELFWEIGHT Y 1", "END DEFINE REFERENCE LOADS", "LOAD 1",
                       "SELFWEIGHT Y -1", "LOAD 2", "REPEAT LOAD", "1 2", "REFERENCE LOAD", "R1 3", "LOAD 3",
                       "REPEAT LOAD", "2 10 1 1", "SELFWEIGHT X 1"})
            .structure;
    const auto sum_of = [&](std::size_t i) { return described(flattened(structure, structure.load_cases.at(i))); };
    EXPECT_EQ(sum_of(0), "1*1");
    EXPECT_EQ(sum_of(1), "1*2 R1*3");
    EXPECT_EQ(sum_of(2), "1*21 R1*30 3*1") << "its own loads are loads of it, too";
    EXPECT_EQ(described(flattened(structure, structure.reference_cases.at(0))), "R1*1");
}

TEST(flattened, costs_go_by_terms_and_are_bounded)
{
    // Each combination twice the one before it: 2 to the 60th ways down to case 1.
    std::vector<std::string> lines;
    for (int i = 10; i < 70; ++i) {
        lines.push_back("LOAD COMB " + std::to_string(i));
        lines.push_back(i == 10 ? "1 1" : std::to_string(i - 1) + " 1 " + std::to_string(i - 1) + " 1");
    }
    EXPECT_EQ(flattened_last(with_combinations(lines)), "1*" + described(576460752303423488.0));
    // A chain that would be too deep for one call within another.
    Structure chain;
    chain.load_cases.resize(1);
    chain.load_cases[0].number = 1;
    for (int i = 2; i <= 100000; ++i) {
        chain.combinations.emplace_back();
        chain.combinations.back().number = i;
        chain.combinations.back().terms = {{i - 1, false, 1.0}};
    }
    EXPECT_EQ(described(flattened(chain, chain.combinations.back())), "1*1");
    // 16 calls of 2 to the 20th terms each are all that there may be.
    chain.combinations.resize(1);
    chain.combinations[0].terms.assign(std::size_t{1} << 20U, {1, false, 1.0});
    FlattenedCases all(chain);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(described(all.of(chain.combinations[0])), "1*1048576");
    EXPECT_THROW(all.of(chain.combinations[0]), ReadLimitError);
}

} // namespace STAAD::test
