#include "settings/reg_file.h"

namespace ornavel::settings {
namespace {

Text escaped(TextView text) {
    Text result;
    for (const char16_t unit : text) {
        if (unit == u'\\' || unit == u'"') result += u'\\';
        result += unit;
    }
    return result;
}

std::string utf16_le(TextView text) {
    std::string bytes;
    bytes.reserve(2 * text.size());
    for (const char16_t unit : text) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

/// The bytes with the NUL that ends them, as "25,41,00".
Text hexadecimal(std::string_view bytes) {
    constexpr TextView digits = u"0123456789abcdef";
    Text result;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        if (!result.empty()) result += u',';
        result += digits[value >> 4];
        result += digits[value & 0xF];
    }
    return result;
}

/// Nothing where the code page lacks a unit of the text.
std::optional<Text> expand_data(TextView text, const CodePage* ansi) {
    const Text ended = Text(text) + u'\0';
    if (!ansi) return hexadecimal(utf16_le(ended));
    const auto bytes = ansi->encode(ended);
    if (!bytes) return {};
    return hexadecimal(*bytes);
}

std::optional<Text> line_of(const RegValue& value, const CodePage* ansi) {
    const Text name = value.name.empty() ? u"@=" : u"\"" + escaped(value.name) + u"\"=";
    if (value.kind == RegValue::Kind::removed) return name + u"-\r\n";
    if (value.kind == RegValue::Kind::text) return name + u"\"" + escaped(value.value) + u"\"\r\n";
    if (value.kind == RegValue::Kind::other) return Text();
    const auto data = expand_data(value.value, ansi);
    if (!data) return {};
    return name + u"hex(2):" + *data + u"\r\n";
}

/// Everything behind the first line; in version 5.00 without a code page.
std::optional<Text> lines_of_keys(const std::vector<RegKey>& keys, const CodePage* ansi) {
    Text lines;
    for (const RegKey& key : keys) {
        lines.append(u"\r\n[").append(key.removed ? u"-" : u"").append(key.path).append(u"]\r\n");
        for (const RegValue& value : key.values) {
            const auto line = line_of(value, ansi);
            if (!line) return {};
            lines.append(*line);
        }
    }
    return lines;
}

} // namespace

std::string write_reg_file(const std::vector<RegKey>& keys, const CodePage& ansi) {
    if (const auto lines = lines_of_keys(keys, &ansi))
        if (const auto bytes = ansi.encode(u"REGEDIT4\r\n" + *lines)) return *bytes;
    return "\xFF\xFE" + utf16_le(u"Windows Registry Editor Version 5.00\r\n" + *lines_of_keys(keys, nullptr));
}

} // namespace ornavel::settings
