#pragma once

#include "base/file_error.h"

#include <optional>
#include <string_view>
#include <vector>

namespace ornavel {

/// One entry of a directory: attributes and their values in the file's order.
struct LdifEntry {
    std::size_t line = 0; ///< of its first line
    std::vector<std::pair<Text, Text>> attributes;
};

/// Reads the entries of a directory's file (RFC 2849) one by one: folded lines, comments, values in base64.
/// Options of an attribute, such as ";lang-en", are part of its name. A value that names a file or an address
/// is left out.
class LdifReader {
public:
    /// The bytes outlive the reader.
    explicit LdifReader(std::string_view bytes);

    /// The next entry; false behind the last. Throws FileError, with a column in bytes, for a line without a
    /// colon and for base64 that is none.
    bool next(LdifEntry& entry);

private:
    /// The next line with its folded parts; false behind the last.
    bool next_line(std::string& line);
    void take(const std::string& line, LdifEntry& entry) const;

    std::string_view bytes_;
    std::size_t at_ = 0, line_ = 0, line_begin_ = 0;
};

/// The bytes that base64 stands for; nothing where it is none.
std::optional<std::string> from_base64(std::string_view text);

} // namespace ornavel
