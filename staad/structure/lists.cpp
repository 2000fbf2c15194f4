#include "staad/structure/lists.h"

#include "staad/structure/boxes.h"
#include "staad/structure/values.h"
#include "staad/text/words.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

namespace STAAD::detail {
namespace {

/// Numbers first, first + step ... up to last.
struct number_range {
    int first;
    int last;
    int step = 1;
};

bool is_to(std::string_view word) noexcept
{
    return to_upper_ascii(word) == "TO";
}

std::optional<int> list_number(std::string_view word) noexcept
{
    const bool has_digit = !word.empty() && word.front() >= '0' && word.front() <= '9';
    const std::optional<int> number = has_digit ? whole_value(word) : std::nullopt;
    return number && *number > 0 ? number : std::nullopt;
}

/// Takes a number, or "a TO b [BY c]", or the "TO b" that goes on from `previous`; none at another word.
std::optional<number_range> take_range(row_words& words, int previous) noexcept
{
    std::string_view word = words.peek();
    number_range range{previous + 1, previous};
    const bool goes_on = is_to(word) && previous > 0;
    if (!goes_on) {
        const std::optional<int> number = list_number(word);
        if (!number)
            return std::nullopt;
        range = {*number, *number};
        words.next(word);
    }
    if (!is_to(words.peek()))
        return range;
    row_words bound = words;
    bound.next(word); // TO
    const std::optional<int> last = list_number(bound.peek());
    if (!last)
        return goes_on ? std::nullopt : std::optional(range);
    bound.next(word);
    range.last = *last;
    words = bound;
    if (to_upper_ascii(words.peek()) == "BY") {
        bound.next(word);
        if (const std::optional<int> step = list_number(bound.peek())) {
            bound.next(word);
            range.step = *step;
            words = bound;
        }
    }
    return range;
}

std::size_t count_of(const number_range& range) noexcept
{
    return range.last < range.first
               ? 0
               : static_cast<std::size_t>((std::int64_t{range.last} - range.first) / range.step) + 1;
}

constexpr std::string_view heads[] = {"LIST", "MEMB", "BEAM", "ELEM", "PLAT", "JOIN"};

bool is_head(std::string_view word) noexcept
{
    return std::ranges::any_of(heads, [word](std::string_view head) { return is_word(word, head); });
}

void append(std::vector<Structure::Range>& ranges, Structure::Range next, id_budget& budget)
{
    if (!ranges.empty() && ranges.back().last + 1 == next.first) {
        ranges.back().last = next.last;
        return;
    }
    budget.take_references(1);
    ranges.push_back(next);
}

const char* name_of(listed what) noexcept
{
    switch (what) {
    case listed::joints:
        return "joint";
    case listed::members:
        return "member";
    case listed::elements:
        return "element";
    case listed::members_and_elements:
        break;
    }
    return "member or element";
}

FindingCode code_of(listed what) noexcept
{
    switch (what) {
    case listed::joints:
        return FindingCode::joint_unknown;
    case listed::elements:
        return FindingCode::element_unknown;
    case listed::members:
    case listed::members_and_elements:
        break;
    }
    return FindingCode::member_unknown;
}

class list_taker {
public:
    list_taker(structure_reading& context, row_words& words, listed what, std::size_t statement,
               std::size_t row) noexcept
        : context_(context), words_(words), what_(what), statement_(statement), row_(row)
    {
    }

    record_list take()
    {
        const line_place place = context_.place_of(row_);
        context_.budget.start_list(place.first, place.last);
        while (take_part())
            list_.is_given = true;
        return std::move(list_);
    }

private:
    bool has_joints() const noexcept { return what_ == listed::joints; }
    bool has_members() const noexcept { return what_ == listed::members || what_ == listed::members_and_elements; }
    bool has_elements() const noexcept { return what_ == listed::elements || what_ == listed::members_and_elements; }

    bool take_part() { return take_named() || take_head(); }

    bool take_named()
    {
        if (const std::optional<number_range> range = take_range(words_, previous_)) {
            previous_ = range->last;
            add_numbers(*range);
            return true;
        }
        const std::string_view word = words_.peek();
        if (word.empty())
            return false;
        if (word.front() == '_')
            return take_group();
        if (to_upper_ascii(word) == "ALL")
            return take_all();
        return take_ranges();
    }

    /// LIST, MEMB ... count only if a list follows: "MEMB" may be a word of something else.
    bool take_head()
    {
        const row_words before = words_;
        std::string_view word;
        while (is_head(words_.peek()))
            words_.next(word);
        if (take_named())
            return true;
        words_ = before;
        return false;
    }

