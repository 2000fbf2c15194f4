#include "staad/writer/ranges.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace STAAD {
namespace {

std::string range_text(const std::pair<int, int>& range)
{
    const std::string first = std::to_string(range.first);
    return range.first == range.second ? first : first + " TO " + std::to_string(range.second);
}

/// Lines of ranges under construction.
class range_lines {
public:
    range_lines(std::string first_line, std::size_t width) : line_(std::move(first_line)), width_(width) {}

    /// Appends `piece` to the line, or begins a line with it if the line would then take more than
    /// `reserve` columns beside the two texts.
    void append(std::string_view piece, std::size_t reserve)
    {
        if (line_.size() + piece.size() + reserve > width_) {
            lines_ += line_;
            lines_ += " -\n";
            line_ = piece;
            return;
        }
        if (!line_.empty())
            line_ += ' ';
        line_ += piece;
    }

    std::string text() const { return lines_ + line_; }

private:
    std::string lines_;
    std::string line_;
    std::size_t width_;
};

constexpr std::size_t room_for_blank = 1;
constexpr std::size_t room_for_blank_and_mark = 3; // the joining blank and a later " -"

} // namespace

std::vector<std::pair<int, int>> make_id_ranges(const std::vector<int>& ids)
{
    std::vector<int> sorted = ids;
    std::sort(sorted.begin(), sorted.end());
    std::vector<std::pair<int, int>> ranges;
    for (const int id : sorted) {
        if (!ranges.empty() && std::int64_t{ranges.back().second} + 1 == id)
            ranges.back().second = id;
        else
            ranges.emplace_back(id, id);
    }
    return ranges;
}

std::string format_id_ranges(const std::string& head, const std::vector<std::pair<int, int>>& ranges, std::size_t width)
{
    range_lines lines(head, width);
    for (std::size_t i = 0; i < ranges.size(); ++i)
        lines.append(range_text(ranges[i]), i + 1 == ranges.size() ? room_for_blank : room_for_blank_and_mark);
    return lines.text();
}

std::string format_id_ranges_tail(const std::vector<std::pair<int, int>>& ranges, const std::string& tail,
                                  std::size_t width)
{
    if (ranges.empty())
        return {};
    range_lines lines({}, width);
    for (std::size_t i = 0; i + 1 < ranges.size(); ++i)
        lines.append(range_text(ranges[i]), room_for_blank_and_mark);
    // The blank before the tail belongs to the last piece, so one more is left to reserve.
    lines.append(range_text(ranges.back()) + ' ' + tail, room_for_blank);
    return lines.text();
}

} // namespace STAAD
