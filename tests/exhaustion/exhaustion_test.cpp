/// Memory that runs out at each of the first allocations of an operation and at many later ones, once or from then on:
/// the operation throws std::bad_alloc or ends as it should, nothing leaks, and what it worked on can be destroyed or
/// used again.

#include "staad/host/platform_services.h"
#include "staad/model/sd_reader.h"
#include "staad/report/read_report.h"
#include "staad/storeys/layered_project.h"
#include "tests/support/allocations.h"
#include "tests/support/example_files.h"
#include "tests/support/layered.h"
#include "tests/support/model_equal.h"
#include "tests/support/sanitizers.h"
#include "tests/support/temporary_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <new>
#include <string>
#include <system_error>
#include <vector>

namespace STAAD {
namespace {

using differences = std::vector<std::string>;

/// The first allocations of an operation fail each; of those after them, up to `most_allocations`, every seventh: by
/// then an operation repeats itself record by record, and steps of seven come upon every part of a record in turn.
constexpr std::size_t each_fails = 500;
constexpr std::size_t most_allocations = 2000;
/// The steps are so many times as long; the environment may set more, for what runs slowly.
std::size_t step()
{
    if (const char* const apart = std::getenv("STAADKIT_ALLOCATIONS_APART"))
        return std::stoul(apart);
    return has_address_sanitizer ? 5 : 1;
}

enum class outcome { finished, threw };

/// Makes a subject and does the operation on it for each allocation that this takes, up to a bound, and lets that one
/// fail. `check(subject, outcome)` follows with all the memory there is.
template<class Make, class Operation, class Check>
void fail_each_allocation(Make make, Operation operate, Check check)
{
    std::size_t needed = 0;
    { // the first time is not counted: what lives for the whole program is made then
        auto warm = make();
        operate(warm);
        auto subject = make();
        const std::size_t before = allocations::asked();
        operate(subject);
        needed = allocations::asked() - before;
    }
    ASSERT_GT(needed, 0U);
    const std::size_t apart = step();
    for (const auto how : {allocations::failure::once, allocations::failure::from_then_on}) {
        for (std::size_t number = 1; number <= std::min(needed, most_allocations);
             number += number < each_fails ? apart : 7 * apart) {
            SCOPED_TRACE("allocation " + std::to_string(number) +
                         (how == allocations::failure::once ? " fails" : " fails, and all after it"));
            const std::size_t live = allocations::live();
            {
                auto subject = make();
                outcome end = outcome::finished;
                {
                    const allocations::failing failing(number, how);
                    try {
                        operate(subject);
                    } catch (const std::bad_alloc&) {
                        end = outcome::threw;
                    }
                    ASSERT_TRUE(failing.has_failed());
                }
                check(subject, end);
            }
            ASSERT_EQ(allocations::live(), live) << "blocks left over";
            if (testing::Test::HasFailure())
                return;
        }
    }
}

/// The lines of a file as memory has them, whatever the platform ends them with.
std::string without_carriage_returns(std::string text)
{
    std::erase(text, '\r');
    return text;
}

SdReader read_text(const std::string& text)
{
    SdReader model;
    EXPECT_TRUE(model.ReadSDDataFromText(text));
    return model;
}

/// Reading adds to these; without them an object is as good as new.
void forget_what_reading_keeps(SdReader& model)
{
    model.surfaces.clear();
    model.surface_index.clear();
    model.groups.clear();
    model.supports.clear();
    model.releases.clear();
    model.brace_ids.clear();
}

/// The object takes the text in as a new one does.
void expect_reads_again(SdReader& model, const std::string& text, const SdReader& want)
{
    forget_what_reading_keeps(model);
    EXPECT_TRUE(model.ReadSDDataFromText(text));
    model.old_proj_maps = want.old_proj_maps;
    model.beam_forces = want.beam_forces;
    EXPECT_EQ(model_differences(model, want), differences{});
}

struct reported_model {
    SdReader model;
    ReadReport report;
};

void expect_same(const reported_model& one, const reported_model& want)
{
    EXPECT_EQ(model_differences(one.model, want.model), differences{});
    EXPECT_EQ(one.report.findings.size(), want.report.findings.size());
}

class Exhaustion : public testing::TestWithParam<const char*> {
protected:
    std::string name() const { return GetParam(); }
    const std::string text_ = examples::content(name() + ".std");
    const SdReader whole_ = read_text(text_);
};

using reading = std::function<void(reported_model&)>;

TEST_P(Exhaustion, OfAReadingLeavesAModelThatCanBeReadInto)
{
    const std::string path = examples::path(name() + ".std");
    const reading readings[] = {
        [&](reported_model& one) { one.model.ReadSDDataFromText(text_); },
        [&](reported_model& one) { one.model.ReadSDDataFromStdFile(path.c_str(), one.report); },
    };
    for (const reading& read : readings) {
        reported_model whole;
        read(whole);
        EXPECT_EQ(model_differences(whole.model, whole_), differences{});
        fail_each_allocation([] { return reported_model(); }, read,
                             [&](reported_model& result, outcome end) {
                                 if (end == outcome::finished)
                                     expect_same(result, whole);
                                 expect_reads_again(result.model, text_, whole_);
                             });
    }
}

TEST_P(Exhaustion, OfAWritingToMemory)
{
    const std::string written = SdReader(whole_).WriteDataToText();
    struct writing {
        SdReader model;
        std::string text;
    };
    fail_each_allocation(
        [&] {
            return writing{whole_, {}};
        },
        [](writing& one) { one.text = one.model.WriteDataToText(); },
        [&](writing& one, outcome end) {
            EXPECT_EQ(one.text, end == outcome::finished ? written : "");
            EXPECT_EQ(one.model.WriteDataToText(), written);
            expect_reads_again(one.model, text_, whole_);
        });
}

TEST_P(Exhaustion, OfAWritingToAFile)
{
    const std::string written = SdReader(whole_).WriteDataToText();
    const temporary_file file("");
    struct writing {
        SdReader model;
        std::error_code error;
        bool is_whole = false;
    };
    fail_each_allocation(
        [&] {
            return writing{whole_, {}};
        },
        [&](writing& one) { one.is_whole = one.model.WriteDataToFile(file.path(), one.error); },
        [&](writing& one, outcome end) {
            EXPECT_EQ(one.is_whole, end == outcome::finished && !one.error);
            if (one.is_whole) {
                EXPECT_EQ(without_carriage_returns(file.content()), written);
            }
            EXPECT_EQ(one.model.WriteDataToText(), written);
        });
}

/// A desktop that answers yes, and keeps no record that would count as a leak.
class agreeing_services : public PlatformServices {
public:
    agreeing_services() { SetPlatformServices(this); }
    ~agreeing_services() override { SetPlatformServices(nullptr); }
    agreeing_services(const agreeing_services&) = delete;
    agreeing_services& operator=(const agreeing_services&) = delete;

