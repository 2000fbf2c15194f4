/// The truss members.

#include "staad/model/sd_reader.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace STAAD {
namespace {

/// Members of these kinds, each without a section.
SdReader model_of_kinds(const std::vector<int>& kinds)
{
    SdReader model = written::row_of_members(static_cast<int>(kinds.size()));
    for (std::size_t i = 0; i < kinds.size(); ++i)
        model.beams[i].kind_code = kinds[i];
    return model;
}

std::string truss_block(const std::vector<int>& kinds)
{
    return written::between(model_of_kinds(kinds), "END DEFINE MATERIAL", "MEMBER PROPERTY ");
}

TEST(WriteTruss, ListsBracesAndHorizontalBracesUnderTheirKeyword)
{
    struct row {
        const char* why;
        std::vector<int> kinds;
        const char* want;
    };
    const row rows[] = {
        {"beams and columns are no truss members", {Beam, Column}, ""},
        {"braces are", {Beam, Brace, Column}, "MEMBER TRUSS \n2\n"},
        {"horizontal ones, too", {HorizontalBrace, Brace, Beam, Brace}, "MEMBER TRUSS \n1 TO 2 4\n"},
        {"kinds that there are not mean nothing", {-1, 4, 22}, ""},
    };
    for (const row& c : rows)
        EXPECT_EQ(truss_block(c.kinds), c.want) << c.why;
}

TEST(WriteTruss, ContinuesItsListAfterSeventyNineCharacters)
{
    std::vector<int> kinds(100, Beam);
    for (std::size_t i = 10; i < kinds.size(); i += 2)
        kinds[i] = Brace; // members 11, 13 ... 99
    EXPECT_EQ(truss_block(kinds), "MEMBER TRUSS \n"
                                  "11 13 15 17 19 21 23 25 27 29 31 33 35 37 39 41 43 45 47 49 51 53 55 57 59 61 -\n"
                                  "63 65 67 69 71 73 75 77 79 81 83 85 87 89 91 93 95 97 99\n");
}

TEST(WriteTruss, ForgetsTheMembersDeclaredAsBracesByTheFile)
{
    SdReader model = model_of_kinds({Beam, Beam});
    model.brace_ids = {1, 2, 700};
    EXPECT_EQ(written::between(model, "END DEFINE MATERIAL", "MEMBER PROPERTY "), "");
    model.WriteDataToText();
    EXPECT_TRUE(model.brace_ids.empty());
}

TEST(WriteTruss, LeavesTheBracesInTheModelByTheirNewNumbers)
{
    SdReader model = model_of_kinds({Beam, Brace, HorizontalBrace});
    model.beams[1].id = 500;
    model.brace_ids = {500};
    model.WriteDataToText();
    EXPECT_EQ(model.brace_ids, (std::set<int>{2, 3}));
}

} // namespace
} // namespace STAAD
