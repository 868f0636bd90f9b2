#pragma once

#include "base/text.h"

#include <optional>

namespace ornavel {

/// The byte-order mark that a UTF-8 file may begin with.
inline constexpr std::string_view utf8_mark = "\xEF\xBB\xBF";

/// A lone surrogate becomes U+FFFD; ill-formed bytes become U+FFFD, one for each.
std::string to_utf8(TextView text);
Text from_utf8(std::string_view bytes);
bool is_utf8(std::string_view bytes);

/// An eight-bit code page: the one that Windows calls ANSI.
class CodePage {
public:
    virtual ~CodePage() = default;
    virtual Text decode(std::string_view bytes) const = 0;
    /// Nothing when the text holds a unit that the code page lacks.
    virtual std::optional<std::string> encode(TextView text) const = 0;
};

/// The western code page, for machines without an ANSI code page of their own.
const CodePage& windows_1252();

/// The text of a file: a byte-order mark decides (UTF-8, UTF-16 LE or BE) and is not part of the text;
/// otherwise bytes that are valid UTF-8 are UTF-8; otherwise they are in the ANSI code page.
Text decode(std::string_view bytes, const CodePage& ansi);

/// The bytes of an HTML file: ASCII as it stands, anything else as UTF-8 with a byte-order mark.
std::string encode_html(TextView text);

} // namespace ornavel