    Answer ShowMessage(const Message&) override { return Answer::Yes; }
    std::string AskForFile(const FileQuestion&) override { return {}; }
    bool CanRead(const char*) override { return true; }
};

TEST_P(Exhaustion, OfAComparisonWithAnEarlierProject)
{
    const agreeing_services desktop;
    SdReader moved = whole_;
    for (SdNode& joint : moved.nodes)
        joint.id += 1000;
    SdReader taken = moved;
    taken.TakeOverFrom(whole_);
    const std::string path = examples::path(name() + ".std");
    fail_each_allocation([&] { return moved; }, [&](SdReader& model) { model.compWithOldProj(path.c_str()); },
                         [&](SdReader& model, outcome end) {
                             if (end == outcome::finished) {
                                 EXPECT_EQ(model_differences(model, taken), differences{});
                             }
                             model.TakeOverFrom(whole_);
                             EXPECT_EQ(model.old_proj_maps.joints_new_to_old, taken.old_proj_maps.joints_new_to_old);
                             expect_reads_again(model, text_, whole_);
                         });
}

TEST_P(Exhaustion, OfAProjectLeavesTheOneBefore)
{
    const SdReader other = layered::floors({0, 3000, 7000});
    const std::string path = examples::path(name() + ".std");
    const StaadProProject_layered before = layered::project_of(other);
    StaadProProject_layered whole;
    ASSERT_TRUE(whole.BuidFromFile(path.c_str(), 1));
    fail_each_allocation(
        [&] { return before; }, [&](StaadProProject_layered& project) { project.BuidFromFile(path.c_str(), 1); },
        [&](StaadProProject_layered& project, outcome end) {
            EXPECT_EQ(layered::differences(project, end == outcome::finished ? whole : before), differences{});
            EXPECT_TRUE(project.BuidFromFile(path.c_str(), 1));
            EXPECT_EQ(layered::differences(project, whole), differences{});
        });
}

std::string name_of_test(const testing::TestParamInfo<const char*>& example)
{
    std::string name = example.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Examples, Exhaustion, testing::Values("concrete-frame", "steel-portal", "twelve-storey"),
                         name_of_test);

class ExhaustionOfForces : public Exhaustion {
protected:
    const std::string listing_ = examples::content(name() + ".txt");
};

TEST_P(ExhaustionOfForces, LeavesAModelThatCanBeReadInto)
{
    const std::string path = examples::path(name() + ".txt");
    const reading readings[] = {
        [&](reported_model& one) { one.model.ReadForceMomentFromTxtFile(path.c_str()); },
        [&](reported_model& one) { one.model.ReadForceMomentFromText(listing_, one.report); },
    };
    for (const reading& read : readings) {
        const auto before = [&] { return reported_model{whole_, {}}; };
        reported_model whole = before();
        read(whole);
        ASSERT_FALSE(whole.model.beam_forces.empty());
        fail_each_allocation(before, read, [&](reported_model& result, outcome end) {
            if (end == outcome::finished)
                expect_same(result, whole);
            read(result);
            expect_same(result, whole);
            expect_reads_again(result.model, text_, whole_);
        });
    }
}

INSTANTIATE_TEST_SUITE_P(Examples, ExhaustionOfForces, testing::Values("concrete-frame", "steel-portal"), name_of_test);

} // namespace
} // namespace STAAD
