/// The report of "compare" for people.
#ifndef TOOLS_STAADKIT_COMPARE_COMPARISON_TEXT_H
#define TOOLS_STAADKIT_COMPARE_COMPARISON_TEXT_H

#include "compare/model_comparison.h"
#include "output/std_output.h"

namespace tool {

/// Prints how the new model differs from the old one, and what it would take over from it.
void put_comparison(std_output& out, const compared_models& compared);

} // namespace tool

#endif
