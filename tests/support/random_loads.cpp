#include "tests/support/random_loads.h"

#include <algorithm>
#include <cstddef>

namespace STAAD::decks {
namespace {

std::string lower(std::string text)
{
    for (char& c : text)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return text;
}

/// The file's axes are turned: X is the model's Y, Y its Z, Z its X.
std::string turned(std::string direction)
{
    char& axis = direction.back();
    axis = axis == 'X' ? 'Y' : axis == 'Y' ? 'Z' : axis == 'Z' ? 'X' : axis;
    return direction;
}

/// Number `index` of a member load, in the order of operations that the factors are applied in.
double in_model_units(const std::string& type, int index, double value, const unit_line& units)
{
    const double force = value * units.force_factor;
    if (type == "LIN" || (type == "TRAP" && index < 2) || (type == "UNI" && index == 0))
        return force / units.length_factor;
    if (index > 0)
        return value * units.length_factor;
    return type == "CMOM" ? force * units.length_factor : force;
}

/// Intensities that a line does not give are 0; so many there are at least.
std::size_t least_values(const std::string& type)
{
    if (type == "LIN" || type == "PRESSURE")
        return 0;
    return type == "TRAP" ? 2 : 1;
}

written_load random_member_load(chance& random, const unit_line& units)
{
    const std::string type = random.any_of({"UNI", "UMOM", "CON", "CMOM", "LIN", "TRAP", "PRESSURE"});
    const std::string direction = random.any_of({"GY", "GX", "GZ", "X", "Y", "Z", "PY", "XG", "GG"});
    const bool names_axis = direction.find_first_of("XYZ") != std::string::npos;
    const bool is_lower = random.one_in(10);
    written_load load;
    load.words = {is_lower ? lower(type) : type, is_lower ? lower(direction) : direction};
    load.kind = "MEMBER LOAD " + type;
    load.direction = names_axis ? turned(direction) : "Z";
    const int count = random.between(0, 5);
    for (int index = 0; index < count; ++index) {
        const decimal value = random_decimal(random, -30, 30);
        load.words.push_back(value.spelled(random));
        if (type != "PRESSURE") // no form of load: its numbers are not read
            load.values.push_back(in_model_units(type, index, value.value(), units));
    }
    load.values.resize(std::max(load.values.size(), least_values(type)));
    return load;
}

written_load random_joint_load(chance& random, const unit_line& units)
{
    written_load load{{}, "JOINT LOAD", "Z", std::vector<double>(6)};
    const std::vector<std::string> names{"FZ", "FX", "FY", "MZ", "MX", "MY"}; // by the model's axes
    const double moment_factor = units.force_factor * units.length_factor;
    for (int count = random.between(1, 4); count > 0; --count) {
        const auto slot = static_cast<std::size_t>(random.between(0, 5));
        const decimal value = random_decimal(random, -90, 90);
        load.words.push_back(random.one_in(10) ? lower(names[slot]) : names[slot]);
        load.words.push_back(value.spelled(random));
        load.values[slot] = value.value() * (slot < 3 ? units.force_factor : moment_factor);
    }
    if (random.one_in(6)) {
        const auto slot = static_cast<std::size_t>(random.between(0, 5));
        load.words.push_back(names[slot]); // a keyword without a number
        load.values[slot] = 0.0;
    }
    return load;
}

/// What a list means that no word follows.
written_load bare_load(const std::string& block)
{
    if (block == "MEMBER LOAD")
        return {{}, block, "Z", {}};
    if (block == "JOINT LOAD" || block == "JOINT LOAD ")
        return {{}, "JOINT LOAD", "Z", std::vector<double>(6)};
    if (block == "AREA LOAD")
        return {{}, block, "Z", {0.0}};
    if (block == "FLOOR LOAD")
        return {{}, block, "Z", {}};
    return {};
}

} // namespace

written_load random_load(chance& random, const std::string& block, const unit_line& units)
{
    if (!block.empty() && random.one_in(15))
        return bare_load(block);
    if (block == "MEMBER LOAD")
        return random_member_load(random, units);
    if (block == "JOINT LOAD" || block == "JOINT LOAD ")
        return random_joint_load(random, units);
    const decimal value = random_decimal(random, -20, 20);
    if (block == "AREA LOAD") {
        const double pressure = value.value() * units.force_factor / units.length_factor / units.length_factor;
        return {{"ALOAD", value.spelled(random)}, "AREA LOAD ALOAD", "Z", {pressure}};
    }
    if (block == "FLOOR LOAD")
        return {{"FLOAD", value.spelled(random)}, block, "Z", {}};
    return {{"PR", "GY", value.spelled(random)}, "", "", {}}; // not understood
}

written_load plain_load(chance& random, const std::string& block)
{
    const unit_line metres{"UNIT METER KN", 1000.0};
    const auto with_numbers = [&](written_load load, std::size_t count) {
        while (load.values.size() < count) {
            const decimal value = random_decimal(random, -30, 30);
            load.words.push_back(value.spelled(random));
            load.values.push_back(
                in_model_units(load.words[0], static_cast<int>(load.values.size()), value.value(), metres));
        }
        return load;
    };
    if (block == "MEMBER LOAD") {
        const std::string type = random.any_of({"UNI", "UMOM", "CON", "CMOM", "LIN", "TRAP"});
        const std::string direction = random.any_of({"GY", "GX", "GZ", "X", "Y", "Z", "PY"});
        const std::size_t fewest = type == "LIN" || type == "TRAP" ? 2 : 1;
        const std::size_t added = type == "LIN" ? 0 : static_cast<std::size_t>(random.between(0, 1)) * 2;
        return with_numbers({{type, direction}, "MEMBER LOAD " + type, turned(direction), {}}, fewest + added);
    }
    if (block == "JOINT LOAD") {
        written_load load{{}, "JOINT LOAD", "Z", std::vector<double>(6)};
        const std::vector<std::string> names{"FZ", "FX", "FY", "MZ", "MX", "MY"}; // by the model's axes
        for (std::size_t slot = 0; slot < 6; ++slot) {
            if (random.one_in(2) && (slot < 5 || !load.words.empty()))
                continue;
            const decimal value = random_decimal(random, 1, 90);
            load.words.insert(load.words.end(), {names[slot], value.spelled(random)});
            load.values[slot] = value.value() * (slot < 3 ? 1.0 : metres.length_factor);
        }
        return load;
    }
    const decimal value = random_decimal(random, -20, 20);
    if (block == "AREA LOAD")
        return {{"ALOAD", value.spelled(random)}, "AREA LOAD ALOAD", "Z", {value.value() / 1000.0 / 1000.0}};
    return {{"FLOAD", value.spelled(random)}, block, "Z", {}};
}

written_load random_selfweight(chance& random)
{
    const decimal factor = random_decimal(random, -2, 2);
    const std::string axis = random.any_of({"X", "Y", "Z", "ALL"});
    return {{"SELFWEIGHT", axis, factor.spelled(random)}, "SELFWEIGHT", turned(axis), {factor.value()}};
}

} // namespace STAAD::decks
