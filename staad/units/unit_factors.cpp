#include "staad/units/unit_factors.h"

#include "staad/text/words.h"
#include "staad/units/unit_table.h"

#include <algorithm>
#include <iterator>

namespace STAAD::detail {
namespace {

std::string without_first_hyphen(std::string word)
{
    if (const std::size_t hyphen = word.find('-'); hyphen != std::string::npos)
        word.erase(hyphen, 1);
    return word;
}

/// Sets `factor` if the table knows the word. False if it does not.
template<class Table>
bool look_up(const Table& table, std::string_view word, double& factor)
{
    const auto row =
        std::find_if(std::begin(table), std::end(table), [&](const unit_word& r) { return r.word == word; });
    if (row != std::end(table))
        factor = row->factor;
    return row != std::end(table);
}

} // namespace

unit_factors factors_of_unit_line(std::string_view line)
{
    unit_factors factors;
    word_cursor words(line);
    words.next_or_empty(); // UNIT
    const std::string_view length = words.next_or_empty();
    const std::string_view force = words.next_or_empty();
    const std::string_view moment = words.next_or_empty();
    factors.is_short = force.empty();
    if (factors.is_short)
        return factors;
    if (!look_up(length_words, to_lower_ascii(length), factors.length))
        factors.unknown_length = length;
    if (!look_up(force_words, to_lower_ascii(force), factors.force))
        factors.unknown_force = force;
    if (!look_up(moment_words, without_first_hyphen(to_lower_ascii(moment)), factors.force_length))
        factors.unknown_moment = moment;
    return factors;
}

} // namespace STAAD::detail
