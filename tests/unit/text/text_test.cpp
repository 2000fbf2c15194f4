/// Words, prefixes and case.

#include "staad/text/words.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using namespace std::string_literals;
using words = std::vector<std::string>;

const struct {
    const char* why;
    std::string text;
    std::string separators;
    words want;
} splits[] = {
    {"blanks at both ends and in runs", "  A  B ", " ", {"A", "B"}},
    {"a separator at the end", "1;2;", ";", {"1", "2"}},
    {"a separator at the start", ";1;2", ";", {"1", "2"}},
    {"no separator in the text", "ABC", " ", {"ABC"}},
    {"one character", "A", " ", {"A"}},
    {"an empty text", "", " ", {}},
    {"separators only", " ;; ", "; ", {}},
    {"each separator stands for itself", "1-2 3- -4", "- ", {"1", "2", "3", "4"}},
    {"separators are a set, not a word", "1TO2OT3", "TO", {"1", "2", "3"}},
    {"three separators", "a,b;c d", ",; ", {"a", "b", "c", "d"}},
    {"without separators the text is one word", " A B ", "", {" A B "}},
    {"without separators an empty text is none", "", "", {}},
    {"a tab is no separator", "1\t2 3", " ", {"1\t2", "3"}},
    {"GBK bytes are no separators", "\xC1\xBA \xD6\xF9", " ", {"\xC1\xBA", "\xD6\xF9"}},
    {"a zero byte is a character like any other", "a\0b c"s, " ", {"a\0b"s, "c"}},
};

TEST(SplitString, CutsAtEverySeparator)
{
    for (const auto& c : splits)
        EXPECT_EQ(SplitString(c.text, c.separators), c.want) << c.why;
}

TEST(WordCursor, GivesTheWordsOfSplitString)
{
    for (const auto& c : splits) {
        SCOPED_TRACE(c.why);
        detail::word_cursor cursor(c.text, c.separators);
        words found;
        for (std::string_view word; cursor.next(word);)
            found.emplace_back(word);
        EXPECT_EQ(found, c.want);
        std::string_view word = "x";
        EXPECT_FALSE(cursor.next(word));
        EXPECT_EQ(word, "") << "past the end the word is empty";
        EXPECT_EQ(cursor.next_or_empty(), "");
    }
}

TEST(WordCursor, TellsWhatIsLeft)
{
    detail::word_cursor cursor("  3 START  MZ ");
    EXPECT_EQ(cursor.rest(), "  3 START  MZ ");
    EXPECT_EQ(cursor.next_or_empty(), "3");
    EXPECT_EQ(cursor.rest(), " START  MZ ");
    EXPECT_EQ(cursor.next_or_empty(), "START");
    detail::word_cursor ahead = cursor;
    EXPECT_EQ(ahead.next_or_empty(), "MZ");
    EXPECT_EQ(cursor.rest(), "  MZ ") << "a copy walks on its own";
}

TEST(FirstCharacter, IsTestedAsAscii)
{
    const struct {
        const char* why;
        std::string text;
        bool digit;
        bool digit_1_to_9;
    } rows[] = {
        {"1", "1", true, true},
        {"9 and more", "9ABC", true, true},
        {"0 is a digit, but no block line begins with it", "0 1 2", true, false},
        {"a letter", "A1", false, false},
        {"a blank", " 1", false, false},
        {"a sign", "-1", false, false},
        {"the character before 0", "/", false, false},
        {"the character after 9", ":", false, false},
        {"an empty text", "", false, false},
        {"superscript two of some code pages", "\xB2", false, false},
        {"a full-width digit of GBK", "\xA3\xB1", false, false},
    };
    for (const auto& c : rows) {
        EXPECT_EQ(chk_isdigit(c.text), c.digit) << c.why;
        EXPECT_EQ(detail::starts_with_digit_1_to_9(c.text), c.digit_1_to_9) << c.why;
    }
}

