#include "staad/structure/blocks/blocks.h"

#include "staad/structure/blocks/statement_names.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace STAAD::detail {
namespace {

/// What is said of the statements of one row of the catalogue.
struct command_note {
    std::string name;
    FileLines first;
    std::string lines; // the first lines of the first few
    std::size_t count = 0;
};

constexpr std::size_t most_lines_named = 5;

/// The deck holds more than what a statement of the command says to the structure.
bool hides_content(Command command) noexcept
{
    switch (command) {
    case Command::define_mesh:
    case Command::generate_element:
    case Command::inactive:
    case Command::substitute:
    case Command::load_generation:
        return true;
    default:
        return false;
    }
}

/// Commands of members and elements that say something of the structure, but nothing that is read.
bool is_form_of_records(Command command) noexcept
{
    return command == Command::member_other || command == Command::element_other;
}

/// A design block has one note for all that it holds.
const CommandInfo& noted_as(const CommandInfo& spelling) noexcept
{
    const bool is_design = spelling.command == Command::design || spelling.command == Command::code_check;
    return is_design ? command_info(Command::parameter) : spelling;
}

class statement_keeper {
public:
    explicit statement_keeper(structure_reading& context)
        : context_(context), notes_(command_catalogue().size()), load_of_(context.deck.statement_count(), nullptr)
    {
        find_loads(context.structure.load_cases);
        find_loads(context.structure.reference_cases);
    }

    void keep(std::size_t statement)
    {
        const CommandInfo& spelling = spelling_of(context_, statement);
        if (spelling.command != Command::unit && has_head(context_, statement))
            name_ = spelling.complete == Reading::as_text || spelling.complete == Reading::noted
                        ? name_of(context_, statement)
                        : std::string();
        const std::size_t row = context_.deck.statement(statement).first_row;
        if (spelling.command == Command::set && is_set_z_up(context_, row))
            return;
        if (spelling.command == Command::unknown) {
            context_.report(FindingCode::command_unknown, row,
                            [&] { return "no command, kept as text: " + context_.quoted_row(row); });
            keep_text(statement);
        } else if (spelling.complete == Reading::as_text) {
            report_kept(statement, spelling);
            keep_text(statement);
        } else if (spelling.complete == Reading::noted) {
            note(statement, spelling);
        }
    }

    void report_notes()
    {
        const CommandInfo* spelling = command_catalogue().begin();
        for (const command_note& each : notes_)
            report_note(each, *spelling++);
    }

private:
    void find_loads(std::vector<Structure::LoadCase>& cases)
    {
        for (Structure::LoadCase& load_case : cases)
            for (Structure::Load& load : load_case.loads)
                if (load.kind == Structure::Load::Kind::kept)
                    load_of_[static_cast<std::size_t>(load.kept)] = &load;
    }

    void keep_text(std::size_t statement)
    {
        const FileLines lines = context_.deck.lines(context_.deck.statement(statement));
        const std::string_view first = context_.deck.line(lines.first);
        const std::string_view last = context_.deck.line(lines.last);
        const exact_units& units = context_.units_at(statement);
        Structure::Kept kept;
        kept.command = name_;
        kept.text.assign(first.data(), static_cast<std::size_t>(last.data() + last.size() - first.data()));
        kept.length_unit = units.length_word;
        kept.force_unit = units.force_word;
        if (Structure::Load* const load = load_of_[statement]) {
            load->kept = static_cast<int>(context_.structure.kept.size());
            kept.is_load = true;
            kept.source = load->source;
        } else {
            kept.source = context_.source_of_statement(statement);
        }
        context_.structure.kept.push_back(std::move(kept));
    }

    void report_kept(std::size_t statement, const CommandInfo& spelling)
    {
        const std::size_t row = context_.deck.statement(statement).first_row;
        if (hides_content(spelling.command))
            context_.report(FindingCode::hidden_content, row,
                            [&] { return name_ + " is kept as text; the structure goes without what it makes"; });
        else if (is_form_of_records(spelling.command))
            context_.report(FindingCode::form_kept, row, [&] { return name_ + " is kept as text"; });
        else if (spelling.command != Command::other_load && spelling.command != Command::dynamics)
            note(statement, spelling); // of these two read_loads() has reported each
    }

    void note(std::size_t statement, const CommandInfo& spelling)
    {
        command_note& note = notes_[static_cast<std::size_t>(&noted_as(spelling) - command_catalogue().begin())];
        const FileLines lines = context_.deck.lines(context_.deck.statement(statement));
        if (note.count == 0) {
            note.name = name_;
            note.first = lines;
        }
        if (note.count++ < most_lines_named)
            note.lines.append(note.lines.empty() ? "" : ", ").append(std::to_string(lines.first));
    }

    void report_note(const command_note& note, const CommandInfo& spelling)
    {
        if (note.count == 0)
            return;
        const bool is_kept = spelling.complete == Reading::as_text;
        std::string text = note.name + (is_kept ? " is kept as text" : " is passed over");
        text.append(note.count == 1 ? ": line " : ": lines ").append(note.lines);
        if (note.count > most_lines_named)
            text.append(" and ").append(std::to_string(note.count - most_lines_named)).append(" more");
        context_.findings.list(
            is_kept ? FindingCode::command_kept : FindingCode::command_passed_over,
            {static_cast<std::uint32_t>(note.first.first), static_cast<std::uint32_t>(note.first.last)},
            std::move(text), note.count);
    }

    structure_reading& context_;
    std::vector<command_note> notes_;       // by row of the catalogue
    std::vector<Structure::Load*> load_of_; // by statement; null: no load is kept of it
    std::string name_;                      // of the last head
};

} // namespace

void keep_statements(structure_reading& context)
{
    statement_keeper keeper(context);
    for (std::size_t statement = 0; statement < context.deck.statement_count(); ++statement)
        keeper.keep(statement);
    keeper.report_notes();
}

} // namespace STAAD::detail
