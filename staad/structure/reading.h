/// What lives during a complete reading, handed to each block.
#ifndef STAAD_STRUCTURE_READING_H
#define STAAD_STRUCTURE_READING_H

#include "staad/deck/deck.h"
#include "staad/deck/row_words.h"
#include "staad/report/finding_sink.h"
#include "staad/report/id_budget.h"
#include "staad/structure/record_lookup.h"
#include "staad/structure/structure.h"
#include "staad/units/exact_units.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace STAAD::detail {

/// A case that loads go to, as a place in the deck has it.
struct open_case {
    enum class kind { none, load_case, reference_case } kind = kind::none;
    std::size_t index = 0; ///< into the list of its kind
};

/// Positions of joints, members and elements along one axis of the model, so that ranges find theirs.
struct sorted_places {
    std::vector<double> places; ///< mm, ascending
    std::vector<int> positions;
};

/// The physical lines of a source.
inline line_place place_of(const Structure& structure, Structure::Source source) noexcept
{
    const FileLines lines = origin(structure, source);
    return {static_cast<std::uint32_t>(lines.first), static_cast<std::uint32_t>(lines.last)};
}

/// The deck that is read, the structure that it gives, and what the blocks need to find their way in both.
struct structure_reading {
    structure_reading(const Deck& read, Structure& made, ReadReport& report);

    const Deck& deck;
    Structure& structure;
    finding_sink findings;
    id_budget budget;

    /// Statements of a command in the order of the text.
    const std::vector<std::size_t>& statements_of(Command command) const noexcept
    {
        return statements_[static_cast<std::size_t>(command)];
    }
    /// The units in force at a statement. Lengths before the first UNIT line that has one are in that one, and so are
    /// forces.
    const exact_units& units_at(std::size_t statement) const noexcept;
    /// Whether UNIT lines say both a length and a force.
    bool has_units() const noexcept
    {
        return !unit_changes_.empty() && !units_at(0).length_word.empty() && !units_at(0).force_word.empty();
    }
    /// Whether a statement begins its block. One that goes on after a UNIT line does not.
    bool begins_block(std::size_t statement) const noexcept
    {
        return deck.row(deck.statement(statement).first_row).kind == RowKind::head;
    }
    /// The words of a UNIT line, one by one a length or a force, become those of `units`; what the line leaves out
    /// stays as it was. Other words are reported.
    void follow_unit_words(row_words& words, std::size_t row, exact_units& units);

    /// The case that a statement belongs to; filled by read_load_cases().
    const open_case& case_at(std::size_t statement) const noexcept;
    void begin_case(std::size_t statement, open_case opened);
    /// Numbers of cases that the analysis program makes: of spectra by mode, of moving loads; filled by
    /// read_load_cases().
    std::vector<Structure::Range> made_cases;

    /// The source that stands for a row.
    Structure::Source source_of(std::size_t row);
    /// The source that stands for all lines of a statement.
    Structure::Source source_of_statement(std::size_t statement);
    line_place place_of(std::size_t row) const noexcept;

    /// Calls `visit(row_words&, row)` for every row of data of a statement that has words.
    template<class Visit>
    void each_data_row(std::size_t statement, Visit visit)
    {
        const DeckStatement cut = deck.statement(statement);
        for (std::size_t row = cut.first_row; row < cut.past_row; ++row)
            if (deck.row(row).kind == RowKind::data) {
                row_words words(deck, row);
                if (!words.peek().empty())
                    visit(words, row);
            }
    }
    /// The same for all statements of a command.
    template<class Visit>
    void each_data_row(Command command, Visit visit)
    {
        for (const std::size_t statement : statements_of(command))
            each_data_row(statement, visit);
    }

    /// Calls `visit(row_words&, row)` for every item of the data of a statement: what ";" parts.
    template<class Visit>
    void each_item(std::size_t statement, Visit visit)
    {
        each_data_row(statement, [&](row_words& words, std::size_t row) {
            do
                visit(words, row);
            while (words.next_item());
        });
    }
    /// Calls `visit(row_words&, statement, row)` for every item of all statements of a command.
    template<class Visit>
    void each_item(Command command, Visit visit)
    {
        for (const std::size_t statement : statements_of(command))
            each_item(statement, [&](row_words& words, std::size_t row) { visit(words, statement, row); });
    }

    /// `file` in the frame of the model. Head::up must be known.
    Vector3 in_model_frame(double x, double y, double z) const noexcept
    {
        return structure.head.up == Structure::UpAxis::z ? Vector3{x, y, z} : Vector3{z, x, y};
    }
    /// The model's axis, 0 to 2, that is the file's axis 0 to 2 (X, Y, Z).
    std::size_t model_axis(std::size_t file_axis) const noexcept
    {
        return structure.head.up == Structure::UpAxis::z ? file_axis : (file_axis + 1) % 3;
    }

    /// A line makes so many records, so many times, without writing them out. Throws ReadLimitError before there are
    /// more of these than a reading makes.
    void take_generated(std::size_t count, std::size_t row, std::size_t times = 1);

    /// A row, or a part of it, says nothing that the reading understands.
    void report_unread(std::size_t row, std::string_view what);
    /// The words of a row, for a report.
    std::string quoted_row(std::size_t row) const;
    template<class Compose>
    void report(FindingCode code, std::size_t row, Compose compose)
    {
        findings.add(code, place_of(row), compose);
    }

    // Look-ups, each made once its records are there; see read_structure().
    record_lookup joints;
    record_lookup members;
    record_lookup elements;
    record_lookup solids;
    record_lookup surfaces;
    /// By name in upper case, positions in Structure::groups.
    std::unordered_map<std::string, std::vector<int>> groups;
    /// By kind of record (joints, members, elements) and axis, made when a range first asks.
    std::array<std::array<sorted_places, 3>, 3> places;

private:
    void sort_statements();
    void follow_units();
    void follow_unit_line(std::size_t statement);
    void fill_first_units();

    struct unit_change {
        std::size_t statement;
        exact_units units;
    };
    struct case_change {
        std::size_t statement;
        open_case opened;
    };
    std::array<std::vector<std::size_t>, number_of_commands> statements_;
    std::vector<unit_change> unit_changes_;
    std::vector<case_change> case_changes_;
    std::size_t row_of_last_source_ = 0; // + 1
    std::size_t generated_ = 0;
};

} // namespace STAAD::detail

#endif
