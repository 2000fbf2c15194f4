/// Writes the numbers of a written text once more and does nothing else: any writer of the format has to do at
/// least that.
#ifndef STAADKIT_BENCHMARKS_WRITTEN_NUMBERS_H
#define STAADKIT_BENCHMARKS_WRITTEN_NUMBERS_H

#include <cstddef>
#include <string_view>
#include <vector>

namespace STAAD::bench {

class written_numbers {
public:
    /// Takes the numbers out of a text of the library: words that begin like one, coordinates as reals,
    /// words with six decimals as such, other words with a point or an exponent as reals.
    explicit written_numbers(std::string_view text);

    /// Writes every number with std::to_chars: integers, reals with six significant digits, and six
    /// decimals. Returns the number of characters.
    std::size_t write_all() const;

    std::size_t integers() const noexcept { return integers_.size(); }
    std::size_t reals() const noexcept { return reals_.size(); }
    std::size_t six_places() const noexcept { return six_places_.size(); }

private:
    void take_line(std::string_view line, bool coordinates);
    void take_word(std::string_view word, bool is_real);

    std::vector<int> integers_;
    std::vector<double> reals_;
    std::vector<double> six_places_;
};

} // namespace STAAD::bench

#endif
