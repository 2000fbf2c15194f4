/// The report of "compare" for people.
#ifndef TOOLS_STAADKIT_COMPARE_COMPARISON_TEXT_H
#define TOOLS_STAADKIT_COMPARE_COMPARISON_TEXT_H

#include "compare/model_comparison.h"
#include "compare/taken_over.h"
#include "output/std_output.h"

namespace tool {

/// How the new model differs from the old one.
void put_comparison(std_output& out, const model_comparison& comparison);

/// What it would take over from the old one.
void put_taken_over(std_output& out, const taken_over& taken);

} // namespace tool

#endif
