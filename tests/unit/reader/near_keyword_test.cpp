#include "staad/reader/near_keyword.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using STAAD::detail::nearly_keyword;

const struct {
    const char* why;
    const char* line;
    const char* meant; ///< "" if the line is a keyword, or like none
} near_cases[] = {
    {"a keyword is not nearly one", "MEMBER INCIDENCES", ""},
    {"nor is a line that begins with one where that is enough", "JOINT COORDINATES CYLINDRICAL", ""},
    {"words cut short, as the analysis allows them", "MEMB INCI", "MEMBER INCIDENCES"},
    {"words cut short", "JOI COO", "JOINT COORDINATES"},
    {"another case", "Member Incidences", "MEMBER INCIDENCES"},
    {"a trailing blank, which cannot be seen", "MEMBER INCIDENCES ", "MEMBER INCIDENCES"},
    {"a leading blank", "  JOINT COORDINATES", "JOINT COORDINATES"},
    {"two blanks between", "MEMBER  RELEASE", "MEMBER RELEASE"},
    {"a tab between", "SURFACE\tINCIDENCE", "SURFACE INCIDENCE"},
    {"the plural of a word that has none here", "MEMBER RELEASES", "MEMBER RELEASE"},
    {"the plural with another ending", "MEMBER PROPERTIES", "MEMBER PROPERTY"},
    {"the singular of a word that is a plural here", "SUPPORT", "SUPPORTS"},
    {"a slip", "MEMBER INCIDENSES", "MEMBER INCIDENCES"},
    {"two slips in a long word", "MEMBER INXXDENCES", "MEMBER INCIDENCES"},
    {"three are too many", "MEMBER INXXXENCES", ""},
    {"two letters exchanged are one slip", "MEMEBR INCIDENCES", "MEMBER INCIDENCES"},
    {"two words exchanged are no slip", "INCIDENCES MEMBER", ""},
    {"the last of three words left out", "ELEMENT INCIDENCES", "ELEMENT INCIDENCES SHELL"},
    {"another last word is another command", "ELEMENT INCIDENCES SOLID", ""},
    {"more on the line than a whole-line keyword has", "CONSTANTS ALL", "CONSTANTS"},
    {"unit words after a lower-case keyword", "unit meter kn", "UNIT"},
    {"a short keyword is not guessed from a longer beginning", "UNISON 1", ""},
    {"loads are loads", "MEMBER LOAD", ""},
    {"loads are loads", "JOINT LOAD", ""},
    {"other START commands", "START JOB INFORMATION", ""},
    {"other END commands", "END JOB INFORMATION", ""},
    {"a kind word of the group block", "MEMBER", ""},
    {"a report command", "PRINT SUPPORT REACTIONS", ""},
    {"nothing but blanks", "   ", ""},
};

TEST(NearKeyword, TellsWhatWasMeant)
{
    for (const auto& c : near_cases)
        EXPECT_EQ(nearly_keyword(c.line), c.meant) << "'" << c.line << "': " << c.why;
}

TEST(NearKeyword, LongLinesAreTextNotKeywords)
{
    EXPECT_EQ(nearly_keyword("MEMB INCI" + std::string(200, ' ')), "");
}

} // namespace
