#pragma once

#include "settings/catalogue.h"

namespace ornavel::compose {

/// One replacement of a merge. The replacement is a fixed text followed by a setting's value, either of which
/// may be missing. Where a setting gives the search text, it stands for the fixed one.
struct MergeRow {
    TextView search;
    TextView replacement = {};
    const settings::Key* value = nullptr;
    TextView fallback = {}; ///< the value's default here
    const settings::Key* search_value = nullptr;
};

enum class When { always, empty, filled, on, off };

/// Rows that take part only when the value of a setting is as said.
struct MergeBlock {
    When when;
    const settings::Key* setting;
    std::span<const MergeRow> rows;
};

/// The body merge in its order, in the groups that fail alone.
std::span<const MergeBlock> user_codes();
std::span<const MergeBlock> signature_fields();
std::span<const MergeBlock> converted_breaks();
std::span<const MergeBlock> background_colour();

/// The signature-file merge in its order; the user codes follow it.
std::span<const MergeBlock> signature_file_fields();

/// A row that puts a setting's value in; for the tables.
constexpr MergeRow value(TextView search, const settings::Key& key) {
    return {search, {}, &key, key.default_value};
}

} // namespace ornavel::compose
