/// Lays out command text the way the format's own editors do: items and number lists packed to lines
/// of at most 79 columns, a list that does not fit continued with " -".
#ifndef STAADKIT_BENCHMARKS_DECK_TEXT_H
#define STAADKIT_BENCHMARKS_DECK_TEXT_H

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace STAAD::bench {

/// Consecutive numbers, both bounds included.
struct id_range {
    int first;
    int last;
};

/// Ranges of ascending numbers; two neighbours in number stay two ranges of one.
std::vector<id_range> ranges_of(const std::vector<int>& ascending_ids);

class deck_text {
public:
    static constexpr std::size_t width = 79;

    void reserve(std::size_t bytes) { text_.reserve(bytes); }
    std::string take() && { return std::move(text_); }

    /// A whole line.
    void line(std::string_view text);

    /// An item such as "12 0 3.5 7.25", several to a line, each closed by ";".
    void item(std::string_view text);
    /// Closes the line of items that is being filled.
    void end_items();

    /// `head`, the numbers and `tail` as one logical line. Head and tail may be empty; neither is broken.
    void list(std::string_view head, const std::vector<id_range>& ids, std::string_view tail);

private:
    void word(std::string_view text);
    void end_line();

    std::string text_;
    std::size_t column_ = 0;
};

/// Builds one item: numbers divided by single blanks.
class item_text {
public:
    item_text& clear() noexcept
    {
        size_ = 0;
        return *this;
    }
    item_text& number(int value) noexcept;
    /// A length in metres, given in whole millimetres, without trailing zeros: 7250 gives "7.25".
    item_text& metres(int millimetres) noexcept;
    item_text& word(std::string_view text) noexcept;
    std::string_view view() const noexcept { return {buffer_, size_}; }

private:
    void blank() noexcept
    {
        if (size_ > 0)
            buffer_[size_++] = ' ';
    }

    char buffer_[256];
    std::size_t size_ = 0;
};

} // namespace STAAD::bench

#endif
