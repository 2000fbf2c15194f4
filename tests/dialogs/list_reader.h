/// Reads a list in the window of another program.
#ifndef STAAD_TESTS_DIALOGS_LIST_READER_H
#define STAAD_TESTS_DIALOGS_LIST_READER_H

#include "tests/dialogs/result_file.h"

namespace STAAD {

/// Writes title, rows and the text below them of the first window of the class `window_class` that has a list.
void read_list(const wchar_t* window_class, result_file& result);

} // namespace STAAD

#endif
