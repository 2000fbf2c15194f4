#include "staad/reader/blocks/items.h"

#include "staad/reader/findings.h"
#include "staad/text/number.h"
#include "staad/text/words.h"

namespace STAAD {
namespace detail {

std::size_t read_item(std::string_view item, SdNode& node)
{
    word_cursor words(item);
    const std::string_view number = words.next_or_empty();
    const std::string_view file_x = words.next_or_empty();
    const std::string_view file_y = words.next_or_empty();
    const std::string_view file_z = words.next_or_empty();
    node.id = to_int(number);
    node.x = to_real(file_z);
    node.y = to_real(file_x);
    node.z = to_real(file_y);
    return file_z.empty() ? count_words(item) : 4;
}

std::size_t read_item(std::string_view item, SdBeam& member)
{
    word_cursor words(item);
    const std::string_view number = words.next_or_empty();
    const std::string_view start = words.next_or_empty();
    const std::string_view end = words.next_or_empty();
    member.id = to_int(number);
    member.node_start = to_int(start);
    member.node_end = to_int(end);
    return end.empty() ? count_words(item) : 3;
}

std::size_t read_item(std::string_view item, SdShell& element)
{
    const std::size_t count = count_words(item);
    word_cursor words(item);
    element.id = to_int(words.next_or_empty());
    element.node_ids.reserve(count - (count > 0 ? 1 : 0));
    for (std::string_view corner; words.next(corner);)
        element.node_ids.push_back(to_int(corner));
    return count;
}

std::size_t read_item(std::string_view item, SdSurface& surface)
{
    const std::size_t count = count_words(item);
    if (count < 4)
        return count;
    surface.id = to_int(last_word(item));
    word_cursor corners(without_last_words(item, 2));
    surface.node_ids.reserve(count - 2);
    for (std::string_view corner; corners.next(corner);)
        surface.node_ids.push_back(to_int(corner));
    return count;
}

void check_item(std::string_view item, std::size_t words, int number, const item_kind& kind, line_place place,
                finding_sink& findings)
{
    if (words < kind.fewest_words)
        findings.add(FindingCode::item_short, place, [&] {
            return std::string(kind.name) + " " + quote(item) + " has " + std::to_string(words) + " of at least " +
                   std::to_string(kind.fewest_words) + " words; missing ones count as 0";
        });
    else if (number < 1)
        findings.add(FindingCode::item_number, place, [&] {
            return std::string(kind.name) + " " + quote(item) + " has the number " + std::to_string(number) +
                   ", which no list can name";
        });
}

} // namespace detail

SdNode::SdNode(const std::string& item)
{
    detail::read_item(item, *this);
}

SdBeam::SdBeam(const std::string& item)
{
    detail::read_item(item, *this);
}

SdShell::SdShell(const std::string& item)
{
    detail::read_item(item, *this);
}

SdSurface::SdSurface(const std::string& item)
{
    detail::read_item(item, *this);
}

} // namespace STAAD
