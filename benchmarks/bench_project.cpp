/// Measures the comparison with an earlier model, and the layering, at sizes from 10^4 joints up, and
/// judges how the time per joint grows.
///
/// Times are processor time of one thread, user and system, the best of several warm rounds.
#include "bars.h"
#include "measure.h"

#include "staad/model/sd_reader.h"
#include "staad/storeys/layered_project.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <numeric>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace STAAD::bench;
using STAAD::SdReader;

constexpr int rounds = 5;
constexpr int property_texts = 40;
constexpr double hard_bar = 3.0; // time per joint, largest over smallest model

struct tower_options {
    int joints = 0;
    bool shuffled = false; ///< joints and members in random order
};

/// A grid of columns and beams, twice as many members as joints, about as many bays each way as storeys.
class tower {
public:
    explicit tower(const tower_options& options) : options_(options)
    {
        while (side_ * side_ * side_ < options.joints)
            ++side_;
    }

    SdReader model() const
    {
        SdReader model;
        const std::vector<int> joints = order(options_.joints);
        std::vector<int> position(joints.size());
        for (std::size_t i = 0; i < joints.size(); ++i) {
            position[static_cast<std::size_t>(joints[i])] = static_cast<int>(i) + 1;
            add_joint(model, joints[i]);
        }
        for (const int member : order(2 * options_.joints))
            add_member(model, member, position);
        return model;
    }

private:
    std::vector<int> order(int count) const
    {
        std::vector<int> places(static_cast<std::size_t>(count));
        std::iota(places.begin(), places.end(), 0);
        std::mt19937 random;
        if (options_.shuffled)
            std::shuffle(places.begin(), places.end(), random);
        return places;
    }

    void add_joint(SdReader& model, int place) const
    {
        STAAD::SdNode joint;
        joint.id = static_cast<int>(model.nodes.size()) + 1;
        joint.x = 6000.0 * (place % side_);
        joint.y = 5400.0 * (place / side_ % side_);
        joint.z = 3300.0 * (place / side_ / side_);
        model.nodes.push_back(joint);
    }

    /// The first half of the members are columns, the second half beams; ends past the last joint start over.
    void add_member(SdReader& model, int place, const std::vector<int>& position) const
    {
        const int joints = options_.joints;
        const int start = place % joints;
        const int end = (start + (place < joints ? side_ * side_ : 1)) % joints;
        STAAD::SdBeam member;
        member.id = static_cast<int>(model.beams.size()) + 1;
        member.node_start = position[static_cast<std::size_t>(start)];
        member.node_end = position[static_cast<std::size_t>(end)];
        member.material = "CONCRETE";
        member.sect_text = "PRIS YD " + std::to_string(300 + 10 * (place % property_texts)) + " ZD 300";
        model.beams.push_back(std::move(member));
    }

    tower_options options_;
    int side_ = 1;
};

/// Processor time per joint of `work(input)`, with a new input from `prepare` for every round.
template<class Prepare, class Work>
double seconds_of_joint(int joints, memory_state state, Prepare prepare, Work work)
{
    double best = std::numeric_limits<double>::infinity();
    for (int round = 0; round <= rounds; ++round) {
        auto input = prepare();
        if (state == memory_state::fresh)
            give_back_free_memory();
        const double begin = processor_seconds();
        work(input);
        const double spent = processor_seconds() - begin;
        if (round > 0)
            best = std::min(best, spent / joints);
    }
    return best;
}

double match_time(int joints, bool shuffled, memory_state state)
{
    SdReader now = tower({joints, false}).model();
    const SdReader earlier = tower({joints, shuffled}).model();
    const double seconds = seconds_of_joint(
        joints, state, [&] { return &now; }, [&](SdReader* model) { model->MakeMap(earlier); });
    if (now.old_proj_maps.joints_new_to_old.size() != now.nodes.size())
        give_up("joints were not matched");
    return seconds;
}

double layering_time(int joints, bool shuffled, memory_state state)
{
    const SdReader model = tower({joints, shuffled}).model();
    STAAD::StaadProProject_layered project;
    const double seconds = seconds_of_joint(
        joints, state,
        [&] {
            project = {};
            return SdReader(model);
        },
        [&](SdReader& copy) { project.BuildFromModel(std::move(copy)); });
    if (project.node_levels.size() != model.nodes.size())
        give_up("joints have no levels");
    return seconds;
}

using timing = double (*)(int joints, bool shuffled, memory_state state);

bool judge_growth(const char* what, timing time, bool shuffled, memory_state state, int largest)
{
    set_memory_state(state);
    std::printf("%s, %s order, %s memory, per joint:", what, shuffled ? "random" : "the same",
                state == memory_state::kept ? "kept" : "fresh");
    double first = 0;
    double last = 0;
    for (int joints = 10'000; joints <= largest; joints *= 10) {
        last = 1e9 * time(joints, shuffled, state);
        if (first == 0)
            first = last;
        std::printf("  %d: %.0f ns", joints, last);
        std::fflush(stdout);
    }
    std::printf("\n");
    return judge("largest / smallest", last / first, hard_bar, hard_bar);
}

} // namespace

int main(int argc, char** argv)
{
    const int joints = argc > 1 ? std::atoi(argv[1]) : 1'000'000;
    if (argc > 2 || joints < 10'000) {
        std::fprintf(stderr, "usage: bench_project [JOINTS]\n"
                             "Measures comparisons and layerings from 10000 joints to JOINTS (1000000), twice as many\n"
                             "members. Ends with 1 if a bar is missed.\n");
        return 2;
    }
    bool kept = true;
    for (const memory_state state : {memory_state::kept, memory_state::fresh}) {
        for (const bool shuffled : {false, true}) {
            kept = judge_growth("comparison", match_time, shuffled, state, joints) && kept;
            kept = judge_growth("layering", layering_time, shuffled, state, joints) && kept;
        }
    }
    std::printf("%s\n", kept ? "every bar kept" : "a bar was missed");
    return kept ? 0 : 1;
}
