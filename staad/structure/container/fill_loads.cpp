// Load cases, load definitions and the records that carry them.

#include "staad/structure/container/filling.h"
#include "staad/structure/container/texts.h"
#include "staad/structure/flattened.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace STAAD::detail {
namespace {

using load_kind = Structure::Load::Kind;
using load_direction = Structure::Load::Direction;

/// What the words of a member load of a kind are, and what its numbers stand for.
struct form {
    std::string_view word;   ///< "UNI"
    std::size_t intensities; ///< how many of the values grow with the load; the others are lengths
    char intensity;          ///< F: a force; L: per length; M: a moment
};

std::optional<form> form_of(load_kind kind) noexcept
{
    switch (kind) {
    case load_kind::uniform:
        return form{"UNI", 1, 'L'};
    case load_kind::uniform_moment:
        return form{"UMOM", 1, 'F'};
    case load_kind::concentrated:
        return form{"CON", 1, 'F'};
    case load_kind::concentrated_moment:
        return form{"CMOM", 1, 'M'};
    case load_kind::linear:
        return form{"LIN", 6, 'L'};
    case load_kind::trapezoidal:
        return form{"TRAP", 2, 'L'};
    default:
        return std::nullopt;
    }
}

/// `quantity`: F a force, L per length, M a moment, P a pressure, else a length.
double in_model_units(char quantity, double value) noexcept
{
    const exact_units units = container_units();
    switch (quantity) {
    case 'L':
        return units.force_per_length_of(value);
    case 'M':
        return units.moment_of(value);
    case 'P':
        return units.pressure_of(value);
    case 'F':
        return units.force_of(value);
    default:
        return units.length_of(value);
    }
}

/// A number of a definition in metres and kilonewtons; `quantity` as in in_model_units().
std::string value_text(char quantity, double value)
{
    return number_text(value, [quantity](double v) { return in_model_units(quantity, v); });
}

/// A direction as the container has it: its letter in definition texts, always those of a file with Y up, the
/// same turned to the model, and the sign that local axes of a deck with Z up have there.
struct container_direction {
    std::string written; ///< "GY"
    std::string turned;  ///< "GZ"
    double sign = 1.0;
};

container_direction direction_of(load_direction direction, bool is_z_up)
{
    constexpr std::string_view file_letter_of_model[] = {"Z", "X", "Y"};
    constexpr std::string_view letters[] = {"X", "Y", "Z"};
    constexpr std::string_view turned_letters[] = {"Y", "Z", "X"};
    const auto index = static_cast<std::size_t>(direction);
    if (direction == load_direction::none)
        return {};
    if (direction <= load_direction::local_z) {
        std::size_t axis = index - static_cast<std::size_t>(load_direction::local_x);
        const bool is_level = is_z_up && axis == 1;
        if (is_z_up && axis > 0)
            axis = 3 - axis;
        return {std::string(letters[axis]), std::string(turned_letters[axis]), is_level ? -1.0 : 1.0};
    }
    const bool is_projected = direction >= load_direction::projected_x;
    const std::size_t axis =
        index - static_cast<std::size_t>(is_projected ? load_direction::projected_x : load_direction::global_x);
    const std::string head = is_projected ? "P" : "G";
    return {head + std::string(file_letter_of_model[axis]), head + std::string(letters[axis]), 1.0};
}

/// `written` if it says the same as `made`: the same words whatever their case, the same numbers.
std::string as_written(std::string made, std::string_view written)
{
    if (written.empty() || count_words(written) != count_words(made))
        return made;
    word_cursor left(made);
    word_cursor right(written);
    std::string_view a;
    std::string_view b;
    while (left.next(a) && right.next(b)) {
        const bool are_numbers = parse_real(a).size == a.size() && parse_real(b).size == b.size();
        if (are_numbers ? to_real(a) != to_real(b) : a != to_upper_ascii(b))
            return made;
    }
    return std::string(written);
}

/// One definition, before it has a number.
struct made_definition {
    std::string text;
    LoadDefination definition;
};

class load_filling {
public:
    explicit load_filling(container_filling& context)
        : context_(context), structure_(context.structure), flattened_(context.structure)
    {
        for (const Structure::LoadCase& each : structure_.load_cases)
            cases_.emplace(each.number, &each);
        for (const Structure::LoadCase& each : structure_.reference_cases)
            references_.emplace(each.number, &each);
    }

