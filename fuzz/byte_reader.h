/// Values made of the bytes of an input, for targets whose input is not a text.
#ifndef FUZZ_BYTE_READER_H
#define FUZZ_BYTE_READER_H

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

/// Takes values from the front; zeros once the bytes are used up.
class byte_reader {
public:
    explicit byte_reader(std::string_view bytes) noexcept : rest_(bytes) {}

    bool empty() const noexcept { return rest_.empty(); }

    unsigned char take_byte() noexcept
    {
        if (rest_.empty())
            return 0;
        const auto byte = static_cast<unsigned char>(rest_.front());
        rest_.remove_prefix(1);
        return byte;
    }

    bool take_flag() noexcept { return take_byte() % 2 != 0; }

    /// -128 to 127.
    int take_small() noexcept { return static_cast<signed char>(take_byte()); }

    /// Any bits; zeros after the end.
    template<class Value>
    Value take_bits() noexcept
    {
        char bytes[sizeof(Value)] = {};
        rest_.remove_prefix(rest_.copy(bytes, sizeof bytes));
        Value value;
        std::memcpy(&value, bytes, sizeof value);
        return value;
    }

    /// Mostly a small number, sometimes any number.
    int take_int() noexcept { return take_byte() % 8 == 0 ? take_bits<int>() : take_small(); }
    double take_real() noexcept { return take_byte() % 8 == 0 ? take_bits<double>() : take_small() / 16.0; }

    /// Up to 15 characters, none of them a control character.
    std::string take_text()
    {
        std::string text;
        for (int length = take_byte() % 16; length > 0; --length) {
            const unsigned char byte = take_byte();
            if (byte >= ' ' && byte != 0x7F)
                text.push_back(static_cast<char>(byte));
        }
        return text;
    }

    /// Up to 7 numbers.
    std::vector<double> take_reals()
    {
        std::vector<double> numbers(take_byte() % 8U);
        for (double& number : numbers)
            number = take_real();
        return numbers;
    }

private:
    std::string_view rest_;
};

} // namespace fuzz

#endif
