/// Leads to staad/host/force_file.h: hosts know the header by this name.
#ifndef STAAD_PROJECT_FORCE_FILE_H
#define STAAD_PROJECT_FORCE_FILE_H

#include "staad/host/force_file.h"

#endif
