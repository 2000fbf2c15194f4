/// Splitting a text into words.
#ifndef STAAD_TEXT_SPLIT_STRING_H
#define STAAD_TEXT_SPLIT_STRING_H

#include "staad/export.h"

#include <string>
#include <vector>

namespace STAAD {

/// The words of `text`: every character of `separators` separates on its own, runs and ends of
/// separators yield no empty words. Without separators a non-empty text is one word.
/// Cost: linear in the text, an allocation per long word.
STAAD_API std::vector<std::string> SplitString(const std::string& text, const std::string& separators);

} // namespace STAAD

#endif
