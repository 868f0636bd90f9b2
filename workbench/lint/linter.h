#pragma once

#include "workbench/lint/sheet.h"

namespace ornavel::workbench {

/// A role that the settings' folders, the option --as or the file's own text gives it; guessed is the last.
struct Assigned {
    Role role;
    bool guessed = false;
};

/// What the file is to Ornavel.
Assigned role_of(const Ground& ground, TextView path, TextView text, std::optional<Role> told);

/// Whether the bytes are no text at all.
bool is_binary(std::string_view bytes);

/// Checks one file by every rule that its role asks for, but those that a comment of its own silences.
std::vector<Finding> lint_file(const Ground& ground, TextView path, const std::string& bytes, Role role);

/// Checks the settings themselves; there is a file.
std::vector<Finding> lint_settings(const Ground& ground);

} // namespace ornavel::workbench
