#pragma once

#include "base/text.h"

#include <optional>

namespace ornavel::forms {

/// The numbered texts that users see.
class StringTable {
public:
    virtual ~StringTable() = default;
    /// Nothing when the table holds no such number.
    virtual std::optional<Text> find(int id) const = 0;
};

/// The text with this number, or an empty text.
Text load_text(const StringTable& table, int id);

/// The table from the same rows that the add-in's resources are made of.
const StringTable& built_in_strings();

} // namespace ornavel::forms
