#pragma once

#include "settings/reg_file.h"
#include "settings/store.h"

namespace ornavel::settings {

/// The key below which all sections stand, with its root.
inline constexpr TextView registry_area =
    u"HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings\\Ornavel";

/// One setting of a registry file, and where it stands there.
struct FileSetting {
    Text section, name, value;
    bool expands = false; ///< its value may hold variables such as %APPDATA%
    Place at;
};

/// What stands below the area once the file is imported into an empty registry, in the file's order. Values
/// that are no texts read as absent, and so do texts with variables in settings that are no paths.
std::vector<FileSetting> settings_of(const RegFile& file);

/// The section that a registry key is, empty for the area itself; nothing for a key elsewhere.
std::optional<Text> section_of(const Text& key);

/// The catalogue's key with that section and name; nothing where there is none.
const Key* find_key(TextView section, TextView name);

} // namespace ornavel::settings
