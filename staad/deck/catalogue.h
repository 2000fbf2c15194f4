/// The one table of the command language: what begins a statement, what lines follow it, and what the readings
/// make of it.
#ifndef STAAD_DECK_CATALOGUE_H
#define STAAD_DECK_CATALOGUE_H

#include "staad/export.h"

#include <cstddef>
#include <cstdint>

namespace STAAD {

/// The commands that the catalogue knows. `none` is what stands before the first command, `unknown` a line that
/// begins with a word of no command.
enum class Command : std::uint8_t {
    none,
    unknown,
    // Head
    title,
    job_information,
    page,
    set,
    unit,
    ignore,
    // Geometry
    joint_coordinates,
    member_incidences,
    element_incidences,
    surface_incidence,
    define_mesh,
    generate_element,
    delete_records,
    inactive,
    substitute,
    groups,
    // Properties
    user_table,
    member_property,
    element_property,
    surface_property,
    define_material,
    constants,
    material,
    beta,
    constant,
    member_cracked,
    member_other,
    element_other,
    // Boundary
    supports,
    member_release,
    member_offset,
    member_truss,
    member_tension,
    member_compression,
    member_cable,
    diaphragm,
    master_slave,
    cut_off,
    // Definitions
    define_wind,
    define_seismic,
    define_moving,
    define_envelope,
    define_reference,
    end_define_reference,
    define_other,
    // Load cases
    load_case,
    load_combination,
    load_list,
    load_generation,
    load_envelope,
    self_weight,
    joint_load,
    member_load,
    element_load,
    floor_load,
    one_way_load,
    area_load,
    temperature_load,
    repeat_load,
    reference_load,
    wind_load,
    code_load,
    spectrum,
    other_load,
    dynamics,
    // Analysis, print, design
    perform,
    change,
    finish,
    print,
    draw,
    parameter,
    design,
    concrete_design,
    code_check,
    irregularity,
};

inline constexpr std::size_t number_of_commands = static_cast<std::size_t>(Command::irregularity) + 1;

/// The lines that may follow a command as its data.
enum class DataLines : std::uint8_t {
    none,          ///< no line: the command is the whole statement
    items,         ///< lines that begin with a number, and those that begin with one of the command's data words
    lists,         ///< the same, and lines that begin with a list: ALL, LIST, _GROUP, XRANGE and their like
    until_end,     ///< every line up to the END line of the command
    until_command, ///< every line up to the next command
};

/// What a reading makes of a command.
enum class Reading : std::uint8_t {
    into_model, ///< its records
    as_text,    ///< kept as text with its lines
    noted,      ///< passed over with a note
    silent,     ///< passed over: it says nothing about the structure
};

/// Where a command belongs.
enum class CommandPlace : std::uint8_t {
    anywhere,
    load_case, ///< after the header of a load case
};

/// What is known of one command.
struct CommandInfo {
    Command command;
    const char* words; ///< as decks write it: "MEMBER PROPERTY"
    /// The shortest form of each word, "MEMB PROP": a word of the deck that begins with it is that word, one of
    /// one or two letters has to be all of it. "*" stands for any word, "@" for one that begins with a letter,
    /// "#" for a number, "R#" for R and a number, "$" for the end of the line.
    const char* short_form;
    DataLines data;
    const char* data_words; ///< what else may begin a line of data, in shortest forms; "" if nothing
    CommandPlace place;
    Reading complete; ///< what the complete reading makes of it
    bool host;        ///< whether the host reading reads it
    const char* line; ///< one line for the docs: what it holds
};

/// All spellings in the order of the table, for range-based loops. A command that has several spellings has a
/// row for each.
struct CommandList {
    const CommandInfo* first;
    const CommandInfo* past_last;

    const CommandInfo* begin() const noexcept { return first; }
    const CommandInfo* end() const noexcept { return past_last; }
    std::size_t size() const noexcept { return static_cast<std::size_t>(past_last - first); }
};

STAAD_API CommandList command_catalogue() noexcept;

/// The first row of a command. Cost: one look-up.
STAAD_API const CommandInfo& command_info(Command command) noexcept;

} // namespace STAAD

#endif
