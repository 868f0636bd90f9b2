#pragma once

#include "settings/reg_file.h"
#include "settings/store.h"

namespace ornavel::programs {

enum class Exported { all, differing, preset };

/// The settings that are stored, by their sections: all of them, those that differ from their default, or
/// what others may be given: nothing that is about one person, and nothing that the add-in remembers for
/// itself.
std::vector<settings::RegKey> exported(const settings::Store& store, Exported which);

} // namespace ornavel::programs
