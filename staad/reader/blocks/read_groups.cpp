// START GROUP DEFINITION: named groups; and the calls that read a list of numbers alone.

#include "staad/model/sd_reader.h"
#include "staad/reader/findings.h"
#include "staad/report/id_budget.h"
#include "staad/text/words.h"

namespace STAAD {
namespace {

bool is_kind_word(std::string_view line) noexcept
{
    return line == "JOINT" || line == "MEMBER" || line == "ELEMENT" || line == "GEOMETRY" || line == "FLOOR";
}

SdGroup group_of_line(const detail::text_line& line, std::string_view kind, detail::reading& context)
{
    detail::word_cursor words(line.text);
    SdGroup group;
    group.kind = kind;
    group.name = words.next_or_empty();
    detail::id_list_walker walker(words, detail::group_id_list);
    context.start_list(line.place);
    detail::append_ids(group.ids, walker, context.budget);
    detail::word_cursor after = walker.after_list();
    detail::report_list_stopped(after.next_or_empty(), line, context);
    return group;
}

/// A cursor over the words of a list that is already split.
class word_list_cursor {
public:
    word_list_cursor(const std::vector<std::string>& words, std::size_t start) : words_(&words), next_(start) {}

    bool next(std::string_view& word) noexcept
    {
        if (next_ >= words_->size())
            return false;
        word = (*words_)[next_++];
        return true;
    }

private:
    const std::vector<std::string>* words_;
    std::size_t next_;
};

} // namespace

void SdReader::ReadGroudData(const detail::line_list& lines, std::size_t start, detail::reading& context)
{
    const std::size_t begin = lines.find_equal("START GROUP DEFINITION", start);
    const std::size_t end = lines.find_equal("END GROUP DEFINITION", begin);
    if (end == lines.size()) {
        detail::report_block_open(lines, begin, "END GROUP DEFINITION", context);
        return;
    }
    context.used.mark(begin);
    context.used.mark(end);
    std::string_view kind;
    for (std::size_t i = begin + 1; i < end; ++i) {
        const std::string_view line = lines[i].text;
        if (is_kind_word(line)) {
            kind = line;
            context.used.mark(i);
        } else if (detail::count_words(line) >= 2) {
            groups.push_back(group_of_line(lines[i], kind, context));
            context.used.mark(i);
        }
    }
}

std::vector<unsigned> SdReader::extract_id_from_items(const std::vector<std::string>& tokens, unsigned start)
{
    detail::id_list_walker walker(word_list_cursor(tokens, start), detail::general_id_list);
    detail::id_budget budget;
    std::vector<unsigned> ids;
    detail::append_ids(ids, walker, budget);
    return ids;
}

std::vector<unsigned> SdReader::extract_id_from_line(const std::string& line)
{
    return extract_id_from_items(SplitString(line, " "), 0);
}

} // namespace STAAD
