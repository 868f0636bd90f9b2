#pragma once

#include "base/text.h"

#include <optional>

namespace ornavel::forms {

/// The numbers of the texts that users see.
namespace text_ids {
enum TextId : int {
#define TEXT_ROW(id, name, text) name = id,
#include "forms/string_table.inc"
#undef TEXT_ROW
};
} // namespace text_ids

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
