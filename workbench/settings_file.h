#pragma once

#include "base/files.h"
#include "settings/reg_settings.h"

namespace ornavel::workbench {

/// The settings of a registry file: what the add-in would read, and where each stands in the file.
struct SettingsFile {
    Text path;
    settings::MemoryStore store;
    std::vector<settings::FileSetting> settings;
    std::vector<settings::RegComplaint> complaints;

    /// Where the setting stands in the file; the first place of the file where it doesn't.
    Place place_of(const settings::Key& key) const;
};

/// Reads a registry file. Throws Failure, with the path in front, when it can't be read or is none.
settings::RegFile read_registry_file(const Files& files, TextView path);
SettingsFile load_settings(const Files& files, TextView path);

} // namespace ornavel::workbench
