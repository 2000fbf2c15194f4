#include "staad/reader/blocks/blocks.h"

#include "staad/model/section.h"
#include "staad/reader/blocks/assignments.h"
#include "staad/text/number.h"
#include "staad/text/number_text.h"
#include "staad/text/words.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace STAAD {
namespace detail {
namespace {

constexpr std::string_view property_keyword = "MEMBER PROPERTY";
constexpr const char* default_code = "CHINESE";
constexpr const char* property_material = "STEEL";

/// What the property text of a Section of each type begins with.
constexpr const char* section_types[] = {"ST", "TAPERED", "PRIS"};

/// Words at the end of a property line that are never taken for members.
constexpr std::size_t words_never_members = 3;

std::string_view from_position(std::string_view text, std::size_t position) noexcept
{
    return text.substr(std::min(position, text.size()));
}

/// "TABLE ST PIPE OD 0.2 ID 0.18" in metres is "TABLE ST PIP200X10".
std::string pipe_text(std::string_view name, double length_factor)
{
    const double outer = to_real(word_at(name, 4)) * length_factor;
    const double inner = to_real(word_at(name, 6)) * length_factor;
    std::string text(word_at(name, 0));
    text += ' ';
    text += word_at(name, 1);
    return text + " PIP" + format_real(outer) + 'X' + format_real((outer - inner) * 0.5);
}

/// `head` and the whole mm of every `step`-th word of `words` from word `first` on, joined by "X".
std::string joined_dimensions(std::string head, std::string_view words, std::size_t first, std::size_t step,
                              double length_factor)
{
    const std::size_t head_size = head.size();
    word_cursor cursor(words);
    std::size_t index = 0;
    for (std::string_view word; cursor.next(word); ++index) {
        if (index < first || (index - first) % step != 0)
            continue;
        if (head.size() > head_size)
            head += 'X';
        head += std::to_string(truncate_to_int(to_real(word) * length_factor));
    }
    return head;
}

/// "PRIS YD 0.5 ZD 0.3" in metres is "PRIS500X300". A text of anything but one to four pairs of name and value
/// stays as written.
std::string prismatic_text(std::string_view after_keyword, double length_factor)
{
    const std::size_t count = count_words(after_keyword);
    if (count == 0 || count > 8 || count % 2 != 0)
        return std::string(after_keyword);
    return joined_dimensions("PRIS", after_keyword, 1, 2, length_factor);
}

/// The code of a "MEMBER PROPERTY" line: everything after the keyword, ends trimmed.
std::string_view code_of(std::string_view line) noexcept
{
    return trim_blanks(from_position(line, property_keyword.size()));
}

/// The sections of a text and the members that they are assigned to.
class section_assignments {
public:
    section_assignments(const line_list& lines, double length_factor, reading& context)
        : lines_(lines), length_factor_(length_factor), context_(context), members_(context.members)
    {
    }

    void set_code(std::string_view code) { codes_.emplace_back(code); }

    /// Assigns one property line to the members that it names.
    void add_line(std::size_t index)
    {
        const text_line& line = lines_[index];
        property_text property = property_of_line(line.text, length_factor_);
        if (property.name.empty())
            return;
        context_.used.mark(index);
        const list_end end =
            assign_to_list(members_, static_cast<int>(properties_.size()),
                           word_cursor(without_last_words(line.text, words_never_members)), [&](int number) {
                               report_unknown_number(FindingCode::member_unknown, "member", number, line, context_);
                           });
        check_list_end("section", end, end.stopped_at.data() >= property.name.data(), line, context_);
        properties_.push_back({std::move(property), codes_.size() - 1, line.place});
    }

    void hand_out(std::vector<SdBeam>& members)
    {
        members_.hand_out([&](std::size_t index, int value) {
            const assigned_property& assigned = properties_[static_cast<std::size_t>(value)];
            context_.start_list(assigned.place);
            for (const std::size_t size :
                 {assigned.property.text.size(), assigned.property.name.size(), codes_[assigned.code].size()})
                context_.budget.take_text(size);
            SdBeam& member = members[index];
            member.material = property_material;
            member.sect_text = assigned.property.text;
            member.sect_country = codes_[assigned.code];
            member.sect_name = assigned.property.name;
        });
    }

private:
    struct assigned_property {
        property_text property;
        std::size_t code; ///< index in codes_
        line_place place;
    };

    const line_list& lines_;
    double length_factor_;
    reading& context_;
    last_assignments members_;
    std::vector<std::string> codes_{default_code};
    std::vector<assigned_property> properties_;
};

} // namespace

property_text property_of_line(std::string_view line, double length_factor)
{
    if (const std::size_t blank = line.find(" TABLE "); blank != std::string_view::npos) {
        const std::string_view name = line.substr(blank + 1);
        return {name, contains(name, "PIPE OD ") ? pipe_text(name, length_factor) : std::string(name)};
    }
    if (const std::size_t start = line.find("TAPERED"); start != std::string_view::npos)
        return {line.substr(start), joined_dimensions("TAPERED", from_position(line, start + 8), 0, 1, length_factor)};
    if (const std::size_t start = line.find("PRIS"); start != std::string_view::npos)
        return {line.substr(start), prismatic_text(from_position(line, start + 5), length_factor)};
    if (const std::size_t start = line.find("UPTABLE"); start != std::string_view::npos)
        return {line.substr(start), std::string(line.substr(start))};
    return {};
}

void read_member_properties(SdReader& model, const line_list& lines, std::size_t from, reading& context)
{
    const std::size_t start = lines.find_start(property_keyword, from);
    std::size_t end = lines.find_equal("CONSTANTS", from);
    if (end < start)
        end = lines.size();
    section_assignments sections(lines, model.length_factor, context);
    for (std::size_t i = start; i < end; ++i) {
        const std::string_view line = lines[i].text;
        if (contains(line, property_keyword)) {
            sections.set_code(code_of(line));
            context.used.mark(i);
        } else if (count_words(line) > words_never_members) {
            sections.add_line(i);
        }
    }
    sections.hand_out(model.beams);
    if (start < lines.size())
        context.used.mark(lines.find_equal("CONSTANTS", from));
}

} // namespace detail

Section::Section(std::string material_name, std::string property_text)
    : material(std::move(material_name)), property(std::move(property_text))
{
    for (char& c : property)
        c = detail::to_upper_ascii(c);
    for (const char* const candidate : detail::section_types) {
        if (detail::starts_with(property, candidate)) {
            type = candidate;
            return;
        }
    }
}

} // namespace STAAD
