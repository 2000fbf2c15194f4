#include "staad/structure/blocks/blocks.h"

#include "staad/structure/blocks/generation.h"
#include "staad/structure/values.h"

#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace STAAD::detail {
namespace {

/// Number and joint numbers of a member.
using written_member = std::array<int, 3>;

/// A MEMBER INCIDENCES block. Until all are there members hold numbers of joints, then positions.
class member_block : public incidence_block<member_block, written_member> {
public:
    member_block(structure_reading& context, numbered_records<Structure::Member>& members, std::size_t /*statement*/)
        : incidence_block(context), members_(members)
    {
    }

    void read_item(row_words& words, std::size_t row)
    {
        number_words numbers(words);
        std::array<int, 6> values{};
        std::size_t count = 0;
        while (count < values.size()) {
            const std::optional<int> value = numbers.next_whole();
            if (!value)
                break;
            values[count++] = *value;
        }
        if (count < 3 || values[0] < 1 || values[1] < 1 || values[2] < 1 || !words.peek().empty()) {
            context_.report_unread(row, "no member");
            return;
        }
        add({values[0], values[1], values[2]}, row);
        if (count > 3)
            add_generated(values, count, row);
    }

    void add_stepped(const written_member& from, const steps& by, int copy, std::size_t row)
    {
        const std::optional<int> number = stepped(from[0], by.number, copy);
        const std::optional<int> start = stepped(from[1], by.joint, copy);
        const std::optional<int> end = stepped(from[2], by.joint, copy);
        if (number && start && end)
            add({*number, *start, *end}, row);
        else
            context_.report_unread(row, "a copy with numbers that no member can have");
    }

private:
    /// "n i j n2 [dn] [dj]", or the six numbers of two members between which a ";" is forgotten.
    void add_generated(const std::array<int, 6>& values, std::size_t count, std::size_t row)
    {
        const int step = count > 4 ? values[4] : 1;
        const int joint_step = count > 5 ? values[5] : 1;
        const bool yields = values[3] > values[0] && step > 0 && values[3] - values[0] >= step;
        if (count == 6 && values[3] > 0 && knows(values[4]) && knows(values[5]) &&
            (!yields || !knows_generated(values, step, joint_step, row))) {
            context_.report(FindingCode::two_items, row,
                            [&] { return "read as two members: " + quote(context_.deck.row_text(row)); });
            add({values[3], values[4], values[5]}, row);
            return;
        }
        if (!yields) {
            context_.report_unread(row, "a line of members that stands for no other");
            return;
        }
        const int copies = (values[3] - values[0]) / step;
        context_.take_generated(static_cast<std::size_t>(copies), row);
        for (int copy = 1; copy <= copies; ++copy)
            add_stepped({values[0], values[1], values[2]}, {step, joint_step}, copy, row);
    }

    bool knows(int joint) const noexcept { return context_.joints.position(joint) >= 0; }

    /// Whether the joints of all members that the line would make are there.
    bool knows_generated(const std::array<int, 6>& values, int step, int joint_step, std::size_t row)
    {
        const auto knows_copy = [&](int copy) {
            const std::optional<int> start = stepped(values[1], joint_step, copy);
            const std::optional<int> end = stepped(values[2], joint_step, copy);
            return start && end && knows(*start) && knows(*end);
        };
        const int copies = (values[3] - values[0]) / step;
        if (!knows_copy(copies))
            return false;
        // The last one is there: as many as there are joints may be, and again with the next line.
        const line_place place = context_.place_of(row);
        context_.budget.start_list(place.first, place.last);
        context_.budget.take(static_cast<std::size_t>(copies));
        for (int copy = 1; copy < copies; ++copy)
            if (!knows_copy(copy))
                return false;
        return true;
    }

    void add(const written_member& written, std::size_t row)
    {
        Structure::Member member;
        member.number = written[0];
        member.start = written[1];
        member.end = written[2];
        member.source = context_.source_of(row);
        members_.add(member, row);
        keep(written);
    }

    numbered_records<Structure::Member>& members_;
};

} // namespace

void read_members(structure_reading& context)
{
    numbered_records<Structure::Member> members(context, "member");
    each_block<member_block>(context, Command::member_incidences, members);
    context.structure.members = members.take();
    context.members = record_lookup(context.structure.members);
}

} // namespace STAAD::detail
