/// Includes staad/text/split_string.h: hosts include it by this name.
#ifndef STAAD_READER_TEXT_H
#define STAAD_READER_TEXT_H

#include "staad/text/split_string.h"

#endif
