/// Records in which every field differs from its default.
#ifndef STAAD_TESTS_SUPPORT_FILLED_RECORDS_H
#define STAAD_TESTS_SUPPORT_FILLED_RECORDS_H

#include "staad/model/sd_reader.h"

namespace STAAD {

template<class Record>
Record filled();

} // namespace STAAD

#endif
