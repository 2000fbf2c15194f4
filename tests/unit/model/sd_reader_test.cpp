/// Emptying a model, and which version this is.

#include "staad/model/sd_reader.h"
#include "staad/version.h"
#include "tests/support/filled_records.h"
#include "tests/support/model_equal.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

using texts = std::vector<std::string>;

TEST(Version, IsThatOfTheMacros)
{
    const int parts[] = {STAADKIT_VERSION_MAJOR, STAADKIT_VERSION_MINOR, STAADKIT_VERSION_PATCH};
    EXPECT_STREQ(version(), STAADKIT_VERSION);
    EXPECT_EQ(version(), std::to_string(parts[0]) + "." + std::to_string(parts[1]) + "." + std::to_string(parts[2]));
}

TEST(Reset, LeavesANewModel)
{
    SdReader model = filled<SdReader>();
    ASSERT_NE(model_differences(model, SdReader()), texts());
    model.Reset();
    EXPECT_EQ(model_differences(model, SdReader()), texts());
}

} // namespace
} // namespace STAAD
