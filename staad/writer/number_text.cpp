#include "staad/writer/number_text.h"

#include <charconv>

namespace STAAD::detail {

std::string format_real(double value)
{
    char text[32]; // "-1.23457e-308" is the longest
    const auto result = std::to_chars(text, text + sizeof text, value, std::chars_format::general, 6);
    return {text, result.ptr};
}

} // namespace STAAD::detail
