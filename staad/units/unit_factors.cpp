#include "staad/units/unit_factors.h"

#include "staad/model/sd_reader.h"
#include "staad/reader/words.h"
#include "staad/units/unit_table.h"

namespace STAAD {
namespace detail {
namespace {

/// Sets `factor` if the table knows `word`, else hands the word back.
template<class Table>
std::string look_up(const Table& table, std::string_view word, double& factor)
{
    for (const unit_word& row : table) {
        if (row.word == word) {
            factor = row.factor;
            return {};
        }
    }
    return std::string(word);
}

std::string without_first_hyphen(std::string word)
{
    if (const std::size_t hyphen = word.find('-'); hyphen != std::string::npos)
        word.erase(hyphen, 1);
    return word;
}

} // namespace

unit_factors factors_of_unit_line(std::string_view line)
{
    unit_factors factors;
    word_cursor words(line);
    words.next_or_empty(); // UNIT
    const std::string length = to_lower_ascii(words.next_or_empty());
    const std::string force = to_lower_ascii(words.next_or_empty());
    const std::string moment = to_lower_ascii(words.next_or_empty());
    factors.is_short = force.empty();
    if (factors.is_short)
        return factors;
    factors.unknown_length = look_up(length_words, length, factors.length);
    factors.unknown_force = look_up(force_words, force, factors.force);
    if (!moment.empty() && !look_up(moment_words, without_first_hyphen(moment), factors.force_length).empty())
        factors.unknown_moment = moment;
    return factors;
}

} // namespace detail

void SdReader::unify_staadpro_unit()
{
    const detail::unit_factors factors = detail::factors_of_unit_line(unit_text);
    length_factor = factors.length;
    force_factor = factors.force;
    force_length_factor = factors.force_length;
}

} // namespace STAAD
