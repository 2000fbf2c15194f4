/// Reals to text, independent of the locale. Nothing else in the library turns reals into text.
#ifndef STAAD_TEXT_NUMBER_TEXT_H
#define STAAD_TEXT_NUMBER_TEXT_H

#include <string>

namespace STAAD::detail {

/// Written with at most six significant digits, fixed or exponent notation as C's "%g" chooses: 2500,
/// 0.12, 1.23457e+06.
struct real {
    double value;
};

/// Written with a fixed number of decimals, 1 to 4; any other count writes nothing.
struct fixed {
    double value;
    int places;
};

/// Written with six decimals, as C's "%f".
struct six_places {
    double value;
};

void append(std::string& text, int value);
void append(std::string& text, unsigned value);
void append(std::string& text, real number);
void append(std::string& text, fixed number);
void append(std::string& text, six_places number);

std::string format_real(double value);
std::string format_fixed(double value, int places);
std::string format_six_places(double value);

} // namespace STAAD::detail

#endif
