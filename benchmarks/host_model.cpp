#include "host_model.h"

#include <random>
#include <string>
#include <utility>
#include <vector>

namespace STAAD::bench {
namespace {

constexpr int materials = 2;

class host_model {
public:
    explicit host_model(const host_options& options) : options_(options) {}

    SdReader make() &&
    {
        add_joints();
        add_members();
        add_groups();
        add_restraints(model_.supports, "FIXED BUT ");
        add_restraints(model_.releases, "START ");
        add_loads();
        return std::move(model_);
    }

private:
    /// Which of `count` lists the number at `position` belongs to.
    int list_of(std::size_t position, int count) const
    {
        const auto lists = static_cast<std::size_t>(count);
        return static_cast<int>(options_.shuffled ? position % lists : position * lists / options_.members);
    }

    template<class Value>
    void shuffle(std::vector<Value>& values)
    {
        if (!options_.shuffled)
            return;
        for (std::size_t i = values.size(); i > 1; --i)
            std::swap(values[i - 1], values[random_() % i]);
    }

    /// 1 to `members`, dealt to `lists` lists.
    template<class Number>
    std::vector<std::vector<Number>> dealt_numbers()
    {
        std::vector<std::vector<Number>> lists(static_cast<std::size_t>(options_.lists));
        for (std::size_t i = 0; i < options_.members; ++i)
            lists[static_cast<std::size_t>(list_of(i, options_.lists))].push_back(static_cast<Number>(i + 1));
        for (auto& list : lists)
            shuffle(list);
        return lists;
    }

    void add_joints()
    {
        model_.nodes.reserve(options_.members);
        for (std::size_t i = 0; i < options_.members; ++i) {
            SdNode joint;
            joint.id = static_cast<int>(i + 1);
            joint.x = 8125.0 * static_cast<double>(i / 100 % 100);
            joint.y = 7250.0 * static_cast<double>(i % 100);
            joint.z = 3300.0 * static_cast<double>(i / 10'000);
            model_.nodes.push_back(std::move(joint));
        }
    }

    void add_members()
    {
        model_.beams.reserve(options_.members);
        for (std::size_t i = 0; i < options_.members; ++i) {
            SdBeam member;
            const int list = list_of(i, options_.lists);
            member.id = static_cast<int>(i + 1);
            member.node_start = member.id;
            member.node_end = i + 1 < options_.members ? member.id + 1 : 1;
            member.kind_code = list_of(i, 10) == 0 ? Brace : Beam;
            member.beta = 0.5 * (list + 1);
            member.material = list_of(i, materials) == 0 ? "STEEL" : "CONCRETE";
            member.sect_country = "AMERICAN";
            member.sect_text = "TABLE ST W" + std::to_string(list);
            member.sect_name = member.sect_text;
            model_.beams.push_back(std::move(member));
        }
    }

    void add_groups()
    {
        for (const char* kind : {"MEMBER", "JOINT"}) {
            for (auto& numbers : dealt_numbers<int>())
                model_.groups.push_back({kind, "_G" + std::to_string(model_.groups.size()), std::move(numbers)});
        }
    }

    void add_restraints(std::map<std::string, std::vector<unsigned>>& restraints, const std::string& kind)
    {
        for (auto& numbers : dealt_numbers<unsigned>())
            restraints[kind + 'K' + std::to_string(restraints.size())] = std::move(numbers);
    }

    void add_loads()
    {
        for (int c = 0; c < options_.load_cases; ++c)
            add_load_case(c + 1);
        for (std::size_t i = 0; i < options_.members; ++i) {
            std::vector<int>& loads = model_.beams[i].int_list;
            loads.reserve(static_cast<std::size_t>(options_.load_cases));
            for (int c = 0; c < options_.load_cases; ++c)
                loads.push_back(1 + options_.definitions_per_case * c + list_of(i, options_.definitions_per_case));
            shuffle(loads);
        }
    }

    void add_load_case(int number)
    {
        LoadCase load_case;
        load_case.id = number;
        load_case.type_text = number % 2 == 0 ? "Live" : "Dead";
        model_.load_cases.emplace(number, std::move(load_case));
        for (int i = 0; i < options_.definitions_per_case; ++i) {
            const LoadDefination load{"MEMBER LOAD UNI", "GZ", {-0.001 * (i + 1), 0.25 * number}, number};
            model_.load_defs.emplace(static_cast<int>(model_.load_defs.size()) + 1, load);
        }
    }

    const host_options& options_;
    SdReader model_;
    std::mt19937 random_{20260401};
};

} // namespace

SdReader make_host_model(const host_options& options)
{
    return host_model(options).make();
}

} // namespace STAAD::bench
