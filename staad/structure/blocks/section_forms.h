/// What a MEMBER PROPERTY line says after its list.
#ifndef STAAD_STRUCTURE_BLOCKS_SECTION_FORMS_H
#define STAAD_STRUCTURE_BLOCKS_SECTION_FORMS_H

#include "staad/deck/row_words.h"
#include "staad/structure/structure.h"
#include "staad/units/exact_units.h"

#include <string_view>

namespace STAAD::detail {

/// A section as a line describes it.
struct section_form {
    Structure::Section section; ///< without code and source
    /// What of the line is not understood; null: nothing. The section is then a row of a table, or kept as text.
    const char* unread = nullptr;
    /// Why the section is only kept as text, or as the word that it is; null: it is understood.
    const char* kept = nullptr;
};

/// Reads the rest of an item. Numbers are in `units`.
section_form read_section_form(row_words words, const exact_units& units);

/// The value of that name; null if the section has none.
const double* find_value(const Structure::Section& section, std::string_view name) noexcept;

/// mm2; 0 where the values do not say.
double area_of(const Structure::Section& section) noexcept;

} // namespace STAAD::detail

#endif