    void add_numbers(const number_range& range)
    {
        bool found = false;
        const auto add_from = [&](const record_lookup& records, std::vector<Structure::Range>& ranges) {
            const auto add = [&](Structure::Range next) { append(ranges, next, context_.budget); };
            if (range.step == 1) {
                found |= records.ranges(range.first, range.last, add);
                return;
            }
            context_.budget.take(count_of(range));
            for (std::int64_t number = range.first; number <= range.last; number += range.step)
                if (const int position = records.position(static_cast<int>(number)); position >= 0) {
                    add({position, position});
                    found = true;
                }
        };
        if (has_joints())
            add_from(context_.joints, list_.joints);
        if (has_members())
            add_from(context_.members, list_.members);
        if (has_elements())
            add_from(context_.elements, list_.elements);
        if (!found)
            report_missing(range);
    }

    void report_missing(const number_range& range)
    {
        context_.report(code_of(what_), row_, [&] {
            std::string text = "no " + std::string(name_of(what_)) + " " + std::to_string(range.first);
            return range.last == range.first ? text : text + " TO " + std::to_string(range.last);
        });
    }

    bool take_group()
    {
        std::string_view name;
        words_.next(name);
        const int used = group_named(name);
        if (used < 0) {
            context_.report(FindingCode::group_unknown, row_,
                            [&] { return "no group " + quote(name) + " of " + name_of(what_) + "s"; });
            return true;
        }
        list_.groups.push_back(used);
        add_group(used);
        return true;
    }

    /// The first group of the name whose kind fits the list; -1 if there is none.
    int group_named(std::string_view name) const
    {
        const auto found = context_.groups.find(to_upper_ascii(name));
        if (found == context_.groups.end())
            return -1;
        const auto fitting = std::ranges::find_if(found->second, [this](int group) {
            return fits(context_.structure.groups[static_cast<std::size_t>(group)].kind);
        });
        return fitting == found->second.end() ? -1 : *fitting;
    }

    bool fits(Structure::GroupKind kind) const noexcept
    {
        switch (kind) {
        case Structure::GroupKind::joints:
            return has_joints();
        case Structure::GroupKind::members:
        case Structure::GroupKind::floor:
            return has_members();
        case Structure::GroupKind::elements:
            return has_elements();
        case Structure::GroupKind::geometry:
            return has_members() || has_elements();
        case Structure::GroupKind::solids:
            break;
        }
        return false;
    }

    void add_group(int group)
    {
        const Structure::Group& named = context_.structure.groups[static_cast<std::size_t>(group)];
        context_.budget.take_references(named.numbers.size());
        const bool is_mixed = named.kind == Structure::GroupKind::geometry;
        const bool members = named.kind != Structure::GroupKind::elements && has_members();
        const bool elements = (named.kind == Structure::GroupKind::elements || is_mixed) && has_elements();
        for (const int number : named.numbers) {
            const auto add = [&](bool wanted, const record_lookup& records, std::vector<Structure::Range>& ranges) {
                const int position = wanted ? records.position(number) : -1;
                if (position >= 0)
                    append(ranges, {position, position}, context_.budget);
            };
            add(has_joints(), context_.joints, list_.joints);
            add(members, context_.members, list_.members);
            add(elements, context_.elements, list_.elements);
        }
    }

    bool take_all()
    {
        std::string_view word;
        words_.next(word);
        list_.is_all = true;
        const auto add = [&](bool wanted, std::size_t count, std::vector<Structure::Range>& ranges) {
            if (wanted && count > 0)
                append(ranges, {0, static_cast<int>(count) - 1}, context_.budget);
        };
        add(has_joints(), context_.structure.joints.size(), list_.joints);
        add(has_members(), context_.structure.members.size(), list_.members);
        add(has_elements(), context_.structure.elements.size(), list_.elements);
        return true;
    }

    bool take_ranges();

    structure_reading& context_;
    row_words& words_;
    listed what_;
    std::size_t statement_;
    std::size_t row_;
    record_list list_;
    int previous_ = 0;
};

/// Several ranges in a row: what lies in all of them.
bool list_taker::take_ranges()
{
    const std::optional<Structure::Box> box = take_box(context_, words_, statement_);
    if (!box)
        return false;
    const auto add = [&](bool wanted, record_kind kind, std::vector<Structure::Range>& ranges) {
        if (wanted)
            for (const int position : positions_within(context_, kind, *box))
                append(ranges, {position, position}, context_.budget);
    };
    add(has_joints(), record_kind::joints, list_.joints);
    add(has_members(), record_kind::members, list_.members);
    add(has_elements(), record_kind::elements, list_.elements);
    return true;
}

} // namespace

record_list take_list(structure_reading& context, row_words& words, listed what, std::size_t statement, std::size_t row)
{
    return list_taker(context, words, what, statement, row).take();
}

std::vector<int> take_numbers(structure_reading& context, row_words& words, std::size_t row)
{
    const line_place place = context.place_of(row);
    context.budget.start_list(place.first, place.last);
    std::vector<int> numbers;
    int previous = 0;
    while (const std::optional<number_range> range = take_range(words, previous)) {
        previous = range->last;
        context.budget.take(count_of(*range));
        for (std::int64_t number = range->first; number <= range->last; number += range->step)
            numbers.push_back(static_cast<int>(number));
    }
    return numbers;
}

} // namespace STAAD::detail
