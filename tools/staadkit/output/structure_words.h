/// The words that stand for the kinds of a structure's records in what the tool prints.
#ifndef TOOLS_STAADKIT_OUTPUT_STRUCTURE_WORDS_H
#define TOOLS_STAADKIT_OUTPUT_STRUCTURE_WORDS_H

#include "staad/structure/structure.h"

#include <string>

namespace tool {

// Each is the name of the enumerator: "round_tube".
std::string word_of(STAAD::Structure::Kind kind);
std::string word_of(STAAD::Structure::Behaviour behaviour);
std::string word_of(STAAD::Structure::Section::Shape shape);
std::string word_of(STAAD::Structure::GroupKind kind);
std::string word_of(STAAD::Structure::Load::Kind kind);
std::string word_of(STAAD::Structure::Load::Direction direction);

/// What the loads of a kind act on: "joints", "members", "elements"; empty of those that are on none.
std::string loaded_records(STAAD::Structure::Load::Kind kind);

} // namespace tool

#endif
