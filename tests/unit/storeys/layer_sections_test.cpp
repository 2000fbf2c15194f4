/// Sections of a project: their numbers, and what members carry of them.

#include "tests/support/deck.h"
#include "tests/support/layered.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

using layered::bars;
using layered::member;
using layered::project_of;
using texts = std::vector<std::string>;

/// "1 C30 PRIS500X500": number, material, property.
std::string words(const Section& section)
{
    return std::to_string(section.tag) + ' ' + section.material + ' ' + section.property;
}

texts sections(const StaadProProject_layered& project)
{
    texts all;
    for (const Section& section : project.sections)
        all.push_back(words(section));
    return all;
}

/// Members between joints 1 at 0, 2 at 3000, 3 at 6000, all above each other, and joint 4 above all levels.
/// The column 101 gives the levels.
SdReader stack(const bars& members)
{
    bars all = {{1, 2, "FIRST", "M0"}, {2, 3, "FIRST", "M0"}};
    all.insert(all.end(), members.begin(), members.end());
    return layered::model({{0, 0, 0}, {0, 0, 3000}, {0, 0, 6000}, {500, 0, 9000}}, all);
}

TEST(ProjectSections, AreNumberedByFirstUse)
{
    const StaadProProject_layered project =
        project_of(stack({{1, 2, "Z", "C30"}, {2, 3, "A", "C30"}, {1, 2, "M", "C30"}, {2, 3, "Z", "C30"}}));
    EXPECT_EQ(sections(project), (texts{"1 M0 FIRST", "2 C30 Z", "3 C30 A", "4 C30 M"}));
    EXPECT_EQ(member(project, 101).section.tag, 1);
    EXPECT_EQ(member(project, 102).section.tag, 1);
    EXPECT_EQ(member(project, 103).section.tag, 2);
    EXPECT_EQ(member(project, 104).section.tag, 3);
    EXPECT_EQ(member(project, 105).section.tag, 4);
    EXPECT_EQ(member(project, 106).section.tag, 2);
}

TEST(ProjectSections, CountTheUseByMembersOfNoStorey)
{
    const StaadProProject_layered project = project_of(stack({{1, 1, "AT THE LOWEST LEVEL", "C30"},
                                                              {3, 4, "ABOVE", "C30"},
                                                              {0, 0, "WITHOUT JOINTS", "C30"},
                                                              {2, 3, "IN A STOREY", "C30"}}));
    EXPECT_EQ(sections(project), (texts{"1 M0 FIRST", "2 C30 AT THE LOWEST LEVEL", "3 C30 ABOVE",
                                        "4 C30 WITHOUT JOINTS", "5 C30 IN A STOREY"}));
    EXPECT_EQ(member(project, 106).section.tag, 5);
}

TEST(ProjectSections, HoldTheFirstOneOfAPropertyEachMemberItsOwnMaterial)
{
    const StaadProProject_layered project =
        project_of(stack({{3, 4, "PRIS400", "C50"}, {1, 2, "PRIS400", "C30"}, {2, 3, "PRIS400", ""}}));
    EXPECT_EQ(sections(project), (texts{"1 M0 FIRST", "2 C50 PRIS400"})) << "the first one is in no storey";
    EXPECT_EQ(words(member(project, 104).section), "2 C30 PRIS400");
    EXPECT_EQ(words(member(project, 105).section), "2  PRIS400");
}

TEST(ProjectSections, AreAllThatDifferInTheirPropertyTexts)
{
    struct row {
        const char* why;
        const char* one;
        const char* other;
        texts want; ///< after the first section
    };
    const row rows[] = {
        {"equal texts are one", "PRIS500", "PRIS500", {"2 C30 PRIS500"}},
        {"small letters become capitals", "pris500x300", "PRIS500X300", {"2 C30 PRIS500X300"}},
        {"blanks before a text belong to it", " PRIS500", "PRIS500", {"2 C30  PRIS500", "3 C30 PRIS500"}},
        {"and after it", "PRIS500", "PRIS500 ", {"2 C30 PRIS500", "3 C30 PRIS500 "}},
        {"and two in the middle", "TABLE ST A", "TABLE ST  A", {"2 C30 TABLE ST A", "3 C30 TABLE ST  A"}},
        {"no text is a text", "", "PRIS500", {"2 C30 ", "3 C30 PRIS500"}},
        {"one may begin like the other", "PRIS50", "PRIS500", {"2 C30 PRIS50", "3 C30 PRIS500"}},
        {"bytes past ASCII stay",
         "UPTABLE 1 \xb8\xd6\xd6\xf9",
         "UPTABLE 1 \xb8\xd6\xd6\xfa",
         {"2 C30 UPTABLE 1 \xb8\xd6\xd6\xf9", "3 C30 UPTABLE 1 \xb8\xd6\xd6\xfa"}},
    };
    for (const row& r : rows) {
        texts want = r.want;
        want.insert(want.begin(), "1 M0 FIRST");
        EXPECT_EQ(sections(project_of(stack({{1, 2, r.one, "C30"}, {2, 3, r.other, "C30"}}))), want) << r.why;
    }
}

TEST(ProjectSections, HaveTheirFamilies)
{
    const StaadProProject_layered project = project_of(stack({{1, 2, "st hn300x150x6x9", "Q345"}}));
    EXPECT_EQ(project.sections.at(0).type, "");
    EXPECT_EQ(project.sections.at(1).type, "ST");
    EXPECT_EQ(member(project, 103).section.type, "ST");
    EXPECT_EQ(member(project, 103).section.property, "ST HN300X150X6X9");
    EXPECT_EQ(member(project, 103).member.sect_text, "st hn300x150x6x9") << "the member's own text stays";
}

TEST(ProjectSections, AreSortedByNumberHoweverMany)
{
    bars members;
    for (int i = 0; i < 1200; ++i)
        members.push_back({1, 2, std::to_string((i * 7 + 3) % 600), "C30"}); // 7 and 600 have no common divisor
    const StaadProProject_layered project = project_of(stack(members));
    ASSERT_EQ(project.sections.size(), 601U);
    for (int i = 0; i < 600; ++i) {
        const Section& section = project.sections[static_cast<std::size_t>(i) + 1];
        EXPECT_EQ(section.tag, i + 2);
        EXPECT_EQ(section.property, std::to_string((i * 7 + 3) % 600));
    }
    EXPECT_EQ(member(project, 103 + 600).section.tag, 2) << "the first text for the second time";
}

TEST(ProjectSections, ComeFromTheTextsReadNotFromThoseWritten)
{
    const SdReader model = decks::read("UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 3 0; 3 6 3 0; 4 6 0 0;\n"
                                       "MEMBER INCIDENCES\n1 1 2; 2 2 3; 3 4 3;\n"
                                       "MEMBER PROPERTY CHINESE\n1 PRIS YD 0.5 ZD 0.4\n"
                                       "3 PRIS ZD 0.5 YD 0.4\n2 TABLE ST W12x26\nCONSTANTS\n"
                                       "MATERIAL C40 MEMB 3\nFINISH\n");
    const StaadProProject_layered project = project_of(model);
    EXPECT_EQ(sections(project), (texts{"1 STEEL PRIS500X400", "2 STEEL TABLE ST W12X26"}));
    EXPECT_EQ(words(member(project, 3).section), "1 C40 PRIS500X400");
    EXPECT_EQ(member(project, 3).member.sect_name, "PRIS ZD 0.5 YD 0.4");
}

} // namespace
} // namespace STAAD
