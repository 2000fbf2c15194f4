/// Leads to staad/host/platform_services.h: hosts know the header by this name.
#ifndef STAAD_PLATFORM_PLATFORM_SERVICES_H
#define STAAD_PLATFORM_PLATFORM_SERVICES_H

#include "staad/host/platform_services.h"

#endif
