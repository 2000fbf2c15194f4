#include "tests/unit/structure/described_loads.h"

#include <gtest/gtest.h>

namespace STAAD::test {
namespace {

/// "1 Dead|DL (2)": number, type, title, number of loads; reference cases first, with an R.
std::string described_cases(const Structure& structure)
{
    std::string text;
    for (const auto* cases : {&structure.reference_cases, &structure.load_cases})
        for (const Structure::LoadCase& each : *cases)
            text += (text.empty() ? "" : "; ") + std::string(each.is_reference ? "R" : "") +
                    std::to_string(each.number) + " " + each.type + "|" + each.title + " (" +
                    std::to_string(each.loads.size()) + ")";
    return text;
}

struct case_row {
    const char* form;
    std::vector<std::string> lines;
    const char* cases;
    const char* warnings;
    const char* why;
};

} // namespace

TEST(load_cases, each_header_opens_its_case)
{
    const std::vector<case_row> rows = {
        {"case-type-title", {"LOAD 1 LOADTYPE Dead  TITLE DL"}, "1 Dead|DL (0)", "", "two blanks before TITLE"},
        {"case-type-title",
         {"LOAD 2 LOADTYPE Live REDUCIBLE TITLE L*1.5 (+X)  -Y; 2"},
         "2 Live REDUCIBLE|L*1.5 (+X)  -Y; 2 (0)",
         "",
         "types of several words; titles keep signs and blanks"},
        {"case-type-title", {"load 3 loadtype Roof Live title r"}, "3 Roof Live|r (0)", "", "lower case"},
        {"case-type", {"LOAD 40 LOADTYPE None"}, "40 None| (0)", "", "no title"},
        {"case-type", {"LOAD 4 TITLE only"}, "4 |only (0)", "", "no type"},
        {"case-words", {"LOAD 1101 ULS_A (+X-Y+Z)"}, "1101 |ULS_A (+X-Y+Z) (0)", "", "the words are the title"},
        {"case-words",
         {"LOAD 1 DEAD AND LIVE LOAD", "SELFWEIGHT Y -1"},
         "1 |DEAD AND LIVE LOAD (1)",
         "",
         "a title that ends in LOAD"},
        {"case-words", {"LOADING 7"}, "7 | (0)", "", "no title; the long word"},
        {"case-words", {"LOAD DEAD", "SELFWEIGHT Y -1"}, "", "load-number outside-case", "no number"},
        {"case-words", {"LOAD 0 DEAD"}, "", "load-number", "numbers begin at 1"},
        {"case-words",
         {"LOAD 1 A", "SELFWEIGHT Y -1", "LOAD 2 B", "LOAD 1 C", "SELFWEIGHT X 1"},
         "1 |A (2); 2 |B (0)",
         "case-again",
         "loads of a second header join those of the first"},
        {"case-words", {"SELFWEIGHT Y -1", "LOAD 1"}, "1 | (0)", "outside-case", "loads before the first case"},
        {"case-after-combination",
         {"LOAD 1", "LOAD COMB 10", "1 1.5", "SELFWEIGHT Y -1", "LOAD 2", "SELFWEIGHT Y -1"},
         "1 | (0); 2 | (1)",
         "outside-case",
         "a combination ends the case; the next one is read"},
        {"change-between",
         {"LOAD 1", "PERFORM ANALYSIS", "CHANGE", "SELFWEIGHT Y -1", "LOAD 2", "FINISH"},
         "1 | (1); 2 | (0)",
         "",
         "loads go on after analysis commands"},
        {"reference-case",
         {"DEFINE REFERENCE LOADS", "LOAD R1 LOADTYPE Mass  TITLE M", "SELFWEIGHT Y 1", "LOAD R2", "SELFWEIGHT X 1",
          "END DEFINE REFERENCE LOADS", "LOAD 1", "SELFWEIGHT Y -1"},
         "R1 Mass|M (1); R2 | (1); 1 | (1)",
         "",
         "R1 and 1 are two cases"},
        {"reference-case",
         {"DEFINE REFERENCE LOADS", "LOAD R1", "END DEFINE REFERENCE LOADS", "SELFWEIGHT Y 1"},
         "R1 | (0)",
         "outside-case",
         "the END line ends the case"},
        {"load-list", {"LOAD 1", "LOAD LIST 1 TO 4", "LOAD LIST ENV 4", "LOAD ENVELOPE 3"}, "1 | (0)", "", "no cases"},
        {"load-generation",
         {"LOAD 1", "LOAD GENERATION 75", "TYPE 3 0 0 0 XINC 1", "SELFWEIGHT Y -1", "LOAD COMB 90", "1 1 76 1 77 1"},
         "1 | (0)",
         "outside-case case-unknown hidden-content",
         "cases 2 to 76 are made by the analysis, 77 is not"},
        {"rayleigh", {"LOAD 1", "CALCULATE RAYLEIGH FREQUENCY", "SELFWEIGHT Y -1"}, "1 | (1)", "", "the case goes on"},
    };
    for (const case_row& row : rows) {
        SCOPED_TRACE(std::string(row.form) + ": " + row.why);
        const deck_reading reading = read_in_frame(row.lines);
        EXPECT_EQ(described_cases(reading.structure), row.cases);
        EXPECT_EQ(warnings(reading.report), row.warnings);
    }
}

} // namespace STAAD::test
