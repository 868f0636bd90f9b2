#pragma once

#include "base/text.h"

#include <span>

namespace ornavel::workbench {

enum class Severity { hint, warning, error };

/// What a file is to Ornavel.
enum class Role { letterhead, signature, boilerplate, settings };

/// A file that a rule is about, as bytes, and the settings that go with it: lines of a registry file, in
/// which
/// "[Admin Settings]" stands for the whole key.
struct Example {
    std::string_view page;
    std::string_view settings = {};
};

struct Rule {
    std::string_view name;
    Severity severity;
    TextView finds; ///< what it looks for, as the end of "finds …"
    Role role;      ///< of its examples' page
    Example bad, good;
};

/// Every rule, in the order in which they are listed.
std::span<const Rule> rules();

/// "hint", "warning" or "error"
std::string_view name_of(Severity severity);

/// The whole registry file of an example's settings.
std::string registry_file(std::string_view settings);

} // namespace ornavel::workbench
