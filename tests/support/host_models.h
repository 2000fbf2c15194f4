/// Models as a host fills them in, without reading a file: what the files of tests/golden hold.
#ifndef STAAD_TESTS_SUPPORT_HOST_MODELS_H
#define STAAD_TESTS_SUPPORT_HOST_MODELS_H

#include "staad/model/sd_reader.h"

namespace STAAD::host_models {

/// A frame of two storeys with something in every block.
SdReader every_block();

/// A frame of fifteen storeys; sixteen wind profiles of twenty points, three spectra of ten.
SdReader tower();

/// One loaded member, and three spectra of `points` points.
SdReader spectra(int points);

} // namespace STAAD::host_models

#endif
