/// Listings of beam forces as large as wanted.
#ifndef STAADKIT_BENCHMARKS_LISTING_TEXT_H
#define STAADKIT_BENCHMARKS_LISTING_TEXT_H

#include <cstddef>
#include <string>

namespace STAAD::bench {

struct listing_options {
    std::size_t members = 10'000; ///< numbered from 1
    std::size_t cases = 20;
    std::size_t stations = 13;

    std::size_t all_stations() const { return members * cases * stations; }
};

/// One section with every load case of every member, in m, kN and kN-m. The same options always give the
/// same bytes.
std::string listing_text(const listing_options& options);

} // namespace STAAD::bench

#endif
