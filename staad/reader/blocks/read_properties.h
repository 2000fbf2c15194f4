/// MEMBER PROPERTY blocks: which section every member has.
#ifndef STAAD_READER_BLOCKS_READ_PROPERTIES_H
#define STAAD_READER_BLOCKS_READ_PROPERTIES_H

#include "staad/model/sd_reader.h"
#include "staad/reader/reading.h"
#include "staad/text/lines.h"

namespace STAAD::detail {

/// Reads from the first "MEMBER PROPERTY" line to the "CONSTANTS" line, both looked for from line
/// `from` on; to the end of the text if "CONSTANTS" is missing or comes first.
void read_member_properties(SdReader& model, const line_list& lines, std::size_t from, reading& run);

/// The section of one property line.
struct property_text {
    std::string_view name; ///< as written, from its keyword to the end of the line; empty: not understood
    std::string text;      ///< normalised, dimensions in whole mm
};

property_text property_of_line(std::string_view line, double length_factor);

} // namespace STAAD::detail

#endif
