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

/// A joint with the numbers of its line: Cartesian or cylindrical, in the file's axes, mm and degrees.
struct written_joint {
    int number = 0;
    triple at{};
    Structure::Source source = 0;
};

enum class coordinates { cartesian, cylindrical, cylindrical_reverse };

/// A JOINT COORDINATES block, which may go on after UNIT lines.
class joint_block {
public:
    joint_block(structure_reading& context, numbered_records<Structure::Joint>& joints, std::size_t statement)
        : context_(context), joints_(joints)
    {
        if (context.begins_block(statement))
            read_head(statement);
    }

    void read(std::size_t statement)
    {
        length_ = context_.units_at(statement).length;
        context_.each_data_row(statement, [this](row_words& words, std::size_t row) { read_row(words, row); });
    }

    /// Hands the joints on: an origin counts for all of the block.
    void end()
    {
        for (const item& each : written_) {
            const Structure::Joint joint = placed(each.joint);
            if (std::isfinite(joint.x) && std::isfinite(joint.y) && std::isfinite(joint.z))
                joints_.add(joint, each.row);
            else
                context_.report_unread(each.row, "a joint farther out than numbers go");
        }
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
            each = *number * length_;
        }
        if (!words.peek().empty())
            context_.report_unread(row, "an origin of more than three numbers");
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
        if (numbers.has_next() || !words.peek().empty())
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
        from = in_mm(from);
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
        to = in_mm(to);
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
        context_.take_generated(count, row);
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
        const std::vector<double>& moves = repeat->numbers;
        if (moves.size() < 3 || moves.size() % 3 != 0) {
            context_.report_unread(row, "moves that are not three numbers each");
            return;
        }
        std::size_t begin = repeat->is_all ? block_begin_ : line_begin_;
        std::size_t end = repeat->is_all ? written_.size() : line_end();
        const std::size_t count = end - begin;
        if (count == 0)
            context_.report_unread(row, "no joints to repeat");
        context_.take_generated(count, row, static_cast<std::size_t>(repeat->times));
        for (int copy = 0; copy < repeat->times && count > 0; ++copy) {
            const std::size_t first = std::min(static_cast<std::size_t>(copy) * 3, moves.size() - 3);
            const triple move = in_mm({moves[first], moves[first + 1], moves[first + 2]});
            const std::size_t copied = written_.size();
            for (std::size_t i = begin; i < end; ++i) {
                const triple at = written_[i].joint.at;
                const std::optional<int> number = stepped(std::max(highest_, joints_.highest()), 1);
                if (!number) {
                    context_.report_unread(row, "a copy with a number that no joint can have");
                    return;
                }
                add(*number, {at[0] + move[0], at[1] + move[1], at[2] + move[2]}, row);
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

    /// Lengths by the unit in force; angles stay.
    triple in_mm(triple at) const noexcept
    {
        for (std::size_t i = 0; i < at.size(); ++i)
            at[i] *= system_ != coordinates::cartesian && i == place_of_angle() ? 1.0 : length_;
        return at;
    }

    std::size_t place_of_angle() const noexcept { return system_ == coordinates::cylindrical ? 1 : 2; }

    Structure::Joint placed(const written_joint& joint) const
    {
        const double angle = joint.at[place_of_angle()] * std::numbers::pi / 180.0;
        triple at = joint.at;
        if (system_ == coordinates::cylindrical)
            at = {at[0] * std::cos(angle), at[0] * std::sin(angle), at[2]};
        else if (system_ == coordinates::cylindrical_reverse)
            at = {at[0] * std::cos(angle), at[1], -at[0] * std::sin(angle)};
        const Vector3 model = context_.in_model_frame(at[0] + origin_[0], at[1] + origin_[1], at[2] + origin_[2]);
        return {joint.number, model.x, model.y, model.z, joint.source};
    }

    structure_reading& context_;
    numbered_records<Structure::Joint>& joints_;
    double length_ = 1.0;
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
    each_block<joint_block>(context, Command::joint_coordinates, joints);
    context.structure.joints = joints.take();
    context.joints = record_lookup(context.structure.joints);
}

} // namespace STAAD::detail
