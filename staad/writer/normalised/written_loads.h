/// What the wind and seismic blocks of a written file need of the load cases before them.
#ifndef STAAD_WRITER_NORMALISED_WRITTEN_LOADS_H
#define STAAD_WRITER_NORMALISED_WRITTEN_LOADS_H

#include "staad/text/number_lookup.h"
#include "staad/text/text_output.h"
#include "staad/writer/normalised/written_numbers.h"

#include <cstddef>
#include <map>
#include <span>
#include <string_view>
#include <vector>

namespace STAAD::detail {

inline constexpr std::string_view member_load_prefix = "MEMBER LOAD ";

/// Whether members carry it: only such definitions are written.
bool is_member_load(const LoadDefination& definition);

/// The word of a member load: UNI, CON, LIN ...
std::string_view member_load_word(const LoadDefination& definition);

/// The members under every member load, found in one walk over all members.
class loaded_members {
public:
    loaded_members() = default;
    loaded_members(const SdReader& model, const written_numbers& numbers);

    /// Numbers of the members that refer to the definition, in list order; one that refers to it twice is
    /// listed twice.
    std::span<const int> of(int definition) const noexcept;

private:
    number_lookup positions_;       // 1-based, of the definition numbers
    std::vector<std::size_t> ends_; // in ids_, by position
    std::vector<int> ids_;
};

/// A member load and the members under it.
struct member_load {
    const LoadDefination* definition;
    std::span<const int> members;
};

/// Strict weak order: kind, direction, load case, then the values one by one, the shorter list first.
/// Equal definitions are equivalent; so are values that are no numbers, after all numbers.
bool ordered_before(const LoadDefination& left, const LoadDefination& right);

/// Owned by one writing of one model.
struct written_loads {
    written_loads() = default;
    written_loads(const written_loads&) = delete; // `collected` views `members`
    written_loads& operator=(const written_loads&) = delete;

    /// `last_number` raised by `count`; past the 32-bit limit it wraps to the lowest number.
    int next_number(int count) noexcept;

    /// Fills `members` and `collected` with the member loads of the model's load cases that act on any
    /// member.
    void collect(const SdReader& model, const written_numbers& numbers);

    int last_number = 0; ///< running load case number
    loaded_members members;
    std::map<int, std::vector<member_load>> collected; ///< per load case, by ordered_before, then by number
};

/// `loads` as a list of numbers with `text` after it, and a line feed.
void write_member_loads(text_output& out, std::span<const member_load> loads, std::string_view text);

/// `load` as a load in X and one in Z of the file, every value times `factor`.
void write_factored_member_load(text_output& out, const LoadDefination& load, std::span<const member_load> members,
                                double factor);

} // namespace STAAD::detail

#endif
