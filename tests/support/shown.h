/// Lists and maps in one line, as a row of a table of cases says them: "1 2 7" for numbers, "9: 1; 3: 2" for a map of
/// numbers, "FIXED: 1 2; PINNED: 7" for a map of lists.
#ifndef STAAD_TESTS_SUPPORT_SHOWN_H
#define STAAD_TESTS_SUPPORT_SHOWN_H

#include "staad/text/number_text.h"

#include <string>
#include <type_traits>

namespace STAAD {

/// What is empty - a text, a list, a map - is "-".
template<class Value>
std::string shown(const Value& value)
{
    if constexpr (std::is_convertible_v<Value, std::string>) {
        const std::string text = value;
        return text.empty() ? "-" : text;
    } else if constexpr (std::is_integral_v<Value>) {
        return std::to_string(value);
    } else if constexpr (std::is_floating_point_v<Value>) {
        return detail::format_real(value);
    } else if constexpr (requires { value.first; }) {
        return shown(value.first) + ": " + shown(value.second);
    } else {
        std::string text;
        for (const auto& element : value) {
            constexpr bool is_entry = requires
            {
                element.first;
            };
            text += (text.empty() ? "" : is_entry ? "; " : " ") + shown(element);
        }
        return shown(text);
    }
}

/// The same of one field of every record: shown_fields(model.beams, &SdBeam::material).
template<class Records, class Record, class Field>
std::string shown_fields(const Records& records, Field Record::*field)
{
    std::string text;
    for (const auto& record : records)
        text += (text.empty() ? "" : " ") + shown(record.*field);
    return shown(text);
}

} // namespace STAAD

#endif
