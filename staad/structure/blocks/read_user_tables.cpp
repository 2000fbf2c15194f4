#include "staad/structure/blocks/blocks.h"

#include "staad/structure/values.h"
#include "staad/text/words.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace STAAD::detail {
namespace {

struct family_word {
    std::string_view short_form;
    std::string_view family;
};

constexpr family_word families[] = {
    {"WIDE", "WIDE FLANGE"}, {"CHAN", "CHANNEL"}, {"ANGL", "ANGLE"},   {"DOUB", "DOUBLE ANGLE"}, {"TEE", "TEE"},
    {"PIPE", "PIPE"},        {"TUBE", "TUBE"},    {"GENE", "GENERAL"}, {"ISEC", "ISECTION"},     {"PRIS", "PRISMATIC"},
};

std::string_view family_of(std::string_view word) noexcept
{
    for (const family_word& each : families)
        if (is_word(word, each.short_form))
            return each.family;
    return {};
}

bool is_end(std::string_view word)
{
    return to_upper_ascii(word) == "END";
}

/// A START USER TABLE block: of each table its number, a UNIT line of its own, the family, then rows of a name and
/// its numbers, which begin on the line of the name or after it and may go on over several.
class table_block {
public:
    table_block(structure_reading& context, std::size_t statement)
        : context_(context), units_(context.units_at(statement)), tables_(context.structure.user_tables)
    {
        context.each_item(statement, [this](row_words& words, std::size_t row) { read_line(words, row); });
    }

private:
    enum class place { before_tables, before_family, among_rows, in_other_file };

    void read_line(row_words& words, std::size_t row)
    {
        const std::string_view first = words.peek();
        if (is_word(first, "TABL"))
            open_table(words, row);
        else if (is_word(first, "UNIT"))
            read_units(words, row);
        else if (place_ == place::before_family)
            read_family(words, row);
        else if (place_ == place::among_rows)
            read_row(words, row);
        else if (!first.empty() && !is_end(first))
            context_.report_unread(row, "a row of no table");
    }

    void open_table(row_words& words, std::size_t row)
    {
        std::string_view word;
        words.next(word); // TABLE
        const std::optional<int> number = whole_value(words.peek());
        place_ = place::before_tables;
        if (!number) {
            context_.report_unread(row, "a table without a number");
            return;
        }
        words.next(word);
        row_of_name_.clear();
        place_ = place::before_family;
        Structure::UserTable& table = tables_.emplace_back();
        table.number = *number;
        table.file = item_text(words);
        table.length_unit = units_.length_word;
        table.length_factor = units_.length;
        table.source = context_.source_of(row);
        if (table.file.empty())
            return;
        place_ = place::in_other_file;
        context_.report(FindingCode::form_kept, row, [&] {
            return "the rows of user table " + std::to_string(table.number) + " are in a file: " + quote(table.file);
        });
    }

    /// Before the first table a UNIT line counts for the tables of the block, in a table for this one alone.
    void read_units(row_words& words, std::size_t row)
    {
        std::string_view word;
        words.next(word); // UNIT
        if (place_ == place::before_tables) {
            context_.follow_unit_words(words, row, units_);
            return;
        }
        Structure::UserTable& table = tables_.back();
        if (!table.rows.empty()) {
            context_.report_unread(row, "a UNIT line among the rows of a table");
            return;
        }
        exact_units units = units_;
        context_.follow_unit_words(words, row, units);
        table.length_unit = units.length_word;
        table.length_factor = units.length;
    }

    void read_family(row_words& words, std::size_t row)
    {
        place_ = place::among_rows;
        const std::string_view family = family_of(words.peek());
        if (!family.empty()) {
            tables_.back().family = family;
            return;
        }
        context_.report_unread(row, "a user table that names no family of sections");
        read_row(words, row);
    }

    void read_row(row_words& words, std::size_t row)
    {
        const std::string_view first = words.peek();
        if (first.empty() || is_end(first))
            return;
        if (tables_.back().rows.empty() || !number_words(words).has_next())
            name_row(words, row);
        add_numbers(words, row);
    }

    void name_row(row_words& words, std::size_t row)
    {
        Structure::UserTable& table = tables_.back();
        std::string_view name;
        words.next(name);
        const auto [named, is_new] = row_of_name_.try_emplace(to_upper_ascii(name), table.rows.size());
        row_ = named->second;
        if (is_new)
            table.rows.emplace_back();
        else
            context_.report(FindingCode::number_again, row, [&] {
                return "row " + quote(name) + " of user table " + std::to_string(table.number) +
                       " is given again; the later one counts";
            });
        table.rows[row_] = {std::string(name), {}, context_.source_of(row)};
    }

    void add_numbers(row_words& words, std::size_t row)
    {
        std::string& text = tables_.back().rows[row_].text;
        std::string_view number;
        while (number_words(words).has_next() && words.next(number))
            text.append(text.empty() ? "" : " ").append(number);
        if (!words.peek().empty())
            context_.report_unread(row, "a word among the numbers of a user table");
    }

    structure_reading& context_;
    exact_units units_;
    std::vector<Structure::UserTable>& tables_;
    place place_ = place::before_tables;
    std::unordered_map<std::string, std::size_t> row_of_name_; // of the table that is open, in upper case
    std::size_t row_ = 0;                                      // that numbers go to
};

} // namespace

void read_user_tables(structure_reading& context)
{
    for (const std::size_t statement : context.statements_of(Command::user_table))
        table_block(context, statement);
}

} // namespace STAAD::detail
