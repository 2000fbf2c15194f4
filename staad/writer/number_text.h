/// Numbers to text, in the "C" form whatever the locale. Nothing else in the library does it.
#ifndef STAAD_WRITER_NUMBER_TEXT_H
#define STAAD_WRITER_NUMBER_TEXT_H

#include <string>

namespace STAAD::detail {

/// At most six significant digits, fixed or exponent notation as C's "%g" chooses: 2500, 0.12,
/// 1.23457e+06.
std::string format_real(double value);

} // namespace STAAD::detail

#endif
