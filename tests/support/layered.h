/// Projects made from a few joints and members, and what they hold in short.
#ifndef STAAD_TESTS_SUPPORT_LAYERED_H
#define STAAD_TESTS_SUPPORT_LAYERED_H

#include "staad/storeys/layered_project.h"
#include "tests/support/placed_models.h"

#include <string>
#include <vector>

namespace STAAD::layered {

using places = std::vector<placed::point>;

/// A member between two positions.
struct bar {
    int start = 0;
    int end = 0;
    std::string property = "PRIS500X500";
    std::string material = "C30";
};
using bars = std::vector<bar>;
using corners = std::vector<int>;

/// Joints are numbered 10, 20 ..., members 101, 102 ..., elements 1001, 1002 ..., so that no number is a
/// position.
SdReader model(const places& joints, const bars& members, const std::vector<corners>& shells = {});

/// The same with one level member from joint to joint at each of the heights, none of them shared.
SdReader floors(const std::vector<double>& heights);

/// The project of a model that has a level.
StaadProProject_layered project_of(const SdReader& model);

/// Storeys with the numbers of their members and, after a bar, elements: "0+3000: 101 102 | 1001; 3000+3500:".
std::string storeys(const StaadProProject_layered& project);
/// The level of each joint.
std::vector<int> joint_levels(const StaadProProject_layered& project);

/// Numbers of the members in storeys that have forces, each with its load cases: "101: 1 2; 103: 1".
std::string forces(const StaadProProject_layered& project);

/// The first record of that member in a storey; fails and gives an empty one if there is none.
LayerMember member(const StaadProProject_layered& project, int number);

/// Where two projects differ, bit for bit: "layers[1].members[0].section.tag: 1 and 2".
std::vector<std::string> differences(const StaadProProject_layered& a, const StaadProProject_layered& b);

} // namespace STAAD::layered

#endif