    void fill()
    {
        for (const Structure::LoadCase& each : structure_.load_cases) {
            LoadCase& header = context_.model.load_cases[each.number];
            header.id = each.number;
            header.type_text = join_words(word_cursor(each.type));
            header.title = join_words(word_cursor(each.title));
            add_loads(each);
        }
        for (const Structure::Combination& each : structure_.combinations)
            context_.report_left_out(each.source, [&] { return "combination " + std::to_string(each.number); });
    }

private:
    /// The loads of a case in the order of the text, sums as the loads they come to.
    void add_loads(const Structure::LoadCase& from)
    {
        for (const Structure::Load& load : from.loads) {
            if (load.kind != load_kind::cases) {
                if (!add_load(load, 1.0, from.number))
                    report_left_out(load);
                continue;
            }
            for (const Structure::CaseFactor& term : load.sum)
                if (const Structure::LoadCase* named = find(term))
                    for (const Structure::CaseFactor& part : flattened_.of(*named))
                        add_own_loads(part, term.factor * part.factor, from.number);
        }
    }

    void add_own_loads(const Structure::CaseFactor& part, double factor, int number)
    {
        const Structure::LoadCase* from = find(part);
        if (from == nullptr)
            return;
        for (const Structure::Load& load : from->loads) {
            context_.budget.take_references(1);
            const bool is_left_out = load.kind != load_kind::cases && !add_load(load, factor, number);
            if (is_left_out && part.is_reference) // loads of load cases are reported where these stand
                report_left_out(load);
        }
    }

    const Structure::LoadCase* find(const Structure::CaseFactor& term) const
    {
        const auto& known = term.is_reference ? references_ : cases_;
        const auto found = known.find(term.number);
        return found == known.end() ? nullptr : found->second;
    }

    /// False if the container has no place for the load.
    bool add_load(const Structure::Load& load, double factor, int number)
    {
        std::optional<made_definition> made = make(load, factor);
        if (!made)
            return false;
        const int definition = static_cast<int>(context_.model.raw_load_defs.size()) + 1;
        SdReader& model = context_.model;
        LoadDefination& filled =
            model.load_defs.emplace_hint(model.load_defs.end(), definition, std::move(made->definition))->second;
        filled.load_case = number;
        model.raw_load_defs.emplace_hint(model.raw_load_defs.end(), definition,
                                         LoadDef_raw{std::move(made->text), number});
        attach(load, definition);
        return true;
    }

    void attach(const Structure::Load& load, int definition)
    {
        const auto each = [&](const std::vector<Structure::Range>& ranges, auto& records, auto list) {
            for (const Structure::Range& range : ranges) {
                context_.budget.take_references(static_cast<std::size_t>(range.last - range.first) + 1);
                for (int position = range.first; position <= range.last; ++position)
                    (records[static_cast<std::size_t>(position)].*list).push_back(definition);
            }
        };
        if (load.kind == load_kind::joint_forces)
            each(load.on, context_.model.nodes, &SdNode::extra_ids);
        else
            each(load.on, context_.model.beams, &SdBeam::int_list);
    }

    /// The definition of a load; none if the container has no place for it.
    std::optional<made_definition> make(const Structure::Load& load, double factor) const
    {
        switch (load.kind) {
        case load_kind::joint_forces:
            return make_joint_load(load, factor);
        case load_kind::self_weight:
            return make_self_weight(load, factor);
        case load_kind::floor:
        case load_kind::area:
            return load.box || load.group >= 0 ? std::nullopt : std::optional(make_area_load(load, factor));
        default:
            return make_member_load(load, factor);
        }
    }

    std::optional<made_definition> make_member_load(const Structure::Load& load, double factor) const
    {
        const std::optional<form> words = form_of(load.kind);
        if (!words)
            return std::nullopt;
        const container_direction direction = direction_of(load.direction, is_z_up());
        made_definition made;
        std::string text(words->word);
        append_word(text, direction.written);
        for (std::size_t i = 0; i < load.value_count; ++i) {
            const bool grows = i < words->intensities;
            const double value = grows ? load.values[i] * factor * direction.sign : load.values[i];
            made.definition.values.push_back(value);
            append_word(text, value_text(grows ? words->intensity : ' ', value));
        }
        made.definition.kind = "MEMBER LOAD " + std::string(words->word);
        made.definition.direction = direction.turned;
        made.text = "MEMBER LOAD " + (factor == 1.0 ? as_written(std::move(text), load.text) : text);
        return made;
    }

