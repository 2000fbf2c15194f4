#include "output/json_writer.h"

#include "cli/text_encoding.h"

#include <charconv>
#include <cmath>

namespace tool {
namespace {

template<class Number>
void put_number(std_output& out, Number number)
{
    char digits[32]; // the shortest form of a double takes at most 24
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, number);
    out.put(std::string_view(digits, static_cast<std::size_t>(end.ptr - digits)));
}

bool needs_escape(char c) noexcept
{
    return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\' || c == '\x7F';
}

void put_escape(std_output& out, char c)
{
    constexpr char digits[] = "0123456789abcdef";
    const unsigned byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
        out.put('\\');
        out.put(c);
    } else {
        out.put("\\u00");
        out.put(digits[byte >> 4U]);
        out.put(digits[byte & 0xFU]);
    }
}

} // namespace

void json_writer::value(bool flag)
{
    out_.put(flag ? "true" : "false");
}

void json_writer::value(int number)
{
    put_number(out_, number);
}

void json_writer::value(unsigned number)
{
    put_number(out_, number);
}

void json_writer::value(unsigned long number)
{
    put_number(out_, number);
}

void json_writer::value(unsigned long long number)
{
    put_number(out_, number);
}

void json_writer::value(double number)
{
    if (std::isnan(number))
        out_.put("\"NaN\"");
    else if (std::isinf(number))
        out_.put(number > 0 ? "\"Infinity\"" : "\"-Infinity\"");
    else if (number == 0.0 && std::signbit(number))
        out_.put("-0.0"); // without the point it would read back as the whole number 0, without a sign
    else
        put_number(out_, number);
}

void json_writer::value(const std::string& text)
{
    quoted(text);
}

void json_writer::value(const STAAD::SdOffset& offset)
{
    value(std::array<double, 3>{offset.x, offset.y, offset.z});
}

void json_writer::open(char bracket, bool on_lines)
{
    out_.put(bracket);
    nestings_[level_++] = {on_lines, false};
}

void json_writer::next()
{
    nesting& current = nestings_[level_ - 1];
    if (current.has_items)
        out_.put(current.on_lines ? "," : ", ");
    if (current.on_lines)
        new_line();
    current.has_items = true;
}

void json_writer::close(char bracket)
{
    const nesting closed = nestings_[--level_];
    if (closed.on_lines && closed.has_items)
        new_line();
    out_.put(bracket);
}

void json_writer::new_line()
{
    out_.put('\n');
    for (std::size_t i = 0; i < level_; ++i)
        out_.put("  ");
}

void json_writer::key(int number, used_keys& /*used*/)
{
    out_.put('"');
    put_number(out_, number);
    out_.put("\": ");
}

void json_writer::key(std::string_view name)
{
    quoted(name);
    out_.put(": ");
}

// Different bytes may be the same text when decoded, but keys of an object must differ: the later one is
// written byte by byte.
void json_writer::key(const std::string& text, used_keys& used)
{
    if (is_ascii(text) || used.insert(utf8_text(text)).second)
        return key(text);
    std::string bytes = text;
    while (!used.insert(STAAD::utf8_from_latin1(bytes)).second)
        bytes = STAAD::utf8_from_latin1(bytes);
    quoted_bytes(bytes);
    out_.put(": ");
}

void json_writer::quoted(std::string_view text)
{
    if (is_utf8(text))
        quoted_utf8(text);
    else if (const auto decoded = utf8_from_gbk(text))
        quoted_utf8(*decoded);
    else
        quoted_bytes(text);
}

void json_writer::quoted_utf8(std::string_view text)
{
    out_.put('"');
    while (!text.empty()) {
        std::size_t plain = 0;
        while (plain < text.size() && !needs_escape(text[plain]))
            ++plain;
        out_.put(text.substr(0, plain));
        if (plain < text.size())
            put_escape(out_, text[plain++]);
        text.remove_prefix(plain);
    }
    out_.put('"');
}

void json_writer::quoted_bytes(std::string_view text)
{
    out_.put('"');
    for (const char c : text) {
        if (needs_escape(c) || static_cast<unsigned char>(c) >= 0x80)
            put_escape(out_, c);
        else
            out_.put(c);
    }
    out_.put('"');
}

} // namespace tool
