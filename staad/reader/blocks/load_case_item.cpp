#include "staad/model/load.h"
#include "staad/reader/blocks/load_header.h"
#include "staad/text/number.h"
#include "staad/text/words.h"

namespace STAAD {
namespace {

void append_word(std::string& text, std::string_view word)
{
    if (!text.empty())
        text += ' ';
    text += word;
}

} // namespace

LoadCase::LoadCase(const std::string& line)
{
    if (detail::count_words(line) < detail::words_of_full_load_header)
        return;
    detail::word_cursor words(line);
    words.next_or_empty(); // LOAD
    id = detail::to_int(words.next_or_empty());
    if (words.next_or_empty() != "LOADTYPE")
        return;
    std::string_view word;
    while (words.next(word) && word != "TITLE")
        append_word(type_text, word);
    title = detail::join_words(words);
}

} // namespace STAAD
