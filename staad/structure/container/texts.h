/// Texts of the container: words of the deck, with the numbers in metres and kilonewtons.
#ifndef STAAD_STRUCTURE_CONTAINER_TEXTS_H
#define STAAD_STRUCTURE_CONTAINER_TEXTS_H

#include "staad/text/number.h"
#include "staad/text/shortest_number.h"
#include "staad/text/words.h"

#include <string>
#include <string_view>

namespace STAAD::detail {

/// `value` of the model as a text that `to_model` makes `value` of: `written` if it does, else the shortest one.
template<class ToModel>
std::string number_text(double value, ToModel to_model, std::string_view written = {})
{
    const auto fits = [&](double candidate) { return to_model(candidate) == value; };
    const number_parse<double> parsed = parse_real(written);
    if (!written.empty() && parsed.size == written.size() && fits(parsed.value))
        return std::string(written);
    return shortest_fitting(value / to_model(1.0), fits);
}

/// `text` with the number after some of its words in the units of the container: `value_after(word)` gives the
/// optional text of the number that stands after a word, from the word and the number as written.
template<class NumberAfter>
std::string with_numbers_after(std::string_view text, NumberAfter number_after)
{
    std::string result;
    word_cursor words(text);
    std::string_view before;
    for (std::string_view word; words.next(word); before = word) {
        const bool is_number = parse_real(word).size == word.size();
        append_word(result, is_number ? number_after(before, word) : std::string(word));
    }
    return result;
}

} // namespace STAAD::detail

#endif
