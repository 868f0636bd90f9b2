#pragma once

#include "programs/options_assistant/draft.h"
#include "settings/reg_file.h"

namespace ornavel::programs {

/// What a registry file would do to the settings, and what of it is left out.
struct Import {
    std::vector<settings::Change> changes;
    /// For the user: one line for each change, and one for each key or value that is not imported.
    std::vector<Text> lines;
};

/// Only keys in the add-in's own area and settings that the catalogue knows are imported.
Import import_of(const settings::RegFile& file, const Draft& draft);

enum class Exported { all, differing, preset };

/// The settings that are set, by their sections: all of them, those that differ from their default, or what
/// others may be given: nobody's own signature, and nothing that the add-in remembers for itself.
std::vector<settings::RegKey> exported(const Draft& draft, Exported which);

} // namespace ornavel::programs
