// START USER TABLE: sections defined by their dimensions, and the look-up of a row.

#include "staad/model/sd_reader.h"
#include "staad/model/section_family.h"
#include "staad/reader/findings.h"
#include "staad/reader/reading.h"
#include "staad/text/lines.h"
#include "staad/text/number.h"
#include "staad/text/words.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace STAAD {
namespace {

// A table without a UNIT line gets this. The "00" tells it apart from a table with that very line; no family
// has such a word, so that the look-up returns UnknownSection for it.
constexpr const char* unit_of_bare_table = "00UNIT METER KN";
constexpr const char* type_of_bare_table = "00WIDE FLANGE";

/// Reads the UNIT line and the family line after a TABLE line. Returns the last line it took.
std::size_t read_table_head(SdUserSectionTable& table, const detail::line_list& lines, std::size_t line,
                            std::size_t end)
{
    if (line + 1 >= end || !detail::starts_with(lines[line + 1].text, "UNIT")) {
        table.unit = unit_of_bare_table;
        table.type = type_of_bare_table;
        return line;
    }
    table.unit = lines[line + 1].text;
    if (line + 2 >= end)
        return line + 1;
    table.type = lines[line + 2].text;
    return line + 2;
}

UsrDefineSectionType family_of(const std::string& word)
{
    const auto begin = std::begin(detail::section_family_words);
    const auto found = std::find(begin + WideFlange, std::end(detail::section_family_words), word);
    return found == std::end(detail::section_family_words) ? UnknownSection
                                                           : static_cast<UsrDefineSectionType>(found - begin);
}

} // namespace

void SdReader::read_user_table(const detail::line_list& lines, detail::reading& context)
{
    const std::size_t start = lines.find_equal("START USER TABLE");
    const std::size_t end = lines.find_equal("END", start + 1);
    context.used.mark(start, end + 1);
    if (end == lines.size())
        detail::report_block_open(lines, start, "END", context);
    int number = 1;
    for (std::size_t i = start + 1; i < end; ++i) {
        const std::string_view line = lines[i].text;
        if (detail::starts_with(line, "TABLE")) {
            number = detail::to_int(detail::word_at(line, 1));
            i = read_table_head(usr_tables[number], lines, i, end);
        } else {
            // Every line becomes a name, dimension lines too: look-ups search for the section's name.
            usr_tables[number].AddRecord(std::string(line), std::string(lines.text(i + 1)));
        }
    }
}

std::pair<UsrDefineSectionType, std::string> SdReader::GetSectionFromUsrTable(const std::string& text) const
{
    detail::word_cursor words(text);
    words.next_or_empty(); // UPTABLE
    const std::string_view number = words.next_or_empty();
    const std::string_view name = words.next_or_empty();
    const auto table = usr_tables.find(detail::to_int(number));
    if (name.empty() || table == usr_tables.end())
        return {UnknownSection, {}};
    const UsrDefineSectionType family = family_of(table->second.type);
    const auto row = table->second.records.find(std::string(name));
    if (row == table->second.records.end())
        return {family, {}};
    return {family, ConvertSectionParamByUnit(row->second)};
}

std::string SdReader::ConvertSectionParamByUnit(const std::string& text) const
{
    std::string dimensions;
    detail::word_cursor pieces(text, "X ");
    for (std::string_view piece; pieces.next(piece);) {
        dimensions += std::to_string(detail::truncate_to_int(detail::to_real(piece) * length_factor));
        dimensions += 'X';
    }
    if (dimensions.empty())
        throw std::out_of_range("invalid string position");
    dimensions.pop_back();
    return dimensions;
}

} // namespace STAAD
