/// Reads a list in the window of another program.
#ifndef STAAD_TESTS_DIALOGS_LIST_READER_H
#define STAAD_TESTS_DIALOGS_LIST_READER_H

#include "tests/dialogs/result_file.h"

#include <windows.h>

namespace STAAD {

/// Writes the rows of a list view.
void read_rows(HWND list, result_file& result);

/// Writes title, rows and the text below them of the first window of the class `window_class` that has a list.
void read_list(const wchar_t* window_class, result_file& result);

} // namespace STAAD

#endif
