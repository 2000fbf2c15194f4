/// Records of a block as they are read, and those that one line stands for.
#ifndef STAAD_STRUCTURE_BLOCKS_GENERATION_H
#define STAAD_STRUCTURE_BLOCKS_GENERATION_H

#include "staad/structure/reading.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace STAAD::detail {

/// The records of one kind with a `number`. Of two with one number the later counts, in the place of the earlier.
template<class Record>
class numbered_records {
public:
    /// `name` as in "joint 5 is there twice".
    numbered_records(structure_reading& context, const char* name) noexcept : context_(context), name_(name) {}

    void add(Record record, std::size_t row)
    {
        // As long as numbers rise, which they nearly always do, none can be there already.
        const bool is_new = is_rising_ && record.number > highest_ ? true : index(record.number);
        highest_ = std::max(highest_, record.number);
        if (is_new) {
            records_.push_back(std::move(record));
            return;
        }
        context_.report(FindingCode::number_again, row, [&] {
            return std::string(name_) + " " + std::to_string(record.number) + " is given again; the later one counts";
        });
        records_[position_of_number_.at(record.number)] = std::move(record);
    }

    /// The highest number so far; 0 without records.
    int highest() const noexcept { return highest_; }
    std::vector<Record> take() noexcept { return std::move(records_); }

private:
    /// Notes where the record of the number will be; false if there is one already.
    bool index(int number)
    {
        if (is_rising_) {
            for (std::size_t i = 0; i < records_.size(); ++i)
                position_of_number_.emplace(records_[i].number, i);
            is_rising_ = false;
        }
        return position_of_number_.try_emplace(number, records_.size()).second;
    }

    structure_reading& context_;
    const char* name_;
    std::vector<Record> records_;
    bool is_rising_ = true;
    std::unordered_map<int, std::size_t> position_of_number_; // unless the numbers rise
    int highest_ = 0;
};

/// Reads all blocks of a command: `Block` is made of what begins one, reads its statements, which UNIT lines part, and
/// is ended.
template<class Block, class... Records>
void each_block(structure_reading& context, Command command, Records&... records)
{
    std::optional<Block> block;
    for (const std::size_t statement : context.statements_of(command)) {
        if (!block || context.begins_block(statement)) {
            if (block)
                block->end();
            block.emplace(context, records..., statement);
        }
        block->read(statement);
    }
    if (block)
        block->end();
}

/// `number` + `step` * `count`, if it is a number that records may have.
inline std::optional<int> stepped(int number, int step, int count = 1) noexcept
{
    const std::int64_t sum = std::int64_t{number} + std::int64_t{step} * count;
    return sum >= 1 && sum <= std::numeric_limits<int>::max() ? std::optional(static_cast<int>(sum)) : std::nullopt;
}

/// The words of a REPEAT line: "REPEAT [ALL] k" and numbers.
struct repeat_line {
    bool is_all = false;
    int times = 0;
    std::vector<double> numbers;
};

/// Reads a REPEAT line; none, reported, if it has no whole number of copies.
std::optional<repeat_line> read_repeat(structure_reading& context, row_words& words, std::size_t row);

/// By how much the numbers of each copy of members and elements rise.
struct steps {
    int number = 0;
    int joint = 0;
};

/// The two whole numbers of a REPEAT line of members or elements; none if they are anything else.
std::optional<steps> steps_of(const repeat_line& repeat) noexcept;

/// A block of items and REPEAT lines, which may go on after UNIT lines. `Block` reads an item by `read_item(words,
/// row)`, and adds a copy by `add_stepped(written, steps, copy, row)`; what it makes of either it hands to keep().
template<class Block, class Written>
class incidence_block {
public:
    void read(std::size_t statement)
    {
        context_.each_data_row(statement, [this](row_words& words, std::size_t row) {
            if (is_word(words.peek(), "REPE"))
                repeat(words, row);
            else
                read_line(words, row);
        });
    }
    void end() const noexcept {}

protected:
    explicit incidence_block(structure_reading& context) noexcept : context_(context) {}

    /// REPEAT lines may copy the record.
    void keep(const Written& record)
    {
        written_.push_back(record);
        line_end_ = written_.size();
    }

    structure_reading& context_;

private:
    Block& self() noexcept { return static_cast<Block&>(*this); }

    void read_line(row_words& words, std::size_t row)
    {
        line_begin_ = line_end_ = written_.size();
        do
            self().read_item(words, row);
        while (words.next_item());
    }

    /// Copies of the line before, or of all so far. They are no part of that line.
    void repeat(row_words& words, std::size_t row)
    {
        const std::optional<repeat_line> repeat = read_repeat(context_, words, row);
        if (!repeat)
            return;
        const std::optional<steps> by = steps_of(*repeat);
        const std::size_t begin = repeat->is_all ? 0 : line_begin_;
        const std::size_t end = repeat->is_all ? written_.size() : line_end_;
        if (!by || begin == end) {
            context_.report_unread(row, by ? "nothing to repeat" : "no steps of the numbers of record and joints");
            return;
        }
        context_.take_generated(end - begin, row, static_cast<std::size_t>(repeat->times));
        const std::size_t line_end = line_end_;
        for (int copy = 1; copy <= repeat->times; ++copy)
            for (std::size_t i = begin; i < end; ++i)
                self().add_stepped(Written(written_[i]), *by, copy, row); // keep() may move the list
        line_end_ = line_end;
    }

    std::vector<Written> written_; // of the block
    std::size_t line_begin_ = 0;   // of the line before
    std::size_t line_end_ = 0;
};

} // namespace STAAD::detail

#endif
