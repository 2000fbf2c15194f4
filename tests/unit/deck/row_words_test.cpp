/// The words of rows, in every way in which lines may be continued, parted and ended.

#include "staad/deck/row_words.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace STAAD {
namespace {

/// Rows parted by " | ": words with one blank, items with " ; "; "~" is a blank row, "*" a comment, "<" generated.
std::string shown_rows(const Deck& deck)
{
    std::string shown;
    for (std::size_t row = 0; row < deck.row_count(); ++row) {
        if (row > 0)
            shown += " | ";
        switch (deck.row(row).kind) {
        case RowKind::blank:
            shown += "~";
            continue;
        case RowKind::comment:
            shown += "*";
            continue;
        case RowKind::generated:
            shown += "<";
            continue;
        default:
            break;
        }
        detail::row_words words(deck, row);
        std::string_view word;
        const char* between = "";
        do {
            for (; words.next(word); between = " ") {
                EXPECT_GE(word.data(), deck.text().data());
                EXPECT_LE(word.data() + word.size(), deck.text().data() + deck.text().size());
                (shown += between) += word;
            }
            between = " ; ";
        } while (words.next_item());
    }
    return shown;
}

TEST(RowWords, AreThoseOfEveryForm)
{
    const struct {
        const char* form;
        const char* text;
        const char* rows;
        const char* why;
    } cases[] = {
        {"line-ends", "A\nB\r\nC\rD", "A | B | C | D", "LF, CR LF, CR alone, none; mixed"},
        {"line-ends", "A\r\r\nB\n\rC", "A | ~ | B | ~ | C", "a CR that no LF follows ends a line of its own"},
        {"line-ends",
         "\xEF\xBB\xBF"
         "A -\nB\x1A",
         "A B", "a mark before and an end after the text are no words"},
        {"line-ends", "\xEF\xBB\xBF* A -\nB", "* | B", "a comment after the mark"},
        {"line-ends",
         "\xEF\xBB\xBF"
         "7-\nB",
         "7 B", "a number after the mark"},
        {"line-ends", "A\n\x1A", "A | ~", "an end on a line of its own"},
        {"several-items", "1 0;2 1 ; 3 2;", "1 0 ; 2 1 ; 3 2", "no item after the last one"},
        {"several-items", "1 0;;2;\n;3 1", "1 0 ; 2 | 3 1", "nothing between two is no item, nor before the first"},
        {"several-items", "1 0; -\n2 1", "1 0 ; 2 1", "an item on the next line"},
        {"several-items", "1 0;-\n2 1", "1 0 ; 2 1", "continued without a blank"},
        {"continuation", "A -\nB -\n C", "A B C", "any number of lines"},
        {"continuation", "A - \t\nB", "A B", "blanks after it"},
        {"continuation", "1 TO 7-\n9", "1 TO 7 9", "after a number without a blank"},
        {"continuation", "1 2.5E1-\n9", "1 2.5E1 9", "after any number"},
        {"continuation", "PZ -\n9", "PZ 9", "after a word with a blank"},
        {"continuation", "Q345-\n9", "Q345- | 9", "part of a word"},
        {"continuation", "A - B\nC", "A - B | C", "not at the end of the line"},
        {"continuation", "A --\nB", "A -- | B", "two are a word"},
        {"continuation", "-\nB", "B", "alone on the line"},
        {"continuation", "A -\n\n* B -\n C", "A C", "blank lines and comments between mean nothing"},
        {"continuation", "A -\n", "A", "nothing to go on with"},
        {"continuation", "A -\n* B\n", "A | *", "what follows at the end is not of the row"},
        {"comment", "* A -\nB", "* | B", "is never continued"},
        {"comment", " \t* A\nB * C", "* | B * C", "blanks may stand before it; not after words"},
        {"generated-block", "A\n <! B -\nC\nD !> E\nF", "A | < | F", "up to its end"},
        {"generated-block", "<! A\nB", "< | B", "one that nothing ends is one line"},
        {"generated-block", "<A\nB <!", "<A | B <!", "begins a line with both characters"},
        {"trailing-blanks", "A B \t \nC\t", "A B | C", "mean nothing"},
        {"leading-blank", "  A\n\tB", "A | B", "mean nothing"},
        {"tabs", "A\tB\t\tC", "A B C", "are blanks"},
        {"two-blanks", "A  B,C, D", "A B C D", "are one; commas are blanks"},
        {"quoted-name", "A 'IPE 300' B", "A 'IPE 300' B", "is one word, with its quotes"},
        {"quoted-name", "A \"B; -\" C", "A \"B; -\" C", "whatever stands in it"},
        {"quoted-name", "A 'B C\nD' E", "A 'B C | D' E", "closed on its own line or no quote at all"},
        {"quoted-name", "A B'C D'", "A B'C D'", "a quote within a word is none"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(shown_rows(Deck(each.text)), each.rows) << each.form << ": " << each.why;
}

TEST(RowWords, OfLongLines)
{
    SCOPED_TRACE("long-lines");
    std::string text = "0";
    for (int i = 1; i < 5000; ++i)
        text += " " + std::to_string(i);
    EXPECT_EQ(shown_rows(Deck(text)), text);
}

TEST(RowWords, GiveTheRestAsWritten)
{
    const Deck deck("LOAD 1  ULS  (+X;  'a' -\n*\n  b , ");
    detail::row_words words(deck, 0);
    std::string_view word;
    words.next(word);
    words.next(word);
    EXPECT_EQ(words.peek(), "ULS");
    EXPECT_EQ(words.rest(), "ULS  (+X;  'a' b");
    EXPECT_EQ(words.rest(), "") << "nothing is left";
}

TEST(IsWord, AsksForTheShortestForm)
{
    EXPECT_TRUE(detail::is_word("Joints", "JOIN"));
    EXPECT_FALSE(detail::is_word("JOI", "JOIN"));
    EXPECT_TRUE(detail::is_word("e", "E"));
    EXPECT_FALSE(detail::is_word("END", "E")) << "one or two letters are the whole word";
}

} // namespace
} // namespace STAAD
