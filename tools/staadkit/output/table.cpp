#include "output/table.h"

#include "cli/terminal.h"
#include "cli/text_encoding.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace tool {
namespace {

constexpr std::size_t gap = 2; // before every column
constexpr std::size_t least_cut = 8;
constexpr std::size_t most_padded = 40;
constexpr std::size_t most_shown = 120;

} // namespace

std::string cell_text(std::string_view text, const char* instead)
{
    return text.empty() ? instead : clipped(printable_text(text), most_shown);
}

table::table(std::vector<align> columns) : columns_(std::move(columns)) {}

void table::add_heading(std::vector<std::string> cells)
{
    add_row(std::move(cells));
    ++headings_;
}

void table::add_row(std::vector<std::string> cells)
{
    widths_.resize(std::max(widths_.size(), cells.size()));
    for (std::size_t column = 0; column < cells.size(); ++column)
        widths_[column] = std::max(widths_[column], display_width(cells[column]));
    rows_.push_back(std::move(cells));
}

/// The widths with which no line takes more than `room` cells: the widest texts are cut, cell by cell. With
/// `room` 0 lines may have any length.
std::vector<std::size_t> table::widths_within(std::size_t room) const
{
    std::vector<std::size_t> widths = widths_;
    if (room == 0) {
        for (std::size_t& width : widths)
            width = std::min(width, most_padded);
        return widths;
    }
    std::size_t total = std::accumulate(widths.begin(), widths.end(), gap * widths.size());
    for (; total > room; --total) {
        std::size_t* widest = nullptr;
        for (std::size_t column = 0; column < widths.size(); ++column) {
            if (!is_to_the_right(column) && widths[column] > (widest == nullptr ? least_cut : *widest))
                widest = &widths[column];
        }
        if (widest == nullptr)
            break;
        --*widest;
    }
    return widths;
}

void table::put(std_output& out) const
{
    // The last cell of a line stays free: some consoles begin a new line when it is filled.
    const std::size_t terminal = terminal_width(stdout);
    const bool is_cut = terminal > 1;
    const std::vector<std::size_t> widths = widths_within(is_cut ? terminal - 1 : 0);
    for (const std::vector<std::string>& row : rows_) {
        std::string line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            const std::string cell = is_cut ? clipped(row[column], widths[column]) : row[column];
            const std::string padding(widths[column] - std::min(display_width(cell), widths[column]), ' ');
            line.append(gap, ' ').append(is_to_the_right(column) ? padding + cell : cell + padding);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        const bool is_heading = &row < &rows_.front() + headings_;
        out.put((is_heading ? painted(line, paint::heading, stdout) : line) + '\n');
    }
}

bool table::is_to_the_right(std::size_t column) const
{
    return column < columns_.size() && columns_[column] == align::right;
}

} // namespace tool
