#include "staad/structure/blocks/blocks.h"

#include "staad/structure/assignments.h"
#include "staad/structure/lists.h"
#include "staad/structure/local_axes.h"
#include "staad/structure/values.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace STAAD::detail {
namespace {

/// An offset as its line gives it: mm, in the model frame or along the axes of the member.
struct written_offset {
    Vector3 at;
    bool is_local = false;
};

class offset_blocks {
public:
    explicit offset_blocks(structure_reading& context) noexcept : context_(context) {}

    void read()
    {
        context_.each_item(Command::member_offset, [this](row_words& words, std::size_t statement, std::size_t row) {
            read_item(words, statement, row);
        });
        hand_out();
    }

private:
    void read_item(row_words& words, std::size_t statement, std::size_t row)
    {
        const record_list list = take_list(context_, words, listed::members, statement, row);
        if (!list.is_given || words.peek().empty()) {
            context_.report_unread(row, "an offset of no member, or of nothing");
            return;
        }
        std::string_view word;
        while (words.next(word)) {
            const bool is_both = is_word(word, "BOTH");
            const bool is_start = is_both || is_word(word, "STA");
            const bool is_end = is_both || is_word(word, "END");
            const auto offset = is_start || is_end ? read_offset(words, statement) : std::nullopt;
            if (!offset) {
                context_.report_unread(row, "an offset without an end, or without three numbers");
                return;
            }
            if (is_start)
                members_[0].add(list.members, *offset, context_.source_of(row));
            if (is_end)
                members_[1].add(list.members, *offset, context_.source_of(row));
        }
    }

    /// "[LOCAL] x y z"
    std::optional<written_offset> read_offset(row_words& words, std::size_t statement)
    {
        written_offset offset;
        std::string_view word;
        if (is_word(words.peek(), "LOC")) {
            offset.is_local = true;
            words.next(word);
        }
        number_words numbers(words);
        std::array<double, 3> at{};
        for (double& each : at) {
            const std::optional<double> number = numbers.next();
            if (!number)
                return std::nullopt;
            each = context_.units_at(statement).length_of(*number);
        }
        offset.at = offset.is_local ? Vector3{at[0], at[1], at[2]} : context_.in_model_frame(at[0], at[1], at[2]);
        return offset;
    }

    void hand_out()
    {
        for (std::size_t end = 0; end < 2; ++end)
            members_[end].hand_out(context_.structure.members.size(),
                                   [&](std::size_t position, const written_offset& offset, Structure::Source source) {
                                       Structure::Member& member = context_.structure.members[position];
                                       (end == 0 ? member.start_offset : member.end_offset) =
                                           offset.is_local ? turned(member, offset.at, source) : offset.at;
                                       member.offset_source = std::max(member.offset_source, source);
                                   });
    }

    /// From the axes of the member to the model frame.
    Vector3 turned(const Structure::Member& member, const Vector3& at, Structure::Source source)
    {
        const auto [x, y, z] = axes_between_joints(context_.structure, member);
        if (x.x == 0.0 && x.y == 0.0 && x.z == 0.0)
            context_.findings.add(FindingCode::line_unread, place_of(context_.structure, source), [&] {
                return "member " + std::to_string(member.number) + " has no length, and no axes for its offset";
            });
        return {x.x * at.x + y.x * at.y + z.x * at.z, x.y * at.x + y.y * at.y + z.y * at.z,
                x.z * at.x + y.z * at.y + z.z * at.z};
    }

    structure_reading& context_;
    std::array<line_assignments<written_offset>, 2> members_; // of starts and ends
};

} // namespace

void read_offsets(structure_reading& context)
{
    offset_blocks(context).read();
}

} // namespace STAAD::detail
