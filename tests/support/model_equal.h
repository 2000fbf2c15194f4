/// Exact comparison of records and whole models, field by field.
#ifndef STAAD_TESTS_SUPPORT_MODEL_EQUAL_H
#define STAAD_TESTS_SUPPORT_MODEL_EQUAL_H

#include "staad/model/sd_reader.h"

#include <string>
#include <vector>

namespace STAAD {

/// Where two records of one kind differ, one line each: "offset_start.x: 0 and 300". Doubles are
/// compared by their bits. Any record of the library will do, SdReader included.
template<class Record>
std::vector<std::string> record_differences(const Record& a, const Record& b);

/// Names of the texts and containers of a record that are not empty.
template<class Record>
std::vector<std::string> filled_containers(const Record& record);

/// Names of the fields of a record that are not empty, 0 or false.
template<class Record>
std::vector<std::string> filled_fields(const Record& record);

/// Where two models differ in a public field: "nodes[2].x: 0 and 300". Empty: they are the same.
/// After a hundred differences only their number is given.
std::vector<std::string> model_differences(const SdReader& a, const SdReader& b);

} // namespace STAAD

#endif
