/// Models read, written and read again, against what the rules of both make of them.

#include "staad/model/sd_reader.h"
#include "staad/writer/normalised_text.h"
#include "tests/support/example_files.h"
#include "tests/support/model_equal.h"
#include "tests/support/random_deck.h"
#include "tests/support/read_back.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace STAAD {
namespace {

SdReader read(const std::string& text)
{
    SdReader model;
    EXPECT_TRUE(model.ReadSDDataFromText(text));
    return model;
}

SdReader written_and_read(const SdReader& model)
{
    return read(normalised_text(model));
}

/// The braces of the file as a host declares them for writing.
SdReader with_kinds(SdReader model)
{
    for (SdBeam& member : model.beams)
        member.kind_code = model.GetBeamType(member);
    return model;
}

std::string listed(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += "  " + line + '\n';
    return text;
}

/// Empty: the model comes back as predicted.
std::string surprises(const SdReader& model)
{
    return listed(model_differences(written_and_read(model), read_back(model)));
}

TEST(ReadWriteRead, ExamplesComeBackAsPredicted)
{
    for (const char* const name : {"concrete-frame", "imperial-frame", "steel-portal"}) {
        const SdReader model = read(examples::content(std::string(name) + ".std"));
        EXPECT_EQ(surprises(model), "") << name;
        EXPECT_EQ(surprises(with_kinds(model)), "") << name << ", braces declared";
    }
}

TEST(ReadWriteRead, RandomDecksComeBackAsPredicted)
{
    for (std::uint64_t seed = 1; seed <= 1500; ++seed) {
        const int members = seed % 20 == 0 ? 250 : 1 + static_cast<int>(seed % 37);
        const decks::random_deck deck = decks::make_random_deck(seed, members);
        const SdReader model = seed % 3 == 0 ? with_kinds(deck.model) : deck.model;
        const std::string found = surprises(model);
        ASSERT_EQ(found, "") << "make_random_deck(" << seed << ", " << members << "), read again and predicted";
        if (seed % 10 == 0) {
            ASSERT_EQ(SdReader(model).WriteDataToText(), normalised_text(model)) << seed;
        }
    }
}

TEST(ReadWriteRead, AThirdTextOnlyDiffersWhereTheSecondModelDoes)
{
    SdReader first = read(examples::content("imperial-frame.std"));
    const std::string text = first.WriteDataToText();
    SdReader second = read(text);
    second.load_defs.clear(); // their values and directions change with every reading
    first.load_defs.clear();
    second.concrete_density = first.concrete_density;
    EXPECT_EQ(second.WriteDataToText(), first.WriteDataToText());
}

} // namespace
} // namespace STAAD
