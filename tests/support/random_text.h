/// Random choices, and texts laid out in one of the many ways that mean the same.
#ifndef STAAD_TESTS_SUPPORT_RANDOM_TEXT_H
#define STAAD_TESTS_SUPPORT_RANDOM_TEXT_H

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace STAAD::decks {

/// Random choices, the same on every machine for one seed.
class chance {
public:
    explicit chance(std::uint64_t seed) : engine_(seed) {}

    int between(int low, int high)
    {
        return low + static_cast<int>(engine_() % static_cast<std::uint64_t>(high - low + 1));
    }
    bool one_in(int count) { return between(1, count) == 1; }
    template<class Value>
    Value any_of(std::initializer_list<Value> values)
    {
        return values.begin()[between(0, static_cast<int>(values.size()) - 1)];
    }
    template<class Value>
    const Value& any_of(const std::vector<Value>& values)
    {
        return values[static_cast<std::size_t>(between(0, static_cast<int>(values.size()) - 1))];
    }
    template<class Value>
    void shuffle(std::vector<Value>& values)
    {
        for (std::size_t i = values.size(); i > 1; --i)
            std::swap(values[i - 1], values[static_cast<std::size_t>(between(0, static_cast<int>(i) - 1))]);
    }

private:
    std::mt19937_64 engine_;
};

/// digits / 10^places. Both are exact in a double, so that the one rounding of the division gives the
/// double nearest to the decimal number, whatever its spelling.
struct decimal {
    std::int64_t digits;
    int places;

    double value() const;
    /// One of its spellings: 7.25, +7.25, 7.250, 725e-2, ...
    std::string spelled(chance& random) const;
};

decimal random_decimal(chance& random, int low, int high);

/// Numbers of a list as they are written: one that stands for itself, or the range that a TO adds
/// after it.
struct id_piece {
    int first;
    int last;
    bool is_range;
};

/// A written list and the numbers it stands for.
struct id_list {
    std::vector<std::string> words;
    std::vector<id_piece> pieces;

    std::vector<int> ids() const;
};

/// How the numbers of a range may be spelled.
enum class list_kind {
    general,     ///< a second TO counts from the last number that stood alone
    group,       ///< a second TO counts on from the bound
    whole_ranges ///< ranges begin and end where they were asked to
};

/// A list of random pieces whose ends are taken from `pool`, mostly.
id_list random_list(chance& random, const std::vector<int>& pool, list_kind kind);

/// Gathers the lines of a text. Between any two physical lines there may be blank ones and lines of
/// generated data ("*{"), which mean nothing anywhere.
class text_layout {
public:
    /// `is_plain`: no lines without meaning, and a blank before each mark of continuation.
    explicit text_layout(chance& random, bool is_plain = false);

    /// A line as it stands.
    void line(const std::string& text);
    /// The words as one logical line: any number of blanks between them, continued here and there.
    void words(const std::vector<std::string>& words);
    /// `head` laid out the same way, then `tail` in one piece at its end, as it stands.
    void words_then(const std::vector<std::string>& head, const std::string& tail);
    /// Items, each a few words, divided by ";", some to a line, some of them continued.
    /// `begun_by_blank`: a line may begin with a blank.
    void items(const std::vector<std::vector<std::string>>& items, bool begun_by_blank);
    /// A line that no block takes for its own.
    void noise();
    void comment();
    /// The text with its line ends.
    std::string take();

private:
    std::string gap();
    void empty_lines();
    void end_line(std::string text);

    chance& random_;
    bool is_plain_;
    std::string text_;
    std::string line_end_;
    int line_length_;
};

} // namespace STAAD::decks

#endif
