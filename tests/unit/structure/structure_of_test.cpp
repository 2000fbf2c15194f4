/// From the container to a structure and back.

#include "staad/model/sd_reader.h"
#include "staad/structure/container.h"
#include "tests/support/example_files.h"
#include "tests/support/model_equal.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

TEST(StructureOf, GivesTheContainerOfTheExamplesBack)
{
    for (const char* name : {"concrete-frame.std", "steel-portal.std", "twelve-storey.std"}) {
        SdReader host;
        ASSERT_TRUE(host.ReadSDDataFromText(examples::content(name)));
        SdReader back;
        to_reader(structure_of(host), back);
        EXPECT_EQ(model_differences(host, back), std::vector<std::string>{}) << name;
    }
}

} // namespace
} // namespace STAAD
