// START GROUP DEFINITION: named groups.

#include "staad/model/sd_reader.h"
#include "staad/reader/findings.h"
#include "staad/text/id_list.h"
#include "staad/text/words.h"

namespace STAAD {
namespace {

bool is_kind_word(std::string_view line) noexcept
{
    return line == "JOINT" || line == "MEMBER" || line == "ELEMENT" || line == "GEOMETRY" || line == "FLOOR";
}

SdGroup group_of_line(const detail::text_line& line, std::string_view kind, detail::reading& run)
{
    detail::word_cursor words(line.text);
    SdGroup group;
    group.kind = kind;
    group.name = words.next_or_empty();
    detail::id_list_walker walker(words, detail::group_id_list);
    run.start_list(line.place);
    detail::append_ids(group.ids, walker, run.budget);
    detail::word_cursor behind = walker.after_list();
    detail::tell_list_stopped(behind.next_or_empty(), line, run);
    return group;
}

} // namespace

void SdReader::ReadGroudData(const detail::line_list& lines, std::size_t start, detail::reading& run)
{
    const std::size_t begin = lines.find_equal("START GROUP DEFINITION", start);
    const std::size_t end = lines.find_equal("END GROUP DEFINITION", begin);
    if (end == lines.size()) {
        detail::tell_block_open(lines, begin, "END GROUP DEFINITION", run);
        return;
    }
    run.used.mark(begin);
    run.used.mark(end);
    std::string_view kind;
    for (std::size_t i = begin + 1; i < end; ++i) {
        const std::string_view line = lines[i].text;
        if (is_kind_word(line)) {
            kind = line;
            run.used.mark(i);
        } else if (detail::count_words(line) >= 2) {
            groups.push_back(group_of_line(lines[i], kind, run));
            run.used.mark(i);
        }
    }
}

} // namespace STAAD