    /// "AREA LOAD ALOAD -0.5", "FLOOR LOAD FLOAD -5 GY": the direction stands after the number, if at all. The
    /// definition of a floor load has no values.
    made_definition make_area_load(const Structure::Load& load, double factor) const
    {
        const bool is_floor = load.kind == load_kind::floor;
        const double value = load.values[0] * factor;
        std::string text = is_floor ? "FLOAD" : "ALOAD";
        append_word(text, value_text('P', value));
        if (load.direction != load_direction::global_z || count_words(load.text) > 2)
            append_word(text, direction_of(load.direction, is_z_up()).written);
        made_definition made;
        made.definition.kind = is_floor ? "FLOOR LOAD" : "AREA LOAD ALOAD";
        made.definition.direction = "Z";
        if (!is_floor)
            made.definition.values = {value};
        made.text =
            (is_floor ? "FLOOR LOAD " : "AREA LOAD ") + (factor == 1.0 ? as_written(std::move(text), load.text) : text);
        return made;
    }

    made_definition make_joint_load(const Structure::Load& load, double factor) const
    {
        constexpr std::string_view names[] = {"FX", "FY", "FZ", "MX", "MY", "MZ"};
        made_definition made;
        made.definition.kind = "JOINT LOAD";
        made.definition.direction = "Z";
        std::string text;
        for (std::size_t i = 0; i < 6; ++i)
            made.definition.values.push_back(load.values[i] * factor);
        for (std::size_t i = 0; i < 6; ++i) {
            const double value = made.definition.values[model_degrees[i]];
            if (value == 0.0)
                continue;
            append_word(text, names[i]);
            append_word(text, value_text(i < 3 ? 'F' : 'M', value));
        }
        made.text = "JOINT LOAD " + joint_text(std::move(text), load, factor);
        return made;
    }

    /// The words of a joint load come in any order, with zeros and twice: as written, if the numbers are those of
    /// the container.
    std::string joint_text(std::string made, const Structure::Load& load, double factor) const
    {
        if (factor != 1.0 || load.text.empty() || is_z_up())
            return made;
        std::array<double, 6> said{};
        word_cursor words(load.text);
        for (std::string_view word; words.next(word);) {
            const std::string name = to_upper_ascii(word);
            if (name.size() != 2 || (name[0] != 'F' && name[0] != 'M') || name[1] < 'X' || name[1] > 'Z')
                return made;
            const std::size_t index = (name[0] == 'M' ? std::size_t{3} : 0) + static_cast<std::size_t>(name[1] - 'X');
            said[model_degrees[index]] = in_model_units(index < 3 ? 'F' : 'M', to_real(words.next_or_empty()));
        }
        return said == load.values ? load.text : made;
    }

    made_definition make_self_weight(const Structure::Load& load, double factor) const
    {
        const container_direction direction = direction_of(load.direction, is_z_up());
        made_definition made;
        made.definition.kind = "SELFWEIGHT";
        // The container names the axis without the G of global ones.
        made.definition.direction = direction.turned.empty() ? "" : direction.turned.substr(1);
        made.definition.values = {load.values[0] * factor};
        std::string text = direction.written.empty() ? "" : direction.written.substr(1);
        append_word(text, shortest_text(made.definition.values[0]));
        made.text = "SELFWEIGHT " + (factor == 1.0 ? as_written(std::move(text), load.text) : text);
        return made;
    }

    void report_left_out(const Structure::Load& load)
    {
        context_.report_left_out(load.source, [&] {
            return "load " + quote(load.text.empty() ? std::string_view("of a kind of its own") : load.text);
        });
    }

    bool is_z_up() const noexcept { return structure_.head.up == Structure::UpAxis::z; }

    container_filling& context_;
    const Structure& structure_;
    std::unordered_map<int, const Structure::LoadCase*> cases_;
    std::unordered_map<int, const Structure::LoadCase*> references_;
    FlattenedCases flattened_;
};

} // namespace

void fill_loads(container_filling& context)
{
    load_filling(context).fill();
}

} // namespace STAAD::detail
