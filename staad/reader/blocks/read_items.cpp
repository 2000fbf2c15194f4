#include "staad/reader/blocks/read_items.h"

#include "staad/reader/findings.h"

namespace STAAD::detail {
void check_item(std::string_view item, std::size_t words, int number, const item_kind& kind, line_place place,
                finding_sink& findings)
{
    if (words < kind.fewest_words)
        findings.add(FindingCode::item_short, place, [&] {
            return std::string(kind.name) + " " + quote(item) + " has " + std::to_string(words) + " of at least " +
                   std::to_string(kind.fewest_words) + " words; what is missing counts as 0";
        });
    else if (number < 1)
        findings.add(FindingCode::item_number, place, [&] {
            return std::string(kind.name) + " " + quote(item) + " has the number " + std::to_string(number) +
                   ", which no list can name";
        });
}

} // namespace STAAD::detail
