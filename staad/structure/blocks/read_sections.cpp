#include "staad/structure/blocks/blocks.h"

#include "staad/structure/assignments.h"
#include "staad/structure/blocks/section_forms.h"
#include "staad/structure/lists.h"
#include "staad/structure/values.h"
#include "staad/text/words.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace STAAD::detail {
namespace {

/// Which rows the user tables of a deck have.
class user_table_rows {
public:
    explicit user_table_rows(const std::vector<Structure::UserTable>& tables)
    {
        for (const Structure::UserTable& table : tables) {
            tables_.insert(table.number);
            if (!table.file.empty())
                in_other_files_.insert(table.number);
            for (const Structure::UserTable::Row& row : table.rows)
                rows_.insert(key(table.number, row.name));
        }
    }

    bool has_table(int number) const { return tables_.count(number) > 0; }
    /// Any row may be in a table that another file holds.
    bool has_row(int number, std::string_view name) const
    {
        return in_other_files_.count(number) > 0 || rows_.count(key(number, name)) > 0;
    }

private:
    static std::string key(int number, std::string_view name)
    {
        return std::to_string(number) + ' ' + to_upper_ascii(name);
    }

    std::unordered_set<int> tables_;
    std::unordered_set<int> in_other_files_;
    std::unordered_set<std::string> rows_;
};

/// MEMBER PROPERTY blocks. The code of a block holds until the next head.
class section_reader {
public:
    explicit section_reader(structure_reading& context) : context_(context), tables_(context.structure.user_tables)
    {
        for (const std::size_t statement : context.statements_of(Command::member_property)) {
            read_head(context.deck.statement(statement).first_row);
            context.each_item(statement, [&](row_words& words, std::size_t row) { read_item(words, statement, row); });
        }
    }

    /// Of the sections those that a member has stay, in the order of the text.
    void hand_out()
    {
        std::vector<Structure::Member>& members = context_.structure.members;
        std::vector<int> place(sections_.size(), -1);
        lines_.hand_out(members.size(), [&](std::size_t member, int section, Structure::Source source) {
            members[member].section = section;
            members[member].section_source = source;
            place[static_cast<std::size_t>(section)] = 0;
        });
        for (std::size_t i = 0; i < sections_.size(); ++i)
            if (place[i] == 0) {
                place[i] = static_cast<int>(context_.structure.sections.size());
                context_.structure.sections.push_back(std::move(sections_[i]));
            }
        for (Structure::Member& member : members)
            if (member.section >= 0)
                member.section = place[static_cast<std::size_t>(member.section)];
    }

private:
    /// After a UNIT line a block goes on without a head.
    void read_head(std::size_t row)
    {
        if (context_.deck.row(row).kind != RowKind::head)
            return;
        row_words words(context_.deck, row);
        std::string_view word;
        words.next(word); // MEMBER
        words.next(word); // PROPERTY
        code_ = item_text(words);
    }

    void read_item(row_words& words, std::size_t statement, std::size_t row)
    {
        const record_list list = take_list(context_, words, listed::members, statement, row);
        if (!list.is_given) {
            if (!words.peek().empty())
                context_.report_unread(row, "a section of no members");
            return;
        }
        const exact_units& units = context_.units_at(statement);
        section_form form = read_section_form(words, units);
        report(form, row);
        if (form.section.text.empty() || list.members.empty())
            return;
        const Structure::Source source = context_.source_of(row);
        lines_.add(list.members, shared(std::move(form.section), units, source), source);
    }

    void report(const section_form& form, std::size_t row)
    {
        const Structure::Section& section = form.section;
        if (form.unread != nullptr)
            context_.report_unread(row, form.unread);
        if (form.kept != nullptr)
            context_.report(FindingCode::form_kept, row,
                            [&] { return std::string(form.kept) + ": " + quote(section.text); });
        if (section.shape == Structure::Section::Shape::user_table && !tables_.has_row(section.table, section.name))
            context_.report(FindingCode::table_unknown, row, [&] {
                const std::string table = "user table " + std::to_string(section.table);
                return tables_.has_table(section.table) ? table + " has no row " + quote(section.name) : "no " + table;
            });
    }

    /// The section of that code, text and values, the one that is there already or a new one. What one text says
    /// differs with the unit of length alone.
    int shared(Structure::Section section, const exact_units& units, Structure::Source source)
    {
        std::string key = code_ + '\n' + section.text;
        if (!section.values.empty())
            key.append(1, '\n').append(std::to_string(std::bit_cast<std::uint64_t>(units.length)));
        const auto [place, is_new] = known_.try_emplace(std::move(key), static_cast<int>(sections_.size()));
        if (is_new) {
            section.code = code_;
            section.source = source;
            sections_.push_back(std::move(section));
        }
        return place->second;
    }

    structure_reading& context_;
    user_table_rows tables_;
    std::string code_;
    std::vector<Structure::Section> sections_;
    std::unordered_map<std::string, int> known_;
    line_assignments<int> lines_;
};

} // namespace

void read_sections(structure_reading& context)
{
    section_reader(context).hand_out();
}

} // namespace STAAD::detail
