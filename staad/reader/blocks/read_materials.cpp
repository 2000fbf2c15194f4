#include "staad/reader/blocks/blocks.h"

#include "staad/reader/blocks/assignments.h"
#include "staad/text/words.h"

#include <cstddef>
#include <string>
#include <vector>

namespace STAAD::detail {
namespace {

/// Material names and the records that they go to. A number belongs to the member that has it, else to the element
/// that has it.
class material_assignments {
public:
    explicit material_assignments(reading& context)
        : context_(context), members_(context.members), elements_(context.elements)
    {
    }

    /// Gives the name to every record, replacing earlier ones.
    void add_all(std::string_view name, line_place place)
    {
        members_.clear();
        elements_.clear();
        add_name(name, place);
        name_of_all_ = names_.size() - 1;
    }

    void add_name(std::string_view name, line_place place) { names_.push_back({std::string(name), place}); }

    /// Gives the last name to the records of the range; false if there are none.
    bool add(const id_range& ids)
    {
        const int value = static_cast<int>(names_.size()) - 1;
        const bool names_member = members_.add(value, ids);
        return elements_.add(value, ids) || names_member;
    }

    void hand_out(SdReader& model)
    {
        if (name_of_all_ < names_.size()) {
            for (SdBeam& member : model.beams)
                give(member.material, name_of_all_);
            for (SdShell& shell : model.shells)
                give(shell.material, name_of_all_);
        }
        members_.hand_out(
            [&](std::size_t index, int value) { give(model.beams[index].material, static_cast<std::size_t>(value)); });
        elements_.hand_out([&](std::size_t index, int value) {
            if (context_.members.position(model.shells[index].id) == 0)
                give(model.shells[index].material, static_cast<std::size_t>(value));
        });
    }

private:
    struct material_name {
        std::string text;
        line_place place;
    };

    void give(std::string& material, std::size_t name)
    {
        context_.start_list(names_[name].place);
        context_.budget.take_text(names_[name].text.size());
        material = names_[name].text;
    }

    reading& context_;
    last_assignments members_;
    last_assignments elements_;
    std::vector<material_name> names_;
    std::size_t name_of_all_ = std::string::npos;
};

/// Splits at blanks and at hyphens, so that a continuation mark inside the list is skipped; a hyphen in the
/// name shifts the list by a word.
word_cursor list_of_material_line(std::string_view line)
{
    word_cursor words(line, "- ");
    for (int i = 0; i < 3; ++i) // MATERIAL, the name, MEMB
        words.next_or_empty();
    return words;
}

} // namespace

void assign_materials(SdReader& model, const line_list& lines, reading& context)
{
    material_assignments materials(context);
    for (const std::size_t i : lines.commands()) {
        const std::string_view line = lines[i].text;
        if (!starts_with(line, "MATERIAL"))
            continue;
        context.used.mark(i);
        const std::string_view name = word_at(line, 1);
        if (word_at(line, 2) == "ALL") {
            materials.add_all(name, lines[i].place);
            continue;
        }
        materials.add_name(name, lines[i].place);
        const list_end list = walk_list(list_of_material_line(line), general_id_list, [&](const id_range& ids) {
            const bool found = materials.add(ids);
            if (!found && !ids.is_range)
                model.shell_index.emplace(ids.first, 0); // a number that no member or element has
            return found;
        });
        check_list_end("material", list, list.stopped_at.empty(), lines[i], context);
    }
    materials.hand_out(model);
}

} // namespace STAAD::detail
