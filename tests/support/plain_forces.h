/// The force import in the plainest way: every line and word copied, one rule after the other, no thought
/// for speed. What the library reads is compared with it.
#ifndef STAAD_TESTS_SUPPORT_PLAIN_FORCES_H
#define STAAD_TESTS_SUPPORT_PLAIN_FORCES_H

#include "staad/model/sd_reader.h"

#include <map>
#include <string>
#include <vector>

namespace STAAD::plain {

/// `model` with the forces of `listing`, whose lines end in line feeds and whose numbers C can read. The
/// points are as printed and not resampled.
SdReader import_forces(SdReader model, const std::string& listing);

/// Sorted, without repeats.
std::vector<ForcePoint> sorted(const std::vector<ForcePoint>& points);
/// Nine stations of sorted points; empty if there are fewer than two.
std::vector<ForcePoint> resampled(const std::vector<ForcePoint>& sorted_points);

} // namespace STAAD::plain

#endif
