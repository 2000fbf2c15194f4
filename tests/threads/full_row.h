/// A model with every block that the writer knows.
#ifndef STAAD_TESTS_THREADS_FULL_ROW_H
#define STAAD_TESTS_THREADS_FULL_ROW_H

#include "staad/model/sd_reader.h"

namespace STAAD {

/// A row of members and elements that carry groups, supports, releases, sections, loads, wind and
/// seismic parameters. Load cases begin at `first_case`, and every load has a value of its own: in
/// the texts of two such models no load line is the same.
SdReader make_full_row(int members, int first_case);

} // namespace STAAD

#endif
