/// Includes staad/report/read_limit.h: hosts include it by this name.
#ifndef STAAD_READER_READ_LIMIT_H
#define STAAD_READER_READ_LIMIT_H

#include "staad/report/read_limit.h"

#endif
