// LOAD: load cases, the texts of their definitions, and the joints and members that carry them.

#include "staad/model/sd_reader.h"
#include "staad/reader/blocks/assignments.h"
#include "staad/reader/findings.h"
#include "staad/text/id_list.h"
#include "staad/text/number.h"
#include "staad/text/words.h"

#include <algorithm>
#include <cstdint>

namespace STAAD {
namespace {

/// "LOAD 1 LOADTYPE Dead TITLE DL". A header with fewer words, such as "LOAD 1" or "LOAD 1 DEAD LOAD", has
/// another form.
constexpr std::size_t words_of_full_load_header = 6;

/// The only block whose numbers are joints. All others, "ELEMENT LOAD" too, list members.
constexpr std::string_view joint_load = "JOINT LOAD";

bool is_understood(std::string_view block) noexcept
{
    return detail::starts_with(block, "MEMBER LOAD") || detail::starts_with(block, "AREA LOAD") ||
           detail::starts_with(block, "FLOOR LOAD");
}

/// A short header gives the number only.
LoadCase case_of_header(std::string_view line)
{
    LoadCase header{std::string(line)};
    if (detail::count_words(line) < words_of_full_load_header) {
        const std::string_view number = detail::word_at(line, 1);
        header.id = chk_isdigit(number) ? detail::to_int(number) : 0;
    }
    return header;
}

/// The definitions that each record carries, gathered first and assigned at the end: every record's list then
/// takes its memory once, and no more than it needs.
class load_references {
public:
    explicit load_references(const detail::number_lookup& numbers) : numbers_(numbers) {}

    /// Every record of the list `ranges` carries `definition`. False if there is no such record.
    bool add(int definition, const std::vector<detail::id_range>& ranges, detail::id_budget& budget)
    {
        bool found = false;
        for (const detail::id_range& ids : ranges) {
            numbers_.for_each_in(ids.first, ids.last, [&](const detail::numbered_position& entry) {
                budget.take_references(1);
                count_one(entry.position);
                found = true;
            });
            ranges_.add(definition, ids);
        }
        return found;
    }

    /// Appends the definitions to the lists. Walks over a pointer per record instead of the records: these are
    /// large, and a deck names each of them many times.
    template<class Record>
    void hand_out(std::vector<Record>& records, std::vector<int> Record::*list) const
    {
        std::vector<int*> next(counts_.size(), nullptr);
        for (std::size_t i = 0; i < counts_.size(); ++i) {
            if (counts_[i] == 0)
                continue;
            std::vector<int>& definitions = records[i].*list;
            const std::size_t before = definitions.size();
            definitions.resize(before + counts_[i]);
            next[i] = definitions.data() + before;
        }
        ranges_.for_each([&](int definition, const detail::id_range& ids) {
            numbers_.for_each_in(ids.first, ids.last, [&](const detail::numbered_position& entry) {
                *next[static_cast<std::size_t>(entry.position) - 1]++ = definition;
            });
        });
    }

private:
    void count_one(int position)
    {
        const auto index = static_cast<std::size_t>(position) - 1;
        if (index >= counts_.size())
            counts_.resize(std::max(index + 1, counts_.size() * 2));
        ++counts_[index];
    }

    const detail::number_lookup& numbers_;
    std::vector<std::uint32_t> counts_; // by position - 1; shorter than the list if the last records carry nothing
    detail::listed_values ranges_;
};

/// The load section, line by line.
class load_section {
public:
    load_section(SdReader& model, detail::reading& context)
        : model_(model), context_(context), joint_references_(context.joints), member_references_(context.members)
    {
    }

    void read_line(const detail::text_line& line, std::size_t index)
    {
        if (is_passed_over(line.text))
            return;
        if (read_line_of_section(line))
            context_.used.mark(index);
    }

    /// Call when all lines are read: assigns the definitions to the records that carry them.
    void hand_out_references()
    {
        joint_references_.hand_out(model_.nodes, &SdNode::extra_ids);
        member_references_.hand_out(model_.beams, &SdBeam::int_list);
    }

private:
    static bool is_passed_over(std::string_view line) noexcept
    {
        return detail::contains(line, ";") || detail::is_comment(line) || detail::last_word(line).empty();
    }

    /// False if the line is none of the section.
    bool read_line_of_section(const detail::text_line& line)
    {
        if (detail::starts_with(line.text, "LOAD"))
            start_case(line);
        else if (detail::last_word(line.text) == "LOAD")
            start_block(line);
        else if (detail::starts_with(line.text, "SELFWEIGHT"))
            read_selfweight(line);
        else
            return read_definition(line);
        return true;
    }

    void start_case(const detail::text_line& line)
    {
        LoadCase header = case_of_header(line.text);
        current_case_ = header.id;
        if (context_.findings.listening())
            check_case(header, line);
        model_.load_cases[current_case_] = std::move(header);
    }

