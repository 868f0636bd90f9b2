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

/// Writes all of them or none: where one can't be written, those before it get their values back, and its key
/// is given back; null when all are written.
const Key* write_changes(Store& store, const std::vector<Change>& changes) noexcept;

} // namespace ornavel::settings
