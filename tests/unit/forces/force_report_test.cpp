/// What an import reports beside the forces: codes, places, counts. That it changes nothing is shown by the random
/// listings.

#include "tests/support/findings.h"
#include "tests/support/force_listing.h"
#include "tests/support/temporary_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using listings::report_of;
using listings::section;
using listings::title_line;
using texts = std::vector<std::string>;

/// "code@line" of every finding, in order; only of one code if it is given.
texts reported(const ReadReport& report, const std::string& code = "")
{
    texts all;
    for (const Finding& finding : report.findings) {
        if (code.empty() || finding.code == code)
            all.push_back(finding.code + "@" + std::to_string(finding.first_line));
    }
    return all;
}

/// Every member of the frame, two cases of two stations each: lines 6 to 25.
const listings::lines clean_data = {
    "101 1:A @0", "@5", "2:B @0",     "@5", "102 1:A @0", "@5", "2:B @0",     "@5", "103 1:A @0", "@5",
    "2:B @0",     "@5", "104 1:A @0", "@5", "2:B @0",     "@5", "105 1:A @0", "@5", "2:B @0",     "@5",
};
const std::string clean = section(clean_data);
constexpr std::size_t last_case = 24;

/// The clean data with the line at `line` of the listing in another form.
std::string changed(std::size_t line, const std::string& text)
{
    listings::lines data = clean_data;
    data[line - listings::first_data_line] = text;
    return section(data);
}

/// The clean data with one more line before the line at `line`.
std::string inserted(std::size_t line, const std::string& text)
{
    listings::lines data = clean_data;
    data.insert(data.begin() + static_cast<std::ptrdiff_t>(line - listings::first_data_line), text);
    return section(data);
}

TEST(ForceReport, OfACleanListingHasItsSectionAndTheCaseLeftOut)
{
    const ReadReport report = report_of(clean);
    EXPECT_EQ(reported(report, "force-section"), texts({"force-section@1"}));
    EXPECT_EQ(reported(report, "force-last-case"), texts({"force-last-case@" + std::to_string(last_case)}));
    EXPECT_EQ(report.findings.size(), 2U) << testing::PrintToString(reported(report));
}

struct report_case {
    const char* why;
    std::string listing;
    const char* code;
    Finding::Severity severity;
    std::size_t line;
    const char* quoted; ///< must stand in the text
};

const std::string title = listings::element_forces.gbk;

const report_case report_cases[] = {
    {"an empty listing", "", "force-no-title", Finding::Error, 0, ""},
    {"text without a title", "one\n two\n", "force-no-title", Finding::Error, 0, ""},
    {"a section: its members and units", clean, "force-section", Finding::Note, title_line, "5 members"},
    {"its units", section(clean_data, "(m) (kN) (kN-m)"), "force-section", Finding::Note, title_line, "kN-m"},
    {"a section further down", "one\ntwo\n" + clean, "force-section", Finding::Note, 3, ""},
    {"a title at the end", clean + title + "\n", "force-section-short", Finding::Warning, 27, ""},
    {"a heading that is cut short", title + "\n---\n a\n\n (m) (kN) (kN-m)\n" + clean, "force-section-short",
     Finding::Warning, 1, ""},
    {"a length unit that no table has", section(clean_data, "(rod) (kN) (kN-m)"), "unit-word", Finding::Warning, 5,
     "rod"},
    {"a moment unit", section(clean_data, "(m) (kN) (kN-rod)"), "unit-word", Finding::Warning, 5, "kN-rod"},
    {"a unit line of two words: the second is the moment unit, too", section(clean_data, "(m) (kN)"), "unit-word",
     Finding::Warning, 5, "kN"},
    {"a moment unit of no letters", section(clean_data, "(m) (kN) ()"), "unit-word", Finding::Warning, 5,
     "names no moment unit"},
    {"a unit line without words", section(clean_data, " "), "unit-short", Finding::Warning, 5, ""},
    {"a line of six words", inserted(8, "1 2 3 4 5 6"), "force-short-line", Finding::Warning, 8, ""},
    {"a short line with a member's number", inserted(10, "102 1:A 0"), "force-short-line", Finding::Warning, 10, ""},
    {"stations before any member", inserted(6, "@5"), "force-no-member", Finding::Warning, 6, ""},
    {"a load case before any member", inserted(6, "1:A @5"), "force-no-member", Finding::Warning, 6, ""},
    {"a member that the model does not have", changed(10, "999 1:A @0"), "force-unknown-member", Finding::Warning, 10,
     "999"},
    {"the last load case of the section", clean, "force-last-case", Finding::Warning, last_case, "2"},
    {"a listing that ends within a line: the place is that of the load case", clean.substr(0, clean.size() - 4),
     "force-cut-off", Finding::Warning, last_case, "member 105"},
    {"a record of a single station: known once all sections are merged", section({"101 1:A @0", "2:B @0", "@5"}),
     "force-few-stations", Finding::Warning, 0, "member 101"},
    {"most members unknown", section({"101 1:A @0", "@5", "201 1:A @0", "202 1:A @0", "203 1:A @0"}),
     "force-other-model", Finding::Warning, 0, ""},
    {"a value that is no number", changed(7, "5 1 2 ***** 4 5 6"), "number-word", Finding::Warning, 7, "*****"},
    {"a position that is none", changed(7, "x 1 2 3 4 5 6"), "number-word", Finding::Warning, 7, "x"},
};

