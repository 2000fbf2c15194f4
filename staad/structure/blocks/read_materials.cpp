#include "staad/structure/blocks/blocks.h"

#include "staad/structure/blocks/generation.h"
#include "staad/structure/blocks/material_constants.h"
#include "staad/structure/blocks/material_names.h"
#include "staad/structure/values.h"
#include "staad/text/words.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace STAAD::detail {
namespace {

using Material = Structure::Material;

using quantity = material_quantity;

struct strength_word {
    std::string_view word;
    quantity of;
};

constexpr strength_word strengths[] = {{"FCU", quantity::pressure},
                                       {"FY", quantity::pressure},
                                       {"FU", quantity::pressure},
                                       {"RY", quantity::number},
                                       {"RT", quantity::number}};

/// A DEFINE MATERIAL block, which may go on after UNIT lines. Of a material that is defined again the later values
/// count.
class material_block {
public:
    material_block(structure_reading& context, material_names& names, std::size_t /*statement*/)
        : context_(context), names_(names)
    {
    }

    void read(std::size_t statement)
    {
        units_ = context_.units_at(statement);
        context_.each_item(statement, [this](row_words& words, std::size_t row) { read_line(words, row); });
    }
    void end() const noexcept {}

private:
    void read_line(row_words& words, std::size_t row)
    {
        if (to_upper_ascii(words.peek()) == "END")
            return;
        while (!words.peek().empty())
            if (!read_part(words, row)) {
                context_.report_unread(row, material_ < 0 ? "a line of no material that is read" : "of a material");
                return;
            }
    }

    bool read_part(row_words& words, std::size_t row)
    {
        std::string_view word;
        words.next(word);
        if (is_word(word, "ISOT"))
            return open(words, row);
        // What other kinds of materials have is not taken for that of the one before.
        if (is_word(word, "ORTH") || is_word(word, "2DOR"))
            material_ = -1;
        if (material_ < 0)
            return false;
        if (is_word(word, "TYPE"))
            return read_type(words);
        if (is_word(word, "STRE"))
            return read_strengths(words);
        return read_constant(word, words);
    }

    Material& material() noexcept { return context_.structure.materials[static_cast<std::size_t>(material_)]; }

    bool open(row_words& words, std::size_t row)
    {
        material_ = -1;
        std::string_view name;
        if (words.next(name))
            material_ = names_.find_or_add(name, context_.source_of(row));
        return material_ >= 0;
    }

    bool read_type(row_words& words)
    {
        std::string_view type;
        if (words.next(type))
            material().type = to_upper_ascii(type);
        return !type.empty();
    }

    bool read_constant(std::string_view word, row_words& words)
    {
        const std::optional<std::size_t> constant = find_material_constant(word);
        const std::optional<double> value = constant ? real_value(words.peek()) : std::nullopt;
        if (!value)
            return false;
        words.next(word);
        const material_constant& each = material_constants[*constant];
        material().*each.value = in_model_units(*value, each.of, units_);
        return true;
    }

    /// STRENGTH FY 250000 FU 400000 RY 1.5 RT 1.2
    bool read_strengths(row_words& words)
    {
        std::size_t count = 0;
        for (; const strength_word* strength = find_strength(words.peek()); ++count) {
            std::string_view word;
            words.next(word);
            const std::optional<double> value = real_value(words.peek());
            if (!value)
                return false;
            words.next(word);
            set_strength(strength->word, in_model_units(*value, strength->of, units_));
        }
        return count > 0;
    }

    static const strength_word* find_strength(std::string_view word) noexcept
    {
        for (const strength_word& each : strengths)
            if (is_word(word, each.word))
                return &each;
        return nullptr;
    }

    void set_strength(std::string_view name, double value)
    {
        for (Structure::NamedValue& each : material().strengths)
            if (each.name == name) {
                each.value = value;
                return;
            }
        material().strengths.push_back({std::string(name), value});
    }

    structure_reading& context_;
    material_names& names_;
    exact_units units_;
    int material_ = -1; // that lines add to; -1: one that is not read, or none yet
};

} // namespace

void read_materials(structure_reading& context)
{
    material_names names(context.structure.materials);
    each_block<material_block>(context, Command::define_material, names);
}

} // namespace STAAD::detail
