#include "tests/support/random_sections.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <initializer_list>

namespace STAAD::decks {
namespace {

written_section as_it_stands(const std::string& text)
{
    return {text, text};
}

/// The dimension in whole millimetres, with the "X" that divides it from the next.
std::string dimension(const decimal& number, double length_factor)
{
    return std::to_string(truncated(number.value() * length_factor)) + 'X';
}

written_section random_pipe(chance& random, double length_factor)
{
    const decimal outer = random_decimal(random, 0, 3);
    const decimal inner = random_decimal(random, 0, 3);
    const double outer_mm = outer.value() * length_factor;
    const double inner_mm = inner.value() * length_factor;
    char text[96];
    std::snprintf(text, sizeof text, "TABLE ST PIP%gX%g", outer_mm, (outer_mm - inner_mm) * 0.5);
    return {"TABLE ST PIPE OD " + outer.spelled(random) + " ID " + inner.spelled(random), text};
}

written_section random_tapered(chance& random, double length_factor)
{
    written_section section{"TAPERED", "TAPERED"};
    for (int count = random.between(2, 7); count > 0; --count) {
        const decimal value = random_decimal(random, 0, 1);
        section.written += random.any_of({" ", " ", "  "}) + value.spelled(random);
        section.normalised += dimension(value, length_factor);
    }
    section.normalised.pop_back();
    return section;
}

written_section random_prismatic(chance& random, double length_factor)
{
    constexpr std::array<const char*, 5> names = {"YD", "ZD", "YB", "ZB", "AX"};
    written_section section{"PRIS", "PRIS"};
    const std::size_t pairs = static_cast<std::size_t>(random.between(1, 5));
    for (std::size_t pair = 0; pair < pairs; ++pair) {
        const decimal value = random_decimal(random, 0, 1);
        section.written += std::string(" ") + names[pair] + ' ' + value.spelled(random);
        section.normalised += dimension(value, length_factor);
    }
    section.normalised.pop_back();
    const bool is_odd = random.one_in(6);
    if (is_odd)
        section.written += " YD";
    if (is_odd || pairs > 4)
        section.normalised = section.written.substr(5); // one to four pairs only; else what follows the keyword
    return section;
}

} // namespace

written_section random_section(chance& random, double length_factor)
{
    switch (random.between(0, 5)) {
    case 0:
        return as_it_stands(random.any_of({"TABLE ST HN400X200X8X13", "TABLE D  C8 SP 0.5", "TABLE ST W12X26 "}));
    case 1:
        return as_it_stands(random.any_of({"UPTABLE 1 H110X200", "UPTABLE 2 H105X200  "}));
    case 2:
        return random_pipe(random, length_factor);
    case 3:
        return random_tapered(random, length_factor);
    default:
        return random_prismatic(random, length_factor);
    }
}

written_section plain_section(chance& random)
{
    const auto with_values = [&](written_section section, std::initializer_list<const char*> names) {
        for (const char* name : names) {
            const decimal value = random_decimal(random, 0, 1);
            section.written += (*name == '\0' ? "" : std::string(" ") + name) + ' ' + value.spelled(random);
            section.normalised += dimension(value, 1000.0);
        }
        section.normalised.pop_back();
        return section;
    };
    switch (random.between(0, 6)) {
    case 0:
        return as_it_stands(random.any_of({"TABLE ST HN400X200X8X13", "TABLE D C8 SP 0.5", "UPTABLE 1 H110X200"}));
    case 1:
        return random_pipe(random, 1000.0);
    case 2:
        return with_values({"TAPERED", "TAPERED"}, {"", "", "", "", ""});
    case 3:
        return with_values({"PRIS", "PRIS"}, {"YD"});
    case 4:
        return with_values({"PRIS", "PRIS"}, {"ZD", "YD"});
    default:
        return with_values({"PRIS", "PRIS"}, {"YD", "ZD", "YB", "ZB"});
    }
}

int truncated(double value)
{
    return static_cast<int>(std::trunc(value));
}

} // namespace STAAD::decks
