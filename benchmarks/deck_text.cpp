#include "deck_text.h"

#include <algorithm>
#include <charconv>
#include <cstring>

namespace STAAD::bench {

std::vector<id_range> ranges_of(const std::vector<int>& ascending_ids)
{
    std::vector<id_range> ranges;
    for (const int id : ascending_ids) {
        if (!ranges.empty() && ranges.back().last + 1 == id)
            ranges.back().last = id;
        else
            ranges.push_back({id, id});
    }
    return ranges;
}

void deck_text::line(std::string_view text)
{
    text_ += text;
    text_ += '\n';
}

void deck_text::item(std::string_view text)
{
    if (column_ > 0 && column_ + text.size() + 2 > width)
        end_line();
    if (column_ > 0) {
        text_ += ' ';
        ++column_;
    }
    text_ += text;
    text_ += ';';
    column_ += text.size() + 1;
}

void deck_text::end_items()
{
    if (column_ > 0)
        end_line();
}

void deck_text::list(std::string_view head, const std::vector<id_range>& ids, std::string_view tail)
{
    if (!head.empty())
        word(head);
    item_text piece;
    for (const auto& ids_of_piece : ids) {
        piece.clear().number(ids_of_piece.first);
        if (ids_of_piece.last == ids_of_piece.first + 1)
            piece.number(ids_of_piece.last);
        else if (ids_of_piece.last > ids_of_piece.first)
            piece.word("TO").number(ids_of_piece.last);
        word(piece.view());
    }
    if (!tail.empty())
        word(tail);
    end_line();
}

void deck_text::word(std::string_view text)
{
    const std::size_t mark = 2; // room for " -"
    if (column_ > 0 && column_ + 1 + text.size() + mark > width) {
        text_ += " -";
        end_line();
    }
    if (column_ > 0) {
        text_ += ' ';
        ++column_;
    }
    text_ += text;
    column_ += text.size();
}

void deck_text::end_line()
{
    text_ += '\n';
    column_ = 0;
}

item_text& item_text::number(int value) noexcept
{
    blank();
    size_ = static_cast<std::size_t>(std::to_chars(buffer_ + size_, buffer_ + sizeof buffer_, value).ptr - buffer_);
    return *this;
}

item_text& item_text::metres(int millimetres) noexcept
{
    blank();
    if (millimetres < 0)
        buffer_[size_++] = '-';
    const int size_in_mm = millimetres < 0 ? -millimetres : millimetres;
    char* end = std::to_chars(buffer_ + size_, buffer_ + sizeof buffer_, size_in_mm / 1000).ptr;
    const int rest = size_in_mm % 1000;
    if (rest > 0) {
        *end++ = '.';
        *end++ = static_cast<char>('0' + rest / 100);
        *end++ = static_cast<char>('0' + rest / 10 % 10);
        *end++ = static_cast<char>('0' + rest % 10);
        while (end[-1] == '0')
            --end;
    }
    size_ = static_cast<std::size_t>(end - buffer_);
    return *this;
}

item_text& item_text::word(std::string_view text) noexcept
{
    blank();
    const std::size_t count = std::min(text.size(), sizeof buffer_ - size_);
    std::memcpy(buffer_ + size_, text.data(), count);
    size_ += count;
    return *this;
}

} // namespace STAAD::bench
