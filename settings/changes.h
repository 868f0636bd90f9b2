#pragma once

#include "settings/store.h"

#include <vector>

namespace ornavel::settings {

/// A setting that is to have another value, or none any more.
struct Change {
    const Key& key;
    std::optional<Text> value;
    bool has_variables = false; ///< the value is a path with such as %APPDATA% in it
};

/// What came of changes that could not all be written.
struct Unwritten {
    const Key* refused;              ///< the one that can't be written
    std::vector<const Key*> changed; ///< written before it, and could not be taken back
};

/// Writes all of them or none: where one can't be written, those before it get their values back. Nothing
/// when all are written.
std::optional<Unwritten> write_changes(Store& store, const std::vector<Change>& changes) noexcept;

} // namespace ornavel::settings
