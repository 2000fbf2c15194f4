/// Models as a host fills them in by hand, of any size, to be written. The same options always give the
/// same model.
#ifndef STAADKIT_BENCHMARKS_HOST_MODEL_H
#define STAADKIT_BENCHMARKS_HOST_MODEL_H

#include "staad/model/sd_reader.h"

#include <cstddef>

namespace STAAD::bench {

struct host_options {
    std::size_t members = 1'000'000; ///< and as many joints
    int load_cases = 20;
    int definitions_per_case = 50; ///< every member has one load of each case
    /// Groups of members, groups of joints, kinds of support, of release, of section, and beta
    /// angles: that many of each, and each covers all members or joints.
    int lists = 20;
    /// False: each list and load has consecutive numbers. True: lists take turns, so that no list has two
    ///        consecutive numbers, and hosts' lists and the loads of a member are in random order.
    bool shuffled = false;

    std::size_t references() const noexcept { return members * static_cast<std::size_t>(load_cases); }
    std::size_t definitions() const noexcept
    {
        return static_cast<std::size_t>(load_cases) * static_cast<std::size_t>(definitions_per_case);
    }
};

SdReader make_host_model(const host_options& options);

} // namespace STAAD::bench

#endif
