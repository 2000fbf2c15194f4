/// Leads to staad/export.h: hosts know the header by this name.
#ifndef STAAD_MODEL_EXPORT_H
#define STAAD_MODEL_EXPORT_H

#include "staad/export.h"

#endif