TEST(Keywords, AreFoundAtTheStartOrAnywhere)
{
    const struct {
        const char* why;
        const char* text;
        const char* word;
        bool at_start;
        bool anywhere;
    } rows[] = {
        {"the word alone", "UNIT", "UNIT", true, true},
        {"at the start", "UNIT METER KN", "UNIT", true, true},
        {"of a longer word", "UNITS", "UNIT", true, true},
        {"further on", "* UNIT", "UNIT", false, true},
        {"text shorter than the word", "UNI", "UNIT", false, false},
        {"case matters", "Unit METER", "UNIT", false, false},
        {"an empty word is everywhere", "A", "", true, true},
        {"an empty text holds no word", "", "UNIT", false, false},
    };
    for (const auto& c : rows) {
        EXPECT_EQ(detail::starts_with(c.text, c.word), c.at_start) << c.why;
        EXPECT_EQ(detail::contains(c.text, c.word), c.anywhere) << c.why;
    }
}

TEST(Case, ChangesAsciiLettersOnly)
{
    for (int code = 0; code < 256; ++code) {
        const char c = static_cast<char>(code);
        const bool upper = code >= 'A' && code <= 'Z';
        const bool lower = code >= 'a' && code <= 'z';
        EXPECT_EQ(detail::to_upper_ascii(c), lower ? static_cast<char>(code - 32) : c) << code;
        EXPECT_EQ(detail::to_lower_ascii(c), upper ? static_cast<char>(code + 32) : c) << code;
    }
    EXPECT_EQ(detail::to_upper_ascii(std::string_view("Pris \xE9 x9")), "PRIS \xE9 X9");
    EXPECT_EQ(detail::to_lower_ascii(std::string_view("KN-M \xC9")), "kn-m \xC9");
    EXPECT_EQ(detail::to_upper_ascii(std::string_view()), "");
}

TEST(TrimBlanks, TakesBlanksAndTabsOffBothEnds)
{
    const std::pair<const char*, const char*> rows[] = {
        {"", ""}, {" \t ", ""}, {"A", "A"}, {" \tA B\t ", "A B"}, {"A\tB", "A\tB"}, {"\rA\n", "\rA\n"},
    };
    for (const auto& [text, want] : rows)
        EXPECT_EQ(detail::trim_blanks(text), want);
}

TEST(Words, AreCountedAndTakenByPlace)
{
    const struct {
        const char* why;
        const char* text;
        std::size_t count;
        const char* first;
        const char* third;
        const char* last;
    } rows[] = {
        {"no word", "", 0, "", "", ""},
        {"blanks are no words", "   ", 0, "", "", ""},
        {"one word is first and last", " A ", 1, "A", "", "A"},
        {"two words have no third", "A B", 2, "A", "", "B"},
        {"more", "1  TO 3 TH 200 ", 5, "1", "3", "200"},
    };
    for (const auto& c : rows) {
        SCOPED_TRACE(c.why);
        EXPECT_EQ(detail::count_words(c.text), c.count);
        EXPECT_EQ(detail::word_at(c.text, 0), c.first);
        EXPECT_EQ(detail::word_at(c.text, 2), c.third);
        EXPECT_EQ(detail::last_word(c.text), c.last);
    }
}

TEST(WithoutLastWords, KeepsTheWordsBefore)
{
    const struct {
        const char* why;
        const char* text;
        std::size_t drop;
        words want;
    } rows[] = {
        {"a thickness line without word and value", "1 TO 3 TH 200", 2, {"1", "TO", "3"}},
        {"trailing blanks are no word", "1 2 3  ", 1, {"1", "2"}},
        {"as many words as are dropped", "TH 200", 2, {}},
        {"fewer words than are dropped", "200", 2, {}},
        {"nothing to drop from", "", 2, {}},
        {"none dropped", "1 2", 0, {"1", "2"}},
    };
    for (const auto& c : rows)
        EXPECT_EQ(SplitString(std::string(detail::without_last_words(c.text, c.drop)), " "), c.want) << c.why;
}

TEST(JoinWords, PutsSingleBlanksBetween)
{
    EXPECT_EQ(detail::join_words(detail::word_cursor("  FIXED   BUT  MX ")), "FIXED BUT MX");
    EXPECT_EQ(detail::join_words(detail::word_cursor("PINNED")), "PINNED");
    EXPECT_EQ(detail::join_words(detail::word_cursor("  ")), "");
    detail::word_cursor cursor("5 FIXED  BUT MZ");
    cursor.next_or_empty();
    EXPECT_EQ(detail::join_words(cursor), "FIXED BUT MZ") << "only what has not been walked yet";
}

} // namespace
} // namespace STAAD