TEST(ForceReport, NamesCodePlaceAndReason)
{
    for (const report_case& c : report_cases) {
        const ReadReport report = report_of(c.listing);
        const std::vector<Finding> found = findings_of(report, c.code);
        EXPECT_EQ(found.size(), 1U) << c.why << testing::PrintToString(reported(report));
        if (found.empty())
            continue;
        EXPECT_EQ(found[0].severity, c.severity) << c.why;
        EXPECT_EQ(found[0].first_line, c.line) << c.why << ": " << found[0].text;
        EXPECT_GE(found[0].last_line, found[0].first_line) << c.why;
        EXPECT_NE(found[0].text.find(c.quoted), std::string::npos) << c.why << ": " << found[0].text;
        EXPECT_FALSE(found[0].text.empty()) << c.why;
    }
}

/// Listings that look odd and are in order: the code must not be reported.
const struct {
    const char* why;
    std::string listing;
    const char* code;
} silent_cases[] = {
    {"no case is left out where an unknown member ends the section",
     clean.substr(0, clean.size() - 1) + " 999 1:A 0 1 2 3 4 5 6\n\n", "force-last-case"},
    {"exponents in two words are numbers", changed(7, "5 1.5E +03 2 3 4 5 -1.0E -02"), "number-word"},
    {"a number may begin with its point", changed(7, ".5 1 2 -.3 4 5 6"), "number-word"},
    {"the words of a title are no numbers", changed(8, "2:SLAB CASE @0"), "number-word"},
    {"the end of a page closes a section as an empty line does", clean.substr(0, clean.size() - 1) + "end\n",
     "force-cut-off"},
    {"an empty line without an end closes one, too", clean, "force-cut-off"},
    {"lines of an unknown member are not wrong once more", changed(10, "999 1:A @0"), "force-no-member"},
    {"half of the members unknown is no other model",
     section({"101 1:A @0", "@5", "201 1:A @0", "@5", "102 1:A @0", "@5", "202 1:A @0"}), "force-other-model"},
    {"a load case of another member is another one", clean, "force-case-again"},
    {"the second title is as good as the first",
     section(clean_data, listings::model_units, listings::member_forces.gbk), "force-no-title"},
    {"three known words are enough", section(clean_data, "(m) (kN) (kN-m)"), "unit-short"},
    {"two words of the tables and more between", section(clean_data, "(m) (kN) (kN) (kN) (kN-m) (kN-m) (kN-m)"),
     "unit-word"},
};

TEST(ForceReport, IsSilentWhereAllIsInOrder)
{
    for (const auto& c : silent_cases)
        EXPECT_TRUE(findings_of(report_of(c.listing), c.code).empty()) << c.why;
}

TEST(ForceReport, NamesALoadCaseThatAnotherSectionHad)
{
    const ReadReport report = report_of(clean + section({"103 3:C @0", "@5", "101 1:A @0", "@5", "3:C @0"}));
    const std::vector<Finding> found = findings_of(report, "force-case-again");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_GE(found[0].first_line, 34U) << "where it is printed again";
    EXPECT_LE(found[0].first_line, 36U) << "or where its member ends";
    EXPECT_NE(found[0].text.find("load case 1 of member 101"), std::string::npos) << found[0].text;
}

TEST(ForceReport, CountsWhatIsPastFifty)
{
    listings::lines data = clean_data;
    data.insert(data.begin() + 4, 70, "x y z");
    const std::vector<Finding> found = findings_of(report_of(section(data)), "force-short-line");
    ASSERT_EQ(found.size(), ReadReport::most_per_code + 1);
    EXPECT_EQ(found.back().count, 20U);
}

TEST(ForceReport, CoversFilesAndModels)
{
    const temporary_file file(clean);
    const std::string folder = std::filesystem::path(file.path()).parent_path().string();
    const std::string missing = folder + "/missing.txt";
    SdReader model = listings::frame();
    ReadReport report;
    model.ReadForceMomentFromTxtFile(file.path(), report);
    EXPECT_EQ(reported(report), reported(report_of(clean)));
    for (const char* const path : {missing.c_str(), static_cast<const char*>(nullptr), folder.c_str()}) {
        model.ReadForceMomentFromTxtFile(path, report);
        EXPECT_EQ(reported(report), texts{path == folder.c_str() ? "file-access@0" : "file-missing@0"});
        EXPECT_EQ(report.worst(), Finding::Error);
    }
    model.beams.clear();
    model.ReadForceMomentFromTxtFile(missing.c_str(), report);
    EXPECT_EQ(reported(report), texts{"force-no-model@0"}) << "the file is not opened, the report emptied first";
    EXPECT_EQ(report.worst(), Finding::Error);
}

} // namespace
} // namespace STAAD
