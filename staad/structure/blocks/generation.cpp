#include "staad/structure/blocks/generation.h"

#include "staad/structure/values.h"
#include "staad/text/number.h"
#include "staad/text/words.h"

namespace STAAD::detail {

std::optional<repeat_line> read_repeat(structure_reading& context, row_words& words, std::size_t row)
{
    repeat_line repeat;
    std::string_view word;
    words.next(word); // REPEAT
    if (to_upper_ascii(words.peek()) == "ALL") {
        repeat.is_all = true;
        words.next(word);
    }
    const std::optional<int> times = whole_value(words.peek());
    if (!times || *times < 1) {
        context.report_unread(row, "no number of copies");
        return std::nullopt;
    }
    words.next(word);
    repeat.times = *times;
    const line_place place = context.place_of(row);
    context.budget.start_list(place.first, place.last);
    for (number_words numbers(words); const std::optional<double> number = numbers.next();) {
        context.budget.take(1);
        repeat.numbers.push_back(*number);
    }
    if (!words.peek().empty())
        context.report_unread(row, "a word among the numbers of REPEAT");
    return repeat;
}

std::optional<steps> steps_of(const repeat_line& repeat) noexcept
{
    if (repeat.numbers.size() != 2)
        return std::nullopt;
    for (const double number : repeat.numbers)
        if (number != truncate_to_int(number))
            return std::nullopt;
    return steps{truncate_to_int(repeat.numbers[0]), truncate_to_int(repeat.numbers[1])};
}

} // namespace STAAD::detail
