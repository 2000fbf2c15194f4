#include "staad/reader/read_properties.h"

#include "staad/reader/named_records.h"
#include "staad/reader/number.h"
#include "staad/reader/words.h"
#include "staad/writer/number_text.h"

#include <algorithm>

namespace STAAD::detail {
namespace {

constexpr std::string_view property_keyword = "MEMBER PROPERTY";
constexpr const char* default_code = "CHINESE";
constexpr const char* property_material = "STEEL";

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

/// "PRIS YD 0.5 ZD 0.3" in metres is "PRIS500X300". Anything but one to four pairs of name and value
/// stays as written.
std::string prismatic_text(std::string_view after_keyword, double length_factor)
{
    const std::size_t count = count_words(after_keyword);
    if (count == 0 || count > 8 || count % 2 != 0)
        return std::string(after_keyword);
    return joined_dimensions("PRIS", after_keyword, 1, 2, length_factor);
}

/// The code of a "MEMBER PROPERTY" line: all of what follows the keyword's length, ends trimmed.
std::string_view code_of(std::string_view line) noexcept
{
    return trim_blanks(from_position(line, property_keyword.size()));
}

/// One property line to the members it names.
void assign_property(SdReader& model, const text_line& line, const property_text& property, const std::string& code,
                     reading& run)
{
    const list_end end = for_each_named(
        run.members, word_cursor(without_last_words(line.text, words_never_members)),
        [&](std::size_t index) {
            SdBeam& member = model.beams[index];
            member.material = property_material;
            member.sect_text = property.text;
            member.sect_country = code;
            member.sect_name = property.name;
        },
        [&](int number) { tell_unknown("member-unknown", "member", number, line, run); });
    check_list_end("section", end, end.stopped_at.data() >= property.name.data(), line, run);
}

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

void read_member_properties(SdReader& model, const line_list& lines, std::size_t from, reading& run)
{
    const std::size_t start = lines.find_start(property_keyword, from);
    std::size_t end = lines.find_equal("CONSTANTS", from);
    if (end < start)
        end = lines.size();
    std::string code = default_code;
    for (std::size_t i = start; i < end; ++i) {
        const std::string_view line = lines[i].text;
        if (contains(line, property_keyword)) {
            code = code_of(line);
            run.used.mark(i);
            continue;
        }
        if (count_words(line) <= words_never_members)
            continue;
        const property_text property = property_of_line(line, model.length_factor);
        if (property.name.empty())
            continue;
        run.used.mark(i);
        assign_property(model, lines[i], property, code, run);
    }
    if (start < lines.size())
        run.used.mark(lines.find_equal("CONSTANTS", from));
}

} // namespace STAAD::detail
