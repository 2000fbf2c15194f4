/// Includes staad/export.h: hosts include it by this name.
#ifndef STAAD_MODEL_EXPORT_H
#define STAAD_MODEL_EXPORT_H

#include "staad/export.h"

#endif
