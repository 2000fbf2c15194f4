#include "staad/structure/blocks/blocks.h"

#include "staad/structure/blocks/generation.h"
#include "staad/structure/values.h"
#include "staad/text/words.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace STAAD::detail {
namespace {

using triple = std::array<double, 3>;

/// A joint with the numbers of its line: Cartesian or cylindrical, in the file's units and axes.
struct written_joint {
    int number = 0;
    triple at{};
    Structure::Source source = 0;
};

enum class coordinates { cartesian, cylindrical, cylindrical_reverse };

/// A JOINT COORDINATES block.
class joint_block {
public:
    joint_block(structure_reading& context, numbered_records<Structure::Joint>& joints, std::size_t statement)
        : context_(context), joints_(joints), length_(context.units_at(statement).length)
    {
        read_head(statement);
        context.each_data_row(statement, [this](row_words& words, std::size_t row) { read_row(words, row); });
        for (std::size_t i = 0; i < written_.size(); ++i)
            joints_.add(placed(written_[i].joint), written_[i].row);
    }

private:
    struct item {
        written_joint joint;
        std::size_t row;
    };

    void read_head(std::size_t statement)
    {
        row_words words(context_.deck, context_.deck.statement(statement).first_row);
        for (std::string_view word; words.next(word);) {
            if (is_word(word, "CYLI"))
                system_ = coordinates::cylindrical;
            else if (is_word(word, "REVE") && system_ == coordinates::cylindrical)
                system_ = coordinates::cylindrical_reverse;
        }
    }

    void read_row(row_words& words, std::size_t row)
    {
        if (is_word(words.peek(), "JTOR"))
            read_origin(words, row);
        else if (is_word(words.peek(), "REPE"))
            repeat(words, row);
        else
            read_items(words, row);
    }

    void read_origin(row_words& words, std::size_t row)
    {
        std::string_view word;
        words.next(word);
        number_words numbers(words);
        triple origin{};
        for (double& each : origin) {
            const std::optional<double> number = numbers.next();
            if (!number) {
                context_.report_unread(row, "an origin of fewer than three numbers");
                return;
            }
            each = *number;
        }
        origin_ = origin;
    }

    void read_items(row_words& words, std::size_t row)
    {
        line_begin_ = written_.size();
        do
            read_item(words, row);
        while (words.next_item());
    }

    void read_item(row_words& words, std::size_t row)
    {
        number_words numbers(words);
        const std::optional<int> number = numbers.next_whole();
        if (!number || *number < 1) {
            context_.report_unread(row, "no joint");
            return;
        }
        std::array<double, 9> values{};
        std::size_t count = 0;
        while (count < values.size()) {
            const std::optional<double> value = numbers.next();
            if (!value)
                break;
            values[count++] = *value;
        }
        if (!words.peek().empty())
            context_.report_unread(row, "a joint with more than its coordinates");
        add_item(*number, values, count, row);
    }

    void add_item(int number, const std::array<double, 9>& values, std::size_t count, std::size_t row)
    {
        const bool is_plane = context_.structure.head.kind == Structure::Kind::plane;
        if (count < 3 && !(is_plane && count == 2)) {
            context_.report(FindingCode::item_short, row, [&] {
                return "joint " + std::to_string(number) + " has " + std::to_string(count) +
                       " coordinates; what is missing counts as 0";
            });
        }
        // A plane deck may leave z out of both ends of a line of joints.
        const bool is_flat = is_plane && (count == 5 || count == 6) && values[2] > number;
        const std::size_t size = is_flat ? 2 : 3;
        triple from{};
        std::copy_n(values.begin(), size, from.begin());
        add(number, from, row);
        const std::size_t rest = count > size ? count - size : 0;
        const bool is_tail_of_zeros = std::all_of(values.begin() + 3, values.end(), [](double v) { return v == 0; });
        if (rest > 0 && (is_flat || !is_tail_of_zeros))
            add_line(number, from, values.data() + size, rest, size, row);
    }

    /// The joints from `number` on the line to a second one: its number, its coordinates, a step of numbers.
    void add_line(int number, const triple& from, const double* values, std::size_t count, std::size_t size,
                  std::size_t row)
    {
        const double last = values[0];
        const double step = count > size + 1 ? values[size + 1] : 1.0;
        if (count < size + 1 || last != std::trunc(last) || last < 1 || last > std::numeric_limits<int>::max() ||
            step < 1 || step != std::trunc(step)) {
            context_.report_unread(row, "a line of joints that has no second end");
            return;
        }
        triple to{};
        std::copy_n(values + 1, size, to.begin());
        if (last > number)
            add_between(number, from, static_cast<int>(last), to, step, row);
        else
            context_.report(FindingCode::two_items, row,
                            [&] { return "read as two joints: " + quote(context_.deck.row_text(row)); });
        add(static_cast<int>(last), to, row);
    }

