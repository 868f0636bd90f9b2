#pragma once

#include "base/encoding.h"
#include "base/file_error.h"

#include <vector>

// Registry files: what they say, and how they are read and written.

namespace ornavel::settings {

/// One named value of a registry file. Only a text or a text with variables has its value here; an unnamed
/// value has an empty name.
struct RegValue {
    enum class Kind { text, expand_text, other, removed };
    Text name;
    Kind kind = Kind::text;
    Text value{};
    Place at{};
};

/// A key with the values that follow it; a removed one goes with all that it holds.
struct RegKey {
    Text path;
    bool removed = false;
    std::vector<RegValue> values{};
    Place at{};
};

/// A line that a registry editor passes over, and why.
struct RegComplaint {
    Text description;
    Place at;
};

struct RegFile {
    std::vector<RegKey> keys;
    std::vector<RegComplaint> complaints;
};

/// Reads a file as the registry editor does: REGEDIT4 in the ANSI code page, or version 5.00, in UTF-16 of
/// either byte order or in the ANSI code page. Throws FileError for a file that the editor refuses.
RegFile read_reg_file(std::string_view bytes, const CodePage& ansi);

/// The bytes of a file with these keys: REGEDIT4 where the code page holds every text, else version 5.00 in
/// UTF-16 with a mark. Lines end in CR LF. Values of other kinds are left out.
std::string write_reg_file(const std::vector<RegKey>& keys, const CodePage& ansi);

} // namespace ornavel::settings
