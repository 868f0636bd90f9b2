#include "base/encoding.h"

#include <algorithm>
#include <array>

namespace ornavel {
namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr std::string_view utf16_le_mark = "\xFF\xFE";
constexpr std::string_view utf16_be_mark = "\xFE\xFF";

constexpr bool is_high(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool is_low(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

/// One code point from the front of the text; a lone surrogate is U+FFFD.
char32_t take_code_point(TextView& text) {
    const char32_t first = text.front();
    text.remove_prefix(1);
    if (!is_high(first)) return is_low(first) ? replacement : first;
    if (text.empty() || !is_low(text.front())) return replacement;
    const char32_t second = text.front();
    text.remove_prefix(1);
    return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
}

void append_utf8(std::string& bytes, char32_t point) {
    const auto tail = [&](int shift) { bytes += static_cast<char>(0x80 | ((point >> shift) & 0x3F)); };
    if (point < 0x80) {
        bytes += static_cast<char>(point);
    } else if (point < 0x800) {
        bytes += static_cast<char>(0xC0 | (point >> 6));
        tail(0);
    } else if (point < 0x10000) {
        bytes += static_cast<char>(0xE0 | (point >> 12));
        tail(6);
        tail(0);
    } else {
        bytes += static_cast<char>(0xF0 | (point >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

void append_utf16(Text& text, char32_t point) {
    if (point < 0x10000) {
        text += static_cast<char16_t>(point);
        return;
    }
    text += static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10));
    text += static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FF));
}

/// The length that a lead byte announces, or 0 for a byte that cannot lead.
int sequence_length(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead < 0xE0) return 2;
    if (lead >= 0xE0 && lead < 0xF0) return 3;
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

/// One well-formed code point from the front of the bytes, or nothing (and the bytes stay).
std::optional<char32_t> take_well_formed(std::string_view& bytes) {
    const auto lead = static_cast<unsigned char>(bytes.front());
    const int length = sequence_length(lead);
    if (length == 0 || bytes.size() < static_cast<std::size_t>(length)) return {};
    char32_t point = length == 1 ? lead : lead & (0x7FU >> length);
    for (int i = 1; i < length; ++i) {
        const auto tail = static_cast<unsigned char>(bytes[static_cast<std::size_t>(i)]);
        if ((tail & 0xC0) != 0x80) return {};
        point = (point << 6) | (tail & 0x3F);
    }
    constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
    if (point < smallest[static_cast<std::size_t>(length)] || point > 0x10FFFF) return {};
    if (is_high(point) || is_low(point)) return {};
    bytes.remove_prefix(static_cast<std::size_t>(length));
    return point;
}

Text from_utf16(std::string_view bytes, bool big_endian) {
    Text text;
    text.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        text += static_cast<char16_t>(big_endian ? first << 8 | second : second << 8 | first);
    }
    return text;
}

class Windows1252 final : public CodePage {
public:
    Text decode(std::string_view bytes) const override {
        Text text;
        text.reserve(bytes.size());
        for (const char byte : bytes) text += unit(static_cast<unsigned char>(byte));
        return text;
    }

    std::optional<std::string> encode(TextView text) const override {
        std::string bytes;
        bytes.reserve(text.size());
        for (const char16_t wanted : text) {
            const auto byte = byte_of(wanted);
            if (!byte) return {};
            bytes += static_cast<char>(*byte);
        }
        return bytes;
    }

private:
    // 0x80 to 0x9F; the five bytes that the page leaves open stand for the control of the same number.
    static constexpr std::array<char16_t, 32> special{
        0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

    static char16_t unit(unsigned char byte) {
        return byte >= 0x80 && byte < 0xA0 ? special[byte - 0x80U] : static_cast<char16_t>(byte);
    }

    static std::optional<unsigned char> byte_of(char16_t wanted) {
        if (wanted < 0x80 || (wanted >= 0xA0 && wanted < 0x100)) return static_cast<unsigned char>(wanted);
        const auto found = std::ranges::find(special, wanted);
        if (found == special.end()) return {};
        return static_cast<unsigned char>(0x80 + (found - special.begin()));
    }
};

bool is_ascii(TextView text) {
    return std::ranges::all_of(text, [](char16_t unit) { return unit < 0x80; });
}

} // namespace

std::string to_utf8(TextView text) {
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) append_utf8(bytes, take_code_point(text));
    return bytes;
}

Text from_utf8(std::string_view bytes) {
    Text text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const auto point = take_well_formed(bytes);
        if (!point) bytes.remove_prefix(1);
        append_utf16(text, point.value_or(replacement));
    }
    return text;
}

bool is_utf8(std::string_view bytes) {
    while (!bytes.empty())
        if (!take_well_formed(bytes)) return false;
    return true;
}

const CodePage& windows_1252() {
    static const Windows1252 page;
    return page;
}

Text decode(std::string_view bytes, const CodePage& ansi) {
    if (bytes.starts_with(utf8_mark)) return from_utf8(bytes.substr(utf8_mark.size()));
    if (bytes.starts_with(utf16_le_mark)) return from_utf16(bytes.substr(2), false);
    if (bytes.starts_with(utf16_be_mark)) return from_utf16(bytes.substr(2), true);
    return is_utf8(bytes) ? from_utf8(bytes) : ansi.decode(bytes);
}

std::string encode_html(TextView text) {
    return is_ascii(text) ? to_utf8(text) : std::string(utf8_mark) + to_utf8(text);
}

} // namespace ornavel
