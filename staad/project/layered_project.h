/// Leads to staad/storeys/layered_project.h: hosts know the header by this name.
#ifndef STAAD_PROJECT_LAYERED_PROJECT_H
#define STAAD_PROJECT_LAYERED_PROJECT_H

#include "staad/storeys/layered_project.h"

#endif
