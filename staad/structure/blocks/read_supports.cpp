#include "staad/structure/blocks/blocks.h"

#include "staad/structure/blocks/assigned_lines.h"
#include "staad/structure/blocks/degree_words.h"
#include "staad/structure/blocks/read_mats.h"
#include "staad/structure/lists.h"
#include "staad/structure/values.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace STAAD::detail {
namespace {

constexpr std::string_view kept_forms[] = {"INCL", "ELAS", "GENE", "MULT"};

/// Whether a word of the item is one of a form that is kept as text.
bool is_kept_form(row_words words) noexcept
{
    for (std::string_view word; words.next(word);)
        if (std::any_of(std::begin(kept_forms), std::end(kept_forms),
                        [word](std::string_view form) { return is_word(word, form); }))
            return true;
    return false;
}

/// The supports of all blocks, and the springs under elements that stand among them.
class support_blocks {
public:
    explicit support_blocks(structure_reading& context) noexcept : context_(context), mats_(context) {}

    void read()
    {
        context_.each_item(Command::supports, [this](row_words& words, std::size_t statement, std::size_t row) {
            read_item(words, statement, row);
        });
        hand_out();
        mats_.hand_out();
    }

private:
    void read_item(row_words& words, std::size_t statement, std::size_t row)
    {
        if (is_plate_mat(words)) {
            mats_.read_item(words, statement, row);
            return;
        }
        const record_list list = take_list(context_, words, listed::joints, statement, row);
        if (!list.is_given) {
            context_.report_unread(row, "a support of no joint");
            return;
        }
        if (std::optional<Structure::Support> support = read_kind(words, statement, row)) {
            support->source = context_.source_of(row);
            joints_.add(list.joints, lines_.size());
            lines_.push_back(*std::move(support));
        }
    }

    std::optional<Structure::Support> read_kind(row_words& words, std::size_t statement, std::size_t row)
    {
        Structure::Support support;
        support.text = item_text(words);
        if (is_kept_form(words)) {
            support.is_kept = true;
            context_.report(FindingCode::form_kept, row,
                            [&] { return "a support that is kept as text: " + quote(support.text); });
            return support;
        }
        std::string_view kind;
        words.next(kind);
        if (is_word(kind, "PIN")) {
            std::fill_n(support.held.begin(), 3, true);
        } else if (is_word(kind, "FIX") || is_word(kind, "ENF")) {
            support.held.fill(true);
            support.enforced = is_word(kind, "ENF");
        } else {
            context_.report_unread(row, "no support");
            return std::nullopt;
        }
        read_exceptions(support, words, statement, row);
        return support;
    }

    /// "BUT FX KMY 100": directions that are free, or have a spring.
    void read_exceptions(Structure::Support& support, row_words& words, std::size_t statement, std::size_t row)
    {
        std::string_view word;
        if (is_word(words.peek(), "BUT")) {
            words.next(word);
            while (read_exception(support, words, statement)) {
            }
        }
        if (words.next(word))
            context_.report_unread(row, "a support that goes on");
    }

    /// False at a word that is none, and at the end.
    bool read_exception(Structure::Support& support, row_words& words, std::size_t statement)
    {
        if (const std::optional<spring_words> spring = take_spring(words, context_.units_at(statement))) {
            const std::size_t degree = model_degree(spring->degree);
            support.held[degree] = false;
            support.springs[degree] = spring->value;
            return true;
        }
        const std::optional<std::size_t> degree = degree_of(words.peek());
        if (!degree)
            return false;
        std::string_view word;
        words.next(word);
        support.held[model_degree(*degree)] = false;
        return true;
    }

    std::size_t model_degree(std::size_t file_degree) const noexcept
    {
        return context_.model_axis(file_degree % 3) + (file_degree < 3 ? 0 : 3);
    }

    void hand_out()
    {
        for (const assigned_line& each : joints_.in_text_order(context_.structure.joints.size())) {
            Structure::Support support = lines_[each.line];
            context_.budget.take_text(support.text.size());
            support.joint = each.position;
            context_.structure.supports.push_back(std::move(support));
        }
    }

    structure_reading& context_;
    mat_lines mats_;
    std::vector<Structure::Support> lines_;
    assigned_lines joints_; // by line
};

} // namespace

void read_supports(structure_reading& context)
{
    support_blocks(context).read();
}

} // namespace STAAD::detail
