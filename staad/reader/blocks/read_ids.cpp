// The number lists of the reader, counted out.

#include "staad/model/sd_reader.h"
#include "staad/report/id_budget.h"

namespace STAAD {
namespace {

/// The words of a list that was split before.
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
