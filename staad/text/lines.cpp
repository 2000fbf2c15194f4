#include "staad/text/lines.h"

#include "staad/text/words.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

namespace STAAD::detail {
namespace {

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
constexpr char end_of_file_mark = '\x1A'; // old editors end a text with it, or fill its last block

std::string_view without_marks(std::string_view text) noexcept
{
    if (starts_with(text, byte_order_mark))
        text.remove_prefix(byte_order_mark.size());
    return text.substr(0, text.find_last_not_of(end_of_file_mark) + 1);
}

std::string_view without_carriage_return(std::string_view line) noexcept
{
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return line;
}

bool is_continued(std::string_view line) noexcept
{
    return line.back() == '-' && !is_comment(line);
}

/// Physical lines are counted in 32 bits; past that every line has the highest number.
void count_up(std::uint32_t& number) noexcept
{
    if (number != std::numeric_limits<std::uint32_t>::max())
        ++number;
}

} // namespace

line_cursor::line_cursor(std::string_view text) noexcept : rest_(without_marks(text)) {}

bool line_cursor::next(text_line& line) noexcept
{
    if (rest_.empty())
        return false;
    count_up(number_);
    const std::size_t end = std::min(rest_.find('\n'), rest_.size());
    line = {without_carriage_return(rest_.substr(0, end)), {number_, number_}};
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    return true;
}

line_list::line_list(std::unique_ptr<char[]> buffer, std::size_t size, std::string_view skip_prefix)
    : buffer_(std::move(buffer))
{
    line_cursor cursor({buffer_.get(), size});
    lines_.reserve(static_cast<std::size_t>(std::count(cursor.rest().begin(), cursor.rest().end(), '\n')) + 1);
    for (text_line line; cursor.next(line);) {
        if (skip_prefix.empty() || !starts_with(line.text, skip_prefix))
            lines_.push_back(line);
    }
}

line_list line_list::from_text(std::string_view text, std::string_view skip_prefix)
{
    std::unique_ptr<char[]> buffer(new char[text.size() + 1]); // not zeroed: every byte is overwritten
    if (!text.empty())
        std::memcpy(buffer.get(), text.data(), text.size());
    return {std::move(buffer), text.size(), skip_prefix};
}

void line_list::prepare()
{
    join_continued();
    commands_.clear();
    for (std::size_t i = 0; i < lines_.size(); ++i)
        if (starts_with_letter(lines_[i].text))
            commands_.push_back(i);
}

// One pass, in place: a continued line grows over the bytes of the line ends and dropped lines after
// it, so text only ever moves toward the front.
void line_list::join_continued() noexcept
{
    std::size_t kept = 0;
    bool continues = false;
    for (const text_line& line : lines_) {
        if (trim_blanks(line.text).empty())
            continue;
        if (continues) {
            text_line& open = lines_[kept - 1];
            char* const begin = buffer_.get() + (open.text.data() - buffer_.get());
            begin[open.text.size() - 1] = ' ';
            std::memmove(begin + open.text.size(), line.text.data(), line.text.size());
            open.text = {begin, open.text.size() + line.text.size()};
            open.place.last = line.place.last;
        } else {
            lines_[kept++] = line;
        }
        continues = is_continued(lines_[kept - 1].text);
    }
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(kept), lines_.end());
    if (continues) {
        const std::string_view last = lines_.back().text;
        buffer_[static_cast<std::size_t>(last.data() - buffer_.get()) + last.size() - 1] = ' ';
    }
}

template<class Match>
std::size_t line_list::find_command(std::size_t from, Match match) const noexcept
{
    auto command = std::lower_bound(commands_.begin(), commands_.end(), from);
    command = std::find_if(command, commands_.end(), [&](std::size_t i) { return match(lines_[i].text); });
    return command == commands_.end() ? lines_.size() : *command;
}

std::size_t line_list::find_equal(std::string_view keyword, std::size_t from) const noexcept
{
    return find_command(from, [keyword](std::string_view line) { return line == keyword; });
}

std::size_t line_list::find_start(std::string_view keyword, std::size_t from) const noexcept
{
    return find_command(from, [keyword](std::string_view line) { return starts_with(line, keyword); });
}

} // namespace STAAD::detail
