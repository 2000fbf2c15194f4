#include "output/table.h"

#include "cli/text_encoding.h"

#include <algorithm>
#include <utility>

namespace tool {
namespace {

constexpr std::size_t most_padded = 40;
constexpr std::size_t most_shown = 120;

} // namespace

std::string cell_text(std::string_view text, const char* instead)
{
    return text.empty() ? instead : clipped(printable_text(text), most_shown);
}

table::table(std::vector<align> columns) : columns_(std::move(columns)) {}

void table::add_row(std::vector<std::string> cells)
{
    widths_.resize(std::max(widths_.size(), cells.size()));
    for (std::size_t column = 0; column < cells.size(); ++column)
        widths_[column] = std::max(widths_[column], std::min(display_width(cells[column]), most_padded));
    rows_.push_back(std::move(cells));
}

void table::put(std_output& out) const
{
    for (const std::vector<std::string>& row : rows_) {
        std::string line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            const std::size_t width = display_width(row[column]);
            const std::string padding(widths_[column] - std::min(width, widths_[column]), ' ');
            line += "  " + (is_to_the_right(column) ? padding + row[column] : row[column] + padding);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out.put(line += '\n');
    }
}

bool table::is_to_the_right(std::size_t column) const
{
    return column < columns_.size() && columns_[column] == align::right;
}

} // namespace tool
