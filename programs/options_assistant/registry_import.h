#pragma once

#include "settings/changes.h"
#include "settings/reg_file.h"

namespace ornavel::programs {

/// What a registry file would do to the settings, and what of it is left out.
struct Import {
    std::vector<settings::Change> changes;
    /// For the user: a line for each key or value, and beyond the first hundred one for all.
    std::vector<Text> left_out;
};

/// Settings that the catalogue knows are imported from the add-in's own area, each with its last value in the
/// file, unless that is stored already or one that the setting can't have.
Import import_of(const settings::RegFile& file, const settings::Store& store);

/// For the user: a line for each setting that would change now, and what is left out.
std::vector<Text> lines_of(const Import& import, const settings::Store& store);

} // namespace ornavel::programs
