#include "no_change/state.h"

#include <bit>
#include <cstdio>
#include <cstring>

namespace no_change {

void state::begin(std::string_view step)
{
    step_ = path_ = step;
    digest_ = {0x243F6A8885A308D3U, 0x13198A2E03707344U};
}

std::string state::end() const
{
    char text[40];
    std::snprintf(text, sizeof text, "=%016llx%016llx", static_cast<unsigned long long>(digest_[0]),
                  static_cast<unsigned long long>(digest_[1]));
    return step_ + text;
}

// Each half is a one-to-one function of what it was, and depends on the word in a way of its own.
void state::mix(std::uint64_t word)
{
    digest_[0] = (digest_[0] ^ word) * 0x9E3779B97F4A7C15U;
    digest_[0] ^= digest_[0] >> 29;
    digest_[1] = (std::rotl(digest_[1], 23) + word) * 0xC2B2AE3D27D4EB4FU;
    digest_[1] ^= digest_[1] >> 32;
}

void state::put_bytes(std::string_view bytes)
{
    mix(bytes.size());
    for (std::size_t at = 0; at < bytes.size(); at += sizeof(std::uint64_t)) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes.data() + at, std::min(bytes.size() - at, sizeof word));
        mix(word);
    }
    if (!shown_)
        return;
    std::string text = "\"";
    for (const char c : bytes) {
        char code[8];
        std::snprintf(code, sizeof code, c >= ' ' && c <= '~' ? "%c" : "\\x%02X", static_cast<unsigned char>(c));
        text += code;
        if (c == '\n')
            text += "\n    "; // texts of many lines stay legible
    }
    show(text + '"');
}

void state::put_number(double value)
{
    mix(std::bit_cast<std::uint64_t>(value));
    if (!shown_)
        return;
    char text[64];
    std::snprintf(text, sizeof text, "%.17g (%a)", value, value);
    show(text);
}

void state::show(const std::string& text) const
{
    std::printf("%s: %s\n", path_.c_str(), text.c_str());
}

} // namespace no_change
