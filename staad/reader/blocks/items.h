/// Blocks of ";"-separated items, joints, members, elements and surfaces: one record from one item, and the
/// walk over all of them.
#ifndef STAAD_READER_BLOCKS_ITEMS_H
#define STAAD_READER_BLOCKS_ITEMS_H

#include "staad/model/geometry.h"
#include "staad/reader/reading.h"
#include "staad/text/lines.h"
#include "staad/text/words.h"

#include <string>
#include <string_view>
#include <vector>

namespace STAAD::detail {

// Each fills a fresh record from an item, as the record's constructor does, and returns the number of words, so
// that the caller can report an item that is too short.

std::size_t read_item(std::string_view item, SdNode& node);
std::size_t read_item(std::string_view item, SdBeam& member);
std::size_t read_item(std::string_view item, SdShell& element);
std::size_t read_item(std::string_view item, SdSurface& surface);

/// Lines of a list, `end` not included.
struct line_range {
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// The lines from `begin` on that begin with a digit from 1 to 9.
inline line_range lines_of_data(const line_list& lines, std::size_t begin)
{
    std::size_t end = begin;
    while (end < lines.size() && starts_with_digit_1_to_9(lines[end].text))
        ++end;
    return {begin, end};
}

/// The next item that is not blank; false at the end of the line.
inline bool next_item(word_cursor& items, std::string_view& item) noexcept
{
    while (items.next(item))
        if (item.find_first_not_of(' ') != std::string_view::npos)
            return true;
    return false;
}

inline std::size_t count_items(std::string_view line) noexcept
{
    std::size_t count = 0;
    word_cursor items(line, ";");
    for (std::string_view item; next_item(items, item);)
        ++count;
    return count;
}

/// What an item is called in messages, and how many words it needs.
struct item_kind {
    std::string_view name;
    std::size_t fewest_words;
};

/// Reports an item that lacks words, and one whose number is below 1.
void check_item(std::string_view item, std::size_t words, int number, const item_kind& kind, line_place place,
                finding_sink& findings);

/// For blocks in which every line builds something.
inline bool no_line(std::string_view) noexcept
{
    return false;
}

/// Appends a record per item of the lines, and calls `finish(record, place)` on each.
/// Lines for which `is_skipped` holds build nothing.
template<class Record, class Skip, class Finish>
void read_items(std::vector<Record>& records, const line_list& lines, line_range block, const item_kind& kind,
                reading& context, Skip is_skipped, Finish finish)
{
    std::size_t count = records.size();
    for (std::size_t i = block.begin; i < block.end; ++i)
        count += is_skipped(lines[i].text) ? 0 : count_items(lines[i].text);
    records.reserve(count); // exact: members are large, and a list that doubles would take the memory of a second model

    for (std::size_t i = block.begin; i < block.end; ++i) {
        context.used.mark(i);
        if (is_skipped(lines[i].text))
            continue;
        word_cursor items(lines[i].text, ";");
        for (std::string_view item; next_item(items, item);) {
            Record& record = records.emplace_back();
            const std::size_t words = read_item(item, record);
            if (context.findings.listening())
                check_item(item, words, record.id, kind, lines[i].place, context.findings);
            finish(record, lines[i].place);
        }
    }
}

} // namespace STAAD::detail

#endif
