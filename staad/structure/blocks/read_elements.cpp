#include "staad/structure/blocks/blocks.h"

#include "staad/structure/blocks/generation.h"
#include "staad/structure/values.h"
#include "staad/text/words.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace STAAD::detail {
namespace {

/// The numbers of one element or solid, as its line has them.
struct written_element {
    int number = 0;
    std::array<int, 8> joints{};
    std::uint8_t corners = 0;
};

/// An ELEMENT INCIDENCES block. Until all are there elements hold numbers of joints, then positions.
class element_block : public incidence_block<element_block, written_element> {
public:
    element_block(structure_reading& context, numbered_records<Structure::Element>& elements,
                  numbered_records<Structure::Solid>& solids, std::size_t statement)
        : incidence_block(context), elements_(elements), solids_(solids)
    {
        row_words head(context.deck, context.deck.statement(statement).first_row);
        for (std::string_view word; head.next(word);)
            is_solid_ |= is_word(word, "SOLI");
    }

    void read_item(row_words& words, std::size_t row)
    {
        const std::size_t fewest = is_solid_ ? 4 : 3;
        const std::size_t most = is_solid_ ? 8 : 4;
        number_words numbers(words);
        written_element element;
        element.number = numbers.next_whole().value_or(0);
        while (element.corners < most) {
            const std::optional<int> joint = numbers.next_whole();
            if (!joint)
                break;
            element.joints[element.corners++] = *joint;
        }
        if (!is_solid_ && element.corners == 4 && element.joints[3] == 0)
            element.corners = 3;
        const bool is_generated = to_upper_ascii(words.peek()) == "TO";
        const auto* first = element.joints.data();
        const bool has_joints = std::all_of(first, first + element.corners, [](int joint) { return joint > 0; });
        if (element.number < 1 || element.corners < fewest || !has_joints || (!is_generated && !words.peek().empty())) {
            context_.report_unread(row, is_solid_ ? "no solid" : "no element");
            return;
        }
        add(element, row);
        if (is_generated)
            generate(element, words, row);
    }

    void add_stepped(written_element element, const steps& by, int copy, std::size_t row)
    {
        const std::optional<int> number = stepped(element.number, by.number, copy);
        bool fits = number.has_value();
        for (std::size_t i = 0; i < element.corners; ++i) {
            const std::optional<int> joint = stepped(element.joints[i], by.joint, copy);
            fits = fits && joint;
            element.joints[i] = joint.value_or(0);
        }
        if (!fits) {
            context_.report_unread(row, "a copy with numbers that no element can have");
            return;
        }
        element.number = *number;
        add(element, row);
    }

private:
    /// "... TO n2 [dn] [dj]"
    void generate(const written_element& from, row_words& words, std::size_t row)
    {
        std::string_view word;
        words.next(word); // TO
        number_words numbers(words);
        const std::optional<int> last = numbers.next_whole();
        const int step = numbers.next_whole().value_or(1);
        const int joint_step = numbers.next_whole().value_or(1);
        if (!last || *last <= from.number || step < 1 || *last - from.number < step || !words.peek().empty()) {
            context_.report_unread(row, "a line of elements that stands for no other");
            return;
        }
        const int copies = (*last - from.number) / step;
        context_.take_generated(static_cast<std::size_t>(copies), row);
        for (int copy = 1; copy <= copies; ++copy)
            add_stepped(from, {step, joint_step}, copy, row);
    }

    void add(const written_element& element, std::size_t row)
    {
        keep(element);
        const auto fill = [&](auto record, auto& records) {
            record.number = element.number;
            std::copy_n(element.joints.begin(), element.corners, record.corners.begin());
            record.source = context_.source_of(row);
            records.add(std::move(record), row);
        };
        if (is_solid_)
            fill(Structure::Solid(), solids_);
        else
            fill(Structure::Element(), elements_);
    }

    numbered_records<Structure::Element>& elements_;
    numbered_records<Structure::Solid>& solids_;
    bool is_solid_ = false;
};

} // namespace

void read_elements(structure_reading& context)
{
    numbered_records<Structure::Element> elements(context, "element");
    numbered_records<Structure::Solid> solids(context, "solid");
    each_block<element_block>(context, Command::element_incidences, elements, solids);
    context.structure.elements = elements.take();
    context.structure.solids = solids.take();
    context.elements = record_lookup(context.structure.elements);
    context.solids = record_lookup(context.structure.solids);
}

} // namespace STAAD::detail
