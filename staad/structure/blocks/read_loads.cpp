#include "staad/structure/blocks/blocks.h"
#include "staad/structure/blocks/loads.h"
#include "staad/structure/blocks/statement_names.h"

namespace STAAD::detail {
namespace {

using read_statement = void (*)(structure_reading&, std::size_t statement, load_list&);

/// What reads the loads of a command; null: they are kept as text.
read_statement reader_of(Command command) noexcept
{
    switch (command) {
    case Command::self_weight:
        return read_self_weight;
    case Command::joint_load:
        return read_joint_loads;
    case Command::member_load:
        return read_member_loads;
    case Command::element_load:
        return read_element_loads;
    case Command::floor_load:
    case Command::one_way_load:
    case Command::area_load:
        return read_area_loads;
    case Command::temperature_load:
        return read_temperature_loads;
    case Command::repeat_load:
    case Command::reference_load:
        return read_sum;
    default:
        return nullptr;
    }
}

/// Forms of loads that the reading does not understand further; wind, seismic codes and spectra are kept without a
/// warning: they say what the analysis program is to do.
bool is_known_form(Command command) noexcept
{
    return command == Command::wind_load || command == Command::code_load || command == Command::spectrum;
}

void keep_load(structure_reading& context, std::size_t statement, load_list& loads)
{
    const CommandInfo& spelling = spelling_of(context, statement);
    if (spelling.complete != Reading::as_text)
        return;
    if (!is_known_form(spelling.command))
        context.report(FindingCode::form_kept, context.deck.statement(statement).first_row,
                       [&] { return name_of(context, statement) + " is kept as text of its load case"; });
    Structure::Load load;
    load.kept = static_cast<int>(statement);
    load.source = context.source_of_statement(statement);
    loads.push_back(std::move(load));
}

/// The loads of the case that is open at a statement; null if none is.
load_list* loads_at(structure_reading& context, std::size_t statement) noexcept
{
    const open_case& opened = context.case_at(statement);
    switch (opened.kind) {
    case open_case::kind::load_case:
        return &context.structure.load_cases[opened.index].loads;
    case open_case::kind::reference_case:
        return &context.structure.reference_cases[opened.index].loads;
    case open_case::kind::none:
        break;
    }
    return nullptr;
}

} // namespace

void read_loads(structure_reading& context)
{
    for (std::size_t statement = 0; statement < context.deck.statement_count(); ++statement) {
        const Command command = context.deck.statement(statement).command;
        if (command_info(command).place != CommandPlace::load_case)
            continue;
        load_list* const loads = loads_at(context, statement);
        if (loads == nullptr) {
            context.report(FindingCode::outside_case, context.deck.statement(statement).first_row,
                           [&] { return name_of(context, statement) + " stands in no load case"; });
            continue;
        }
        const read_statement read = reader_of(command);
        if (read == nullptr) {
            keep_load(context, statement, *loads);
            continue;
        }
        if (read != read_self_weight) // which is all head
            report_rest_of_head(context, statement);
        read(context, statement, *loads);
    }
}

} // namespace STAAD::detail
