/// Words of a row as numbers, and as a text.
#ifndef STAAD_STRUCTURE_VALUES_H
#define STAAD_STRUCTURE_VALUES_H

#include "staad/deck/row_words.h"

#include <optional>
#include <string>
#include <string_view>

namespace STAAD::detail {

/// The number that all of `word` is; none if it is no number.
std::optional<double> real_value(std::string_view word) noexcept;
/// The number that all of `word` is, digits alone, with a sign if need be, that fits 32 bits; none else.
std::optional<int> whole_value(std::string_view word) noexcept;

/// What is left of an item, as written, single blanks between words.
std::string item_text(row_words words);

/// Takes numbers off the front of an item; "3*2.5" stands for three of them.
class number_words {
public:
    explicit number_words(row_words& words) noexcept : words_(words) {}

    /// Takes the next number; none at a word that is no number, which stays, and at the end of the item.
    std::optional<double> next() noexcept;
    /// Takes the next number if it is a whole one.
    std::optional<int> next_whole() noexcept;
    /// Whether there is another number.
    bool has_next() const noexcept;

private:
    row_words& words_;
    double repeated_ = 0.0;
    int times_ = 0; // that `repeated_` is still to come
};

} // namespace STAAD::detail

#endif
