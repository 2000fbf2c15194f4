// The table of codes.

#include "staad/report/finding_codes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace {

using STAAD::Finding;
using STAAD::FindingCode;
using STAAD::FindingCodeInfo;

TEST(FindingCodes, HaveOneTextEachThatFindsThem)
{
    std::set<std::string> texts;
    for (const FindingCodeInfo& info : STAAD::finding_codes()) {
        const std::string text = info.text;
        EXPECT_TRUE(texts.insert(text).second) << text;
        EXPECT_EQ(STAAD::find_finding_code(text), &STAAD::finding_code_info(info.code)) << text;
        EXPECT_EQ(text.find_first_not_of("abcdefghijklmnopqrstuvwxyz-"), std::string::npos) << text;
    }
    EXPECT_EQ(texts.size(), STAAD::finding_codes().size());
    EXPECT_EQ(STAAD::find_finding_code("unit-words"), nullptr);
    EXPECT_EQ(STAAD::find_finding_code(""), nullptr);
}

TEST(FindingCodes, SayWhatTheyMeanAndWhatToDoInOneLine)
{
    for (const FindingCodeInfo& info : STAAD::finding_codes())
        for (const std::string sentence : {info.meaning, info.advice}) {
            EXPECT_TRUE(!sentence.empty() && sentence.back() == '.') << info.text;
            EXPECT_EQ(sentence.find_first_of("|\n"), std::string::npos) << info.text;
        }
}

TEST(FindingCodes, GiveAFindingItsSeverityAndPlace)
{
    const Finding finding = STAAD::make_finding(FindingCode::limit, "too many", 3, 4);
    EXPECT_EQ(finding.code, "limit");
    EXPECT_EQ(finding.severity, Finding::Error);
    EXPECT_EQ(finding.first_line, 3U);
    EXPECT_EQ(finding.last_line, 4U);
    EXPECT_EQ(finding.text, "too many");
    EXPECT_EQ(finding.count, 1U);
    EXPECT_EQ(STAAD::make_finding(FindingCode::unit_word, "").severity, Finding::Warning);
    EXPECT_EQ(STAAD::make_finding(FindingCode::skipped, "").severity, Finding::Note);
}

} // namespace
