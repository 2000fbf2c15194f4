/// The host's locale has no say in what a text means.

#include "staad/text/number.h"
#include "tests/support/model_equal.h"
#include "tests/support/random_deck.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdint>
#include <locale>
#include <string>
#include <vector>

namespace STAAD {
namespace {

/// Decimal comma, thousands in groups of three with points.
class comma_numbers : public std::numpunct<char> {
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

/// Turns letters the wrong way round, as far as a locale can.
class odd_letters : public std::ctype<char> {
protected:
    char do_toupper(char) const override { return '?'; }
    const char* do_toupper(char* begin, const char* end) const override
    {
        for (; begin != end; ++begin)
            *begin = '?';
        return end;
    }
    char do_tolower(char) const override { return '?'; }
    const char* do_tolower(char* begin, const char* end) const override { return do_toupper(begin, end); }
};

/// Brings back the locales that were there, of C++ and of C.
class locales_kept {
public:
    locales_kept() : of_c_(std::setlocale(LC_ALL, nullptr)) {}
    locales_kept(const locales_kept&) = delete;
    locales_kept& operator=(const locales_kept&) = delete;
    ~locales_kept()
    {
        std::locale::global(of_cpp_);
        std::setlocale(LC_ALL, of_c_.c_str());
    }

private:
    std::locale of_cpp_;
    std::string of_c_;
};

/// Sets the first of these C locales that the machine has.
bool set_c_locale_with_comma()
{
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "fr_FR.utf8", "German_Germany"})
        if (std::setlocale(LC_ALL, name) != nullptr && *std::localeconv()->decimal_point == ',')
            return true;
    return false;
}

/// Under the locale of the moment, decks read as the models they were made from.
void expect_same_meaning(const std::vector<decks::random_deck>& all)
{
    EXPECT_EQ(detail::to_real("1.5"), 1.5);
    EXPECT_EQ(detail::to_real("1,5"), 1.0);
    EXPECT_EQ(detail::to_int("1.234"), 1);
    for (const decks::random_deck& deck : all) {
        SdReader model;
        EXPECT_TRUE(model.ReadSDDataFromText(deck.text));
        EXPECT_EQ(model_differences(model, deck.model), std::vector<std::string>());
    }
}

TEST(Locale, ChangesNoModel)
{
    std::vector<decks::random_deck> all;
    for (std::uint64_t seed = 7001; seed <= 7040; ++seed)
        all.push_back(decks::make_random_deck(seed, 20));
    const locales_kept kept;
    std::locale::global(std::locale(std::locale(std::locale::classic(), new comma_numbers), new odd_letters));
    expect_same_meaning(all);
    if (!set_c_locale_with_comma())
        GTEST_SKIP() << "this machine has no locale with a decimal comma";
    expect_same_meaning(all);
}

} // namespace
} // namespace STAAD
