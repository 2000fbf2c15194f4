/// Includes staad/report/read_report.h: hosts include it by this name.
#ifndef STAAD_READER_READ_REPORT_H
#define STAAD_READER_READ_REPORT_H

#include "staad/report/read_report.h"

#endif
