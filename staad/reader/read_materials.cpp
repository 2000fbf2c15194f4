#include "staad/reader/read_materials.h"

#include "staad/reader/named_records.h"
#include "staad/reader/words.h"

#include <string>

namespace STAAD::detail {
namespace {

void assign_to_all(SdReader& model, const std::string& name)
{
    for (SdBeam& member : model.beams)
        member.material = name;
    for (SdShell& shell : model.shells)
        shell.material = name;
}

/// A number belongs to the member that has it, else to the element that has it. A number that stands
/// alone and that nothing has enters `shell_index` with 0. False if the run names nobody.
bool assign_to_run(SdReader& model, const id_run& ids, const std::string& name, const reading& run)
{
    bool anyone = false;
    run.members.for_each_in(ids.first, ids.last, [&](const numbered_position& member) {
        model.beams[static_cast<std::size_t>(member.position) - 1].material = name;
        anyone = true;
    });
    run.elements.for_each_in(ids.first, ids.last, [&](const numbered_position& element) {
        anyone = true;
        if (run.members.position(element.number) == 0)
            model.shells[static_cast<std::size_t>(element.position) - 1].material = name;
    });
    if (!anyone && !ids.is_range)
        model.shell_index.emplace(ids.first, 0);
    return anyone;
}

/// Words at blanks and hyphens alike, so that a continuation mark inside the list does no harm; a
/// hyphen in the name shifts the list by a word.
word_cursor list_of_material_line(std::string_view line)
{
    word_cursor words(line, "- ");
    for (int i = 0; i < 3; ++i) // MATERIAL, the name, MEMB
        words.next_or_empty();
    return words;
}

} // namespace

void assign_materials(SdReader& model, const line_list& lines, reading& run)
{
    for (const std::size_t i : lines.commands()) {
        const std::string_view line = lines[i].text;
        if (!starts_with(line, "MATERIAL"))
            continue;
        run.used.mark(i);
        const std::string name(word_at(line, 1));
        if (word_at(line, 2) == "ALL") {
            assign_to_all(model, name);
            continue;
        }
        id_list_walker walker(list_of_material_line(line), general_id_list);
        list_end list;
        for (id_run ids; walker.next(ids);)
            list.named_anyone = assign_to_run(model, ids, name, run) || list.named_anyone;
        word_cursor behind = walker.after_list();
        list.stopped_at = behind.next_or_empty();
        check_list_end("material", list, list.stopped_at.empty(), lines[i], run);
    }
}

} // namespace STAAD::detail
