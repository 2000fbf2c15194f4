/// Everything that is written is composed here, and goes to a file or is kept as a text.
#ifndef STAAD_TEXT_TEXT_OUTPUT_H
#define STAAD_TEXT_TEXT_OUTPUT_H

#include "staad/text/number_text.h"

#include <concepts>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace STAAD::detail {

/// Text under construction. Parts are texts, characters, whole numbers and `real`, `fixed` and
/// `six_places` numbers.
class text_output {
public:
    /// Keeps all of the text; see take().
    text_output() = default;
    /// Hands the text over to `sink.write(text)` a block at a time, the rest on destruction. A write that fails
    /// must not throw: the sink keeps the error.
    template<class Sink>
    requires requires(Sink& sink, std::string_view text)
    {
        {
            sink.write(text)
        }
        noexcept;
    }
    explicit text_output(Sink& sink) : write_block_([&sink](std::string_view text) { sink.write(text); }) {}
    ~text_output() { hand_over(); }
    text_output(const text_output&) = delete;
    text_output& operator=(const text_output&) = delete;

    template<class... Parts>
    void put(const Parts&... parts)
    {
        (add(parts), ...);
        if (text_.size() >= block_size)
            end_block();
    }

    /// The parts as one line.
    template<class... Parts>
    void line(const Parts&... parts)
    {
        put(parts..., '\n');
    }

    /// The text kept.
    std::string take();

private:
    static constexpr std::size_t block_size = std::size_t{1} << 20U;

    void add(std::string_view part) { text_ += part; }
    void add(char part) { text_ += part; }
    template<class Number>
    requires(!std::convertible_to<const Number&, std::string_view>) void add(const Number& part)
    {
        append(text_, part);
    }

    void end_block();
    void hand_over() noexcept;

    std::function<void(std::string_view)> write_block_; // empty: the text is kept
    std::vector<std::string> blocks_; // kept so far; a single string would be copied whenever it grows
    std::string text_;
};

} // namespace STAAD::detail

#endif
