#include "staad/text/number_text.h"

#include <charconv>
#include <limits>

namespace STAAD::detail {
namespace {

// A sign, every digit of the largest double before the point, the point, six decimals.
constexpr int longest_number = std::numeric_limits<double>::max_exponent10 + 10;

template<class... Form>
void append_chars(std::string& text, Form... form)
{
    char digits[longest_number];
    text.append(digits, std::to_chars(digits, digits + sizeof digits, form...).ptr);
}

template<class Number>
std::string text_of(Number number)
{
    std::string text;
    append(text, number);
    return text;
}

} // namespace

void append(std::string& text, int value)
{
    append_chars(text, value);
}

void append(std::string& text, unsigned value)
{
    append_chars(text, value);
}

void append(std::string& text, real number)
{
    append_chars(text, number.value, std::chars_format::general, 6);
}

void append(std::string& text, fixed number)
{
    if (number.places >= 1 && number.places <= 4)
        append_chars(text, number.value, std::chars_format::fixed, number.places);
}

void append(std::string& text, six_places number)
{
    append_chars(text, number.value, std::chars_format::fixed, 6);
}

std::string format_real(double value)
{
    return text_of(real{value});
}

std::string format_fixed(double value, int places)
{
    return text_of(fixed{value, places});
}

std::string format_six_places(double value)
{
    return text_of(six_places{value});
}

} // namespace STAAD::detail