    void add_between(int number, const triple& from, int last, const triple& to, double step, std::size_t row)
    {
        const auto count = static_cast<std::size_t>((static_cast<double>(last) - number) / step);
        take(count, row);
        for (std::size_t i = 1; i <= count; ++i) {
            const double at = static_cast<double>(number) + static_cast<double>(i) * step;
            if (at >= last)
                break;
            const double part = (at - number) / (static_cast<double>(last) - number);
            add(static_cast<int>(at),
                {from[0] + (to[0] - from[0]) * part, from[1] + (to[1] - from[1]) * part,
                 from[2] + (to[2] - from[2]) * part},
                row);
        }
    }

    void add(int number, const triple& at, std::size_t row)
    {
        written_.push_back({{number, at, context_.source_of(row)}, row});
        highest_ = std::max(highest_, number);
    }

    /// Copies of the line before, or of everything since the last REPEAT ALL, each moved from the one before it.
    void repeat(row_words& words, std::size_t row)
    {
        const std::optional<repeat_line> repeat = read_repeat(context_, words, row);
        if (!repeat)
            return;
        std::vector<double> moves = repeat->numbers;
        if (moves.size() < 3 || moves.size() % 3 != 0) {
            context_.report_unread(row, "moves that are not three numbers each");
            return;
        }
        std::size_t begin = repeat->is_all ? block_begin_ : line_begin_;
        std::size_t end = repeat->is_all ? written_.size() : line_end();
        const std::size_t count = end - begin;
        take(count * static_cast<std::size_t>(repeat->times), row);
        for (int copy = 0; copy < repeat->times && count > 0; ++copy) {
            const std::size_t move = std::min(static_cast<std::size_t>(copy) * 3, moves.size() - 3);
            const std::size_t copied = written_.size();
            for (std::size_t i = begin; i < end; ++i) {
                const triple at = written_[i].joint.at;
                const std::optional<int> number = stepped(std::max(highest_, joints_.highest()), 1);
                if (!number)
                    return;
                add(*number, {at[0] + moves[move], at[1] + moves[move + 1], at[2] + moves[move + 2]}, row);
            }
            begin = copied;
            end = copied + count;
        }
        if (repeat->is_all)
            block_begin_ = written_.size();
    }

    /// Copies of a line are no part of it.
    std::size_t line_end() const noexcept
    {
        std::size_t end = line_begin_;
        while (end < written_.size() && written_[end].row == written_[line_begin_].row)
            ++end;
        return end;
    }

    void take(std::size_t count, std::size_t row) { context_.take_generated(count, row); }

    Structure::Joint placed(const written_joint& joint) const
    {
        const double angle = joint.at[system_ == coordinates::cylindrical ? 1 : 2] * std::numbers::pi / 180.0;
        triple at = joint.at;
        if (system_ == coordinates::cylindrical)
            at = {at[0] * std::cos(angle), at[0] * std::sin(angle), at[2]};
        else if (system_ == coordinates::cylindrical_reverse)
            at = {at[0] * std::cos(angle), at[1], -at[0] * std::sin(angle)};
        const Vector3 model = context_.in_model_frame((at[0] + origin_[0]) * length_, (at[1] + origin_[1]) * length_,
                                                      (at[2] + origin_[2]) * length_);
        return {joint.number, model.x, model.y, model.z, joint.source};
    }

    structure_reading& context_;
    numbered_records<Structure::Joint>& joints_;
    double length_;
    coordinates system_ = coordinates::cartesian;
    triple origin_{};
    std::vector<item> written_;
    std::size_t line_begin_ = 0;  // of the line before, in `written_`
    std::size_t block_begin_ = 0; // of what came since the last REPEAT ALL
    int highest_ = 0;
};

} // namespace

void read_joints(structure_reading& context)
{
    numbered_records<Structure::Joint> joints(context, "joint");
    for (const std::size_t statement : context.statements_of(Command::joint_coordinates))
        joint_block(context, joints, statement);
    context.structure.joints = joints.take();
    context.joints = record_lookup(context.structure.joints);
}

} // namespace STAAD::detail
