// SUPPORTS, MEMBER RELEASE and MEMBER OFFSET: lists of numbers and a description after each.

#include "staad/model/sd_reader.h"
#include "staad/reader/blocks/assignments.h"
#include "staad/reader/blocks/items.h"
#include "staad/reader/findings.h"
#include "staad/text/id_list.h"
#include "staad/text/number.h"

namespace STAAD {
namespace {

using detail::line_range;
using detail::reading;
using detail::text_line;

/// The words of a line after its leading numbers and "TO"s: "5 0 FIXED" lists joint 5 and describes it as "0
/// FIXED".
detail::word_cursor description_of(std::string_view line)
{
    detail::word_cursor words(line);
    detail::word_cursor description = words;
    for (std::string_view word; words.next(word) && (word == "TO" || detail::to_int(word) >= 1);)
        description = words;
    return description;
}

bool is_support_line(std::string_view line) noexcept
{
    return chk_isdigit(line);
}

/// Releases in the middle of a member are not read: a line that names neither end closes the block.
bool is_member_end_line(std::string_view line) noexcept
{
    return chk_isdigit(line) && (detail::contains(line, "START") || detail::contains(line, "END"));
}

/// The lines under the first line that is exactly `keyword`, as long as they pass the test.
template<class IsBlockLine>
line_range find_block(std::string_view keyword, const detail::line_list& lines, IsBlockLine is_block_line,
                      reading& context)
{
    const std::size_t start = lines.find_equal(keyword);
    if (start == lines.size())
        return {};
    std::size_t end = start + 1;
    while (end < lines.size() && is_block_line(lines[end].text))
        ++end;
    context.used.mark(start, end);
    detail::report_block_end(keyword, lines, end, context);
    return {start + 1, end};
}

/// A list that ended before the description began, or at a description that does not begin like one.
void check_description(const detail::id_list_walker<>& walker, detail::word_cursor description, const text_line& line,
                       reading& context)
{
    detail::word_cursor after = walker.after_list();
    const std::string_view word = after.next_or_empty();
    if (word.data() != description.next_or_empty().data() || !detail::starts_with_letter(word))
        detail::report_list_stopped(word, line, context);
    else
        detail::report_list_word(word, line, context);
}

/// The records that the numbers of a block belong to.
struct listed_records {
    FindingCode code;
    const char* name;
    const detail::number_lookup& numbers;
};

/// Reports single numbers that no record has. The lists keep them.
void check_numbers(const listed_records& records, const text_line& line, reading& context)
{
    if (!context.findings.listening())
        return;
    detail::id_list_walker walker(detail::word_cursor(line.text), detail::general_id_list);
    for (detail::id_range ids; walker.next(ids);)
        if (!ids.is_range && records.numbers.position(ids.first) == 0)
            detail::report_unknown_number(records.code, records.name, ids.first, line, context);
}

/// Appends the numbers of every block line under the line's description.
void read_described(std::map<std::string, std::vector<unsigned>>& described, const listed_records& records,
                    const detail::line_list& lines, line_range block, reading& context)
{
    for (std::size_t i = block.begin; i < block.end; ++i) {
        const detail::word_cursor description = description_of(lines[i].text);
        detail::id_list_walker walker(detail::word_cursor(lines[i].text), detail::general_id_list);
        std::vector<unsigned> listed;
        context.start_list(lines[i].place);
        detail::append_ids(listed, walker, context.budget);
        check_description(walker, description, lines[i], context);
        check_numbers(records, lines[i], context);
        if (listed.empty())
            detail::report_no_effect("description", lines[i], context);
        std::vector<unsigned>& ids = described[detail::join_words(description)];
        if (ids.empty())
            ids = std::move(listed);
        else
            ids.insert(ids.end(), listed.begin(), listed.end());
    }
}

/// Reports a word where a number should be ("7 START LOCAL 0.1 0 0" moves the numbers by one place), and a
/// missing number.
void check_number(std::string_view word, const text_line& line, reading& context)
{
    if (!context.findings.listening() || parse_real(word).is_number())
        return;
    context.findings.add(FindingCode::number_word, line.place, [&] {
        return detail::quote(line.text) + ": " +
               (word.empty() ? "a number is missing" : detail::quote(word) + " is in the place of a number") +
               " and counts as 0";
    });
}

/// One line of member offsets.
struct offset_line {
    std::string_view end; ///< START; anything else is taken for END
    SdOffset offset;      ///< mm, model frame
};

offset_line read_offset_line(const text_line& line, double length_factor, reading& context)
{
    detail::word_cursor description = description_of(line.text);
    offset_line result;
    result.end = description.next_or_empty();
    double file_axes[3];
    for (double& length : file_axes) {
        const std::string_view word = description.next_or_empty();
        check_number(word, line, context);
        length = detail::to_real(word) * length_factor;
    }
    // The file's Y-up X Y Z are the model's y z x.
    result.offset = {file_axes[2], file_axes[0], file_axes[1]};
    return result;
}

} // namespace

void SdReader::read_support(const detail::line_list& lines, detail::reading& context)
{
    read_described(supports, {FindingCode::joint_unknown, "joint", context.joints}, lines,
                   find_block("SUPPORTS", lines, is_support_line, context), context);
}

void SdReader::read_release(const detail::line_list& lines, detail::reading& context)
{
    read_described(releases, {FindingCode::member_unknown, "member", context.members}, lines,
                   find_block("MEMBER RELEASE", lines, is_member_end_line, context), context);
}

void SdReader::read_offset(const detail::line_list& lines, detail::reading& context)
{
    const line_range block = find_block("MEMBER OFFSET", lines, is_member_end_line, context);
    if (block.begin == block.end)
        return;
    const auto members = detail::number_lookup::of(beams, detail::same_number::first_counts);
    detail::last_assignments starts(members);
    detail::last_assignments ends(members);
    std::vector<SdOffset> offsets;
    for (std::size_t i = block.begin; i < block.end; ++i) {
        const offset_line line = read_offset_line(lines[i], length_factor, context);
        const detail::list_end list = detail::assign_to_list(
            line.end == "START" ? starts : ends, static_cast<int>(offsets.size()), detail::word_cursor(lines[i].text),
            [&](int number) {
                detail::report_unknown_number(FindingCode::member_unknown, "member", number, lines[i], context);
            });
        detail::check_list_end("offset", list, list.stopped_at == "START" || list.stopped_at == "END", lines[i],
                               context);
        offsets.push_back(line.offset);
    }
    const auto offset_at = [&](SdOffset SdBeam::*end) {
        return [this, &offsets, end](std::size_t index, int value) {
            beams[index].*end = offsets[static_cast<std::size_t>(value)];
        };
    };
    starts.hand_out(offset_at(&SdBeam::offset_start));
    ends.hand_out(offset_at(&SdBeam::offset_end));
}

} // namespace STAAD
