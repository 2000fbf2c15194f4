/// Load case headers, and the kind that their type text names.

#include "staad/model/load.h"

#include <gtest/gtest.h>

#include <string>

namespace STAAD {
namespace {

const struct {
    const char* why;
    const char* line;
    int id;
    const char* type_text;
    const char* title;
} headers[] = {
    {"one word each", "LOAD 1 LOADTYPE Dead TITLE DL", 1, "Dead", "DL"},
    {"a title of several words", "LOAD 3 LOADTYPE Seismic TITLE EQ X DIR", 3, "Seismic", "EQ X DIR"},
    {"a type of several words", "LOAD 4 LOADTYPE Roof Live TITLE RL", 4, "Roof Live", "RL"},
    {"runs of blanks become one", "  LOAD   12  LOADTYPE  Wind   Load  TITLE  W   X ", 12, "Wind Load", "W X"},
    {"four words are too few: not even the number", "LOAD 2 LOADTYPE Live", 0, "", ""},
    {"five words are too few, too", "LOAD 1 LOADTYPE Dead TITLE", 0, "", ""},
    {"an empty line", "", 0, "", ""},
    {"six words without LOADTYPE give the number", "LOAD 5 DEAD LOAD FROM SLAB", 5, "", ""},
    {"LOADTYPE is upper case", "LOAD 5 LoadType Dead TITLE DL", 5, "", ""},
    {"LOADTYPE is a whole word", "LOAD 5 LOADTYPES Dead TITLE DL", 5, "", ""},
    {"LOADTYPE is the third word", "LOAD 5 X LOADTYPE Dead TITLE DL", 5, "", ""},
    {"without TITLE all words are the type", "LOAD 6 LOADTYPE Dead Load From Slab", 6, "Dead Load From Slab", ""},
    {"TITLE is upper case", "LOAD 6 LOADTYPE Dead Title DL", 6, "Dead Title DL", ""},
    {"TITLE is a whole word", "LOAD 6 LOADTYPE Dead TITLES DL", 6, "Dead TITLES DL", ""},
    {"TITLE right after LOADTYPE: no type", "LOAD 7 LOADTYPE TITLE DL FLOOR", 7, "", "DL FLOOR"},
    {"TITLE as the last word: no title", "LOAD 7 LOADTYPE Dead Load TITLE", 7, "Dead Load", ""},
    {"the first TITLE counts", "LOAD 7 LOADTYPE Dead TITLE A TITLE B", 7, "Dead", "A TITLE B"},
    {"the first word is not looked at", "FOO 8 LOADTYPE Dead TITLE DL", 8, "Dead", "DL"},
    {"a number with letters after", "LOAD 9a LOADTYPE Dead TITLE DL", 9, "Dead", "DL"},
    {"no number reads as 0", "LOAD R1 LOADTYPE Dead TITLE DL", 0, "Dead", "DL"},
    {"a tab does not separate: five words", "LOAD 1 LOADTYPE\tDead TITLE DL", 0, "", ""},
    {"GBK bytes pass", "LOAD 2 LOADTYPE Live TITLE \xBB\xEE\xD4\xD8", 2, "Live", "\xBB\xEE\xD4\xD8"},
};

TEST(LoadCase, ReadsAHeaderLine)
{
    for (const auto& c : headers) {
        SCOPED_TRACE(c.why);
        const LoadCase load_case = std::string(c.line);
        EXPECT_EQ(load_case.id, c.id);
        EXPECT_EQ(load_case.type_text, c.type_text);
        EXPECT_EQ(load_case.title, c.title);
    }
}

const struct {
    const char* why;
    const char* type_text;
    LoadCase::LoadType want;
} types[] = {
    {"dead", "Dead", LoadCase::Dead},
    {"live", "Live", LoadCase::Live},
    {"wind", "Wind", LoadCase::Wind},
    {"seismic", "Seismic", LoadCase::Seismic},
    {"upper case", "WIND FROM X", LoadCase::Wind},
    {"mixed case", "sEiSmIc", LoadCase::Seismic},
    {"only the beginning counts", "Dead Load", LoadCase::Dead},
    {"a longer word counts", "Livestock", LoadCase::Live},
    {"no word further on", "Superimposed Dead", LoadCase::Unknown},
    {"nor here", "Roof Live", LoadCase::Unknown},
    {"a leading blank is another beginning", " Dead", LoadCase::Unknown},
    {"a shorter word is none", "Seism", LoadCase::Unknown},
    {"an empty text", "", LoadCase::Unknown},
    {"some other word", "Snow", LoadCase::Unknown},
};

TEST(LoadCase, KnowsItsTypeByTheBeginningOfItsText)
{
    for (const auto& c : types) {
        LoadCase load_case;
        load_case.type_text = c.type_text;
        EXPECT_EQ(load_case.load_type(), c.want) << c.why;
        EXPECT_EQ(load_case.type_text, c.type_text) << "the text keeps its case";
    }
}

LoadDefination definition()
{
    return {"MEMBER LOAD UNI", "GZ", {-0.005, 0.0, 3000.0}, 1};
}

TEST(LoadDefinition, EqualsExactlyTheSame)
{
    const struct {
        const char* why;
        LoadDefination other;
        bool want;
    } rows[] = {
        {"the same", definition(), true},
        {"another kind", {"MEMBER LOAD CON", "GZ", {-0.005, 0.0, 3000.0}, 1}, false},
        {"another direction", {"MEMBER LOAD UNI", "GX", {-0.005, 0.0, 3000.0}, 1}, false},
        {"another load case", {"MEMBER LOAD UNI", "GZ", {-0.005, 0.0, 3000.0}, 2}, false},
        {"fewer values", {"MEMBER LOAD UNI", "GZ", {-0.005, 0.0}, 1}, false},
        {"more values", {"MEMBER LOAD UNI", "GZ", {-0.005, 0.0, 3000.0, 0.0}, 1}, false},
        {"no tolerance: one unit in the last place",
         {"MEMBER LOAD UNI", "GZ", {-0.005, 0.0, 3000.0000000000005}, 1},
         false},
        {"zeros of either sign are equal numbers", {"MEMBER LOAD UNI", "GZ", {-0.005, -0.0, 3000.0}, 1}, true},
    };
    for (const auto& c : rows) {
        EXPECT_EQ(definition() == c.other, c.want) << c.why;
        EXPECT_EQ(c.other == definition(), c.want) << c.why;
    }
}

} // namespace
} // namespace STAAD