    void check_case(const LoadCase& header, const detail::text_line& line)
    {
        if (header.id < 1)
            context_.findings.add(FindingCode::load_number, line.place, [&] {
                return detail::quote(line.text) + " has no number; what follows belongs to load case " +
                       std::to_string(header.id);
            });
        if (model_.load_cases.count(header.id) != 0)
            context_.findings.add(FindingCode::load_again, line.place, [&] {
                return "load case " + std::to_string(header.id) + " was there before; " + detail::quote(line.text) +
                       " replaces its header; the loads of both stay";
            });
    }

    void start_block(const detail::text_line& line)
    {
        block_ = line.text;
        if (block_ == joint_load || is_understood(block_))
            return;
        if (detail::trim_blanks(block_) == joint_load)
            context_.findings.add(FindingCode::keyword_near, line.place, [&] {
                return "'" + std::string(block_) + "' is not 'JOINT LOAD': its numbers are taken for members";
            });
        else
            context_.findings.add(FindingCode::load_block, line.place, [&] {
                return detail::quote(block_) +
                       " is not understood: its loads are kept as text, their numbers taken for members";
            });
    }

    /// "SELFWEIGHT Y -1 LIST 1 TO 10"; without a list the definition belongs to no member.
    void read_selfweight(const detail::text_line& line)
    {
        add_definition(detail::join_words(detail::word_cursor(line.text), 3), line);
        detail::word_cursor words(line.text);
        for (int i = 0; i < 4; ++i) // SELFWEIGHT, direction, factor, LIST
            words.next_or_empty();
        detail::id_list_walker walker(words, detail::general_id_list);
        collect_ranges(walker);
        detail::word_cursor after = walker.after_list();
        detail::report_list_stopped(after.next_or_empty(), line, context_);
        attach(member_references_, line);
    }

    /// "1 TO 10 UNI GY -5" under the current block. False if the line is no definition: it has no list in
    /// front, or a single word after it.
    bool read_definition(const detail::text_line& line)
    {
        detail::id_list_walker walker(detail::word_cursor(line.text), detail::general_id_list);
        if (!collect_ranges(walker))
            return false;
        const std::string_view load = walker.after_list().rest();
        detail::report_list_word(detail::word_at(load, 0), line, context_);
        if (detail::count_words(load) == 1)
            return false;
        add_definition(text_of_definition(load), line);
        attach(block_ == joint_load ? joint_references_ : member_references_, line);
        return true;
    }

    std::string text_of_definition(std::string_view load) const
    {
        std::string text(block_);
        if (const std::string words = detail::join_words(detail::word_cursor(load)); !words.empty())
            text += ' ' + words;
        return text;
    }

    void add_definition(std::string text, const detail::text_line& line)
    {
        context_.start_list(line.place);
        context_.budget.take_text(text.size());
        ++counter_;
        model_.raw_load_defs.insert_or_assign(model_.raw_load_defs.end(), counter_,
                                              LoadDef_raw{std::move(text), current_case_});
    }

    bool collect_ranges(detail::id_list_walker<>& walker)
    {
        ranges_.clear();
        for (detail::id_range ids; walker.next(ids);)
            ranges_.push_back(ids);
        return !ranges_.empty();
    }

    /// Gives the last definition to the records of the current list.
    void attach(load_references& references, const detail::text_line& line)
    {
        if (!references.add(counter_, ranges_, context_.budget) && !ranges_.empty())
            detail::report_no_effect("load", line, context_);
    }

    SdReader& model_;
    detail::reading& context_;
    load_references joint_references_;
    load_references member_references_;
    int current_case_ = 1;
    std::string_view block_;               // the last line whose last word is LOAD
    int counter_ = 0;                      // of definitions
    std::vector<detail::id_range> ranges_; // of the current line; a member to reuse its memory
};

} // namespace

LoadCase::LoadCase(const std::string& line)
{
    if (detail::count_words(line) < words_of_full_load_header)
        return;
    detail::word_cursor words(line);
    words.next_or_empty(); // LOAD
    id = detail::to_int(words.next_or_empty());
    if (words.next_or_empty() != "LOADTYPE")
        return;
    std::string_view word;
    while (words.next(word) && word != "TITLE")
        detail::append_word(type_text, word);
    title = detail::join_words(words);
}

void SdReader::read_load(const detail::line_list& lines, detail::reading& context)
{
    const std::size_t begin = lines.find_start("LOAD");
    if (begin == lines.size())
        return;
    // Reading stops at the combinations. Without them it stops before the last line of the text, which is
    // FINISH in a complete file.
    const std::size_t end = std::min(lines.find_start("LOAD COMB", begin), lines.size() - 1);
    load_section section(*this, context);
    for (std::size_t i = begin; i < end; ++i)
        section.read_line(lines[i], i);
    section.hand_out_references();
    for (const auto& [number, raw] : raw_load_defs)
        load_defs.insert_or_assign(load_defs.end(), number, get_load_defnination_from_string(raw));
}

} // namespace STAAD
