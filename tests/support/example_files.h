/// The example models and listings as they lie in the sources.
#ifndef STAAD_TESTS_SUPPORT_EXAMPLE_FILES_H
#define STAAD_TESTS_SUPPORT_EXAMPLE_FILES_H

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

namespace STAAD::examples {

inline std::string path(const std::string& name)
{
    return std::string(STAADKIT_EXAMPLES_FOLDER) + "/" + name;
}

inline std::string content(const std::string& name)
{
    std::ifstream file(path(name), std::ios::binary);
    EXPECT_TRUE(file) << "cannot open " << name;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace STAAD::examples

#endif
