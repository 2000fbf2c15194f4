/// The data that "info" shows of a model. Texts are those of the model, in the encoding of the file.
#ifndef TOOLS_STAADKIT_INFO_MODEL_SUMMARY_H
#define TOOLS_STAADKIT_INFO_MODEL_SUMMARY_H

#include "staad/model/sd_reader.h"
#include "staad/report/read_report.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// The box around all joints, mm, model frame.
struct extents {
    double low[3] = {0.0, 0.0, 0.0};
    double high[3] = {0.0, 0.0, 0.0};

    double size(std::size_t axis) const { return high[axis] - low[axis]; }
    bool are_finite() const;
};

/// A list of numbers of joints, members or elements, each counted once.
struct listed_numbers {
    std::size_t known = 0;
    std::size_t unknown = 0; ///< no record of the model has that number
};

/// One description of supports or releases.
struct description_summary {
    std::string description;
    listed_numbers numbers;
};

struct group_summary {
    std::string name;
    std::string kind; ///< as the file has it
    STAAD::SdGroup::IdType type = STAAD::SdGroup::JointId;
    listed_numbers numbers;
};

/// Members of one section: the same code word and section text, with or without dimensions.
struct section_summary {
    std::string country;
    std::string text;
    std::size_t members = 0;
    std::string family;             ///< only of an "UPTABLE" section, in lower case
    std::vector<double> dimensions; ///< mm, in the order of the section text; empty: none, or not understood
    std::string trouble;            ///< why an "UPTABLE" section has no dimensions
};

struct user_table_summary {
    int number = 0;
    std::string family; ///< as the table has it
    std::string unit;
    std::size_t rows = 0;
};

/// Definitions of one kind in one load case.
struct kind_count {
    std::string kind; ///< empty: not understood
    std::size_t count = 0;
};

struct load_case_summary {
    int number = 0;
    STAAD::LoadCase::LoadType type = STAAD::LoadCase::Unknown;
    std::string type_text;
    std::string title;
    std::vector<kind_count> definitions;
    std::size_t members = 0; ///< members loaded, each counted once
    std::size_t joints = 0;  ///< joints loaded, each counted once
};

struct skipped_summary {
    std::string words; ///< of the first line
    std::size_t lines = 0;
};

struct model_summary {
    std::size_t joints = 0;
    std::size_t members = 0;
    std::array<std::size_t, 4> members_of{}; ///< by STAAD::BeamType
    std::size_t elements = 0;                ///< shells that are not copies of surfaces
    std::size_t surfaces = 0;
    extents box;
    std::vector<double> levels; ///< mm, ascending
    bool has_default_density = true;
    std::size_t members_with_offsets = 0;
    std::size_t members_with_beta = 0;
    std::size_t members_without_section = 0;
    std::vector<group_summary> groups;
    std::vector<section_summary> sections;
    std::vector<user_table_summary> user_tables;
    std::vector<description_summary> supports;
    std::vector<description_summary> releases;
    std::vector<load_case_summary> load_cases;
    std::vector<skipped_summary> skipped;
};

model_summary summarise(const STAAD::SdReader& model, const STAAD::ReadReport& report);

/// The parts of summarise().
void summarise_sections(const STAAD::SdReader& model, model_summary& summary);
void summarise_lists(const STAAD::SdReader& model, model_summary& summary);
void summarise_loads(const STAAD::SdReader& model, model_summary& summary);

} // namespace tool

#endif
