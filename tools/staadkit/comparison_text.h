/// The report of "compare" for people.
#ifndef TOOLS_STAADKIT_COMPARISON_TEXT_H
#define TOOLS_STAADKIT_COMPARISON_TEXT_H

#include "model_comparison.h"
#include "std_output.h"
#include "taken_over.h"

namespace tool {

/// How the new model differs from the old one.
void put_comparison(std_output& out, const model_comparison& comparison);

/// What it would take over from the old one.
void put_taken_over(std_output& out, const taken_over& taken);

} // namespace tool

#endif
