/// An earlier project and the model that came after it, with hardly a number or position in common.
#ifndef STAAD_TESTS_SUPPORT_TAKE_OVER_MODELS_H
#define STAAD_TESTS_SUPPORT_TAKE_OVER_MODELS_H

#include "staad/model/sd_reader.h"
#include "tests/support/placed_models.h"

namespace STAAD::take_over_models {

/// Joints 10, 20, 30 and 40 on a line, members 7, 8 and 9 between them, and shell 20, whose number joint 20
/// has as well, over the first three.
inline SdReader earlier()
{
    SdReader model;
    model.nodes = {placed::joint(10, {0, 0, 0}), placed::joint(20, {1000, 0, 0}), placed::joint(30, {2000, 0, 0}),
                   placed::joint(40, {9000, 0, 0})};
    model.beams = {placed::member(7, 1, 2), placed::member(8, 2, 3), placed::member(9, 3, 4)};
    model.shells = {placed::shell(20, {1, 2, 3})};
    return model;
}

/// Joint 10 is 51, 20 is 52 and 30 is 53; 40 is gone, 57 is new. Member 7 is 201, and 8, turned round, 202;
/// 9 is gone, 203 is new. Shell 20 is 61.
inline SdReader now()
{
    SdReader model;
    model.nodes = {placed::joint(53, {2000, 0, 0}), placed::joint(57, {5000, 0, 0}), placed::joint(52, {1000, 0.05, 0}),
                   placed::joint(51, {0, 0, 0})};
    model.beams = {placed::member(203, 1, 2), placed::member(202, 1, 3), placed::member(201, 4, 3)};
    model.shells = {placed::shell(61, {4, 3, 1})};
    return model;
}

} // namespace STAAD::take_over_models

#endif
