/// The host's locale has no say in what a text means.

#include "staad/text/number.h"
#include "tests/support/model_equal.h"

#include <gtest/gtest.h>

#include <clocale>
#include <locale>
#include <string>
#include <vector>

namespace STAAD {
namespace {

const char* const deck = "UNIT METER KN KN-M\n"
                         "JOINT COORDINATES\n"
                         "1 0.125 0.5 0.25; 2 1000.5 1e1 12345678.75\n"
                         "MEMBER INCIDENCES\n"
                         "1 1 2; 1234567 2 1\n"
                         "ELEMENT INCIDENCES SHELL\n"
                         "3 1 2 1\n"
                         "ELEMENT PROPERTY\n"
                         "3 TH 0.1999\n"
                         "START GROUP DEFINITION\nMEMBER\n_G 1 1234567\nEND GROUP DEFINITION\n"
                         "MEMBER PROPERTY\n"
                         "1 1234567 TABLE ST PIPE OD 0.2195 ID 0.2\n"
                         "CONSTANTS\n"
                         "MATERIAL STEEL ALL\n"
                         "BETA 22.5 MEMB 1\n"
                         "SUPPORTS\n1 FIXED BUT MX\n"
                         "MEMBER OFFSET\n1 START 0.125 0.25 0.5\n"
                         "LOAD 1 LOADTYPE Dead TITLE DL\nMEMBER LOAD\n1 UNI GY -2.5 0.125 1.5\nFINISH\n";

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

class global_locale {
public:
    explicit global_locale(const std::locale& wanted) : before_(std::locale::global(wanted)) {}
    global_locale(const global_locale&) = delete;
    global_locale& operator=(const global_locale&) = delete;
    ~global_locale() { std::locale::global(before_); }

private:
    std::locale before_;
};

/// The first of these C locales that the machine has; set until the end of the object.
class c_locale {
public:
    c_locale() : before_(std::setlocale(LC_ALL, nullptr))
    {
        for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "fr_FR.utf8", "German_Germany"}) {
            found_ = std::setlocale(LC_ALL, name) != nullptr && *std::localeconv()->decimal_point == ',';
            if (found_)
                return;
        }
    }
    c_locale(const c_locale&) = delete;
    c_locale& operator=(const c_locale&) = delete;
    ~c_locale() { std::setlocale(LC_ALL, before_.c_str()); }

    bool has_comma() const { return found_; }

private:
    std::string before_;
    bool found_ = false;
};

SdReader read_deck()
{
    SdReader model;
    EXPECT_TRUE(model.ReadSDDataFromText(deck));
    return model;
}

/// Under the locale of the moment.
void expect_what_was_read_before(const SdReader& plain)
{
    EXPECT_EQ(detail::to_real("1.5"), 1.5);
    EXPECT_EQ(detail::to_real("1,5"), 1.0);
    EXPECT_EQ(detail::to_int("1.234"), 1);
    EXPECT_EQ(model_differences(read_deck(), plain), std::vector<std::string>());
}

TEST(Locale, ChangesNoModel)
{
    const SdReader plain = read_deck();
    EXPECT_EQ(plain.nodes.at(0).y, 125.0);
    EXPECT_EQ(plain.shells.at(0).thickness, 199);
    {
        const std::locale commas(std::locale::classic(), new comma_numbers);
        const global_locale while_reading(std::locale(commas, new odd_letters));
        expect_what_was_read_before(plain);
    }
    const c_locale while_reading;
    if (!while_reading.has_comma())
        GTEST_SKIP() << "this machine has no locale with a decimal comma";
    expect_what_was_read_before(plain);
}

} // namespace
} // namespace STAAD
