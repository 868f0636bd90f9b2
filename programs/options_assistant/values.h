#pragma once

#include "settings/descriptions.h"

#include <optional>

namespace ornavel::programs {

/// What the user edits a setting with.
enum class Editor { box, list, check_box, path };
Editor editor_of(const settings::Description& setting);

/// A ticked check box, and one that is not, as this setting has them.
Text tick_of(const settings::Description& setting, bool ticked);

/// Why a setting can't have this value, as in "it is no number"; nothing where it can.
std::optional<Text> objection(const settings::Description& setting, TextView value);

/// Whether the path is that of a folder, as far as the meaning says.
bool is_folder(const settings::Description& setting);

/// Whether a path holds variables, such as %APPDATA%.
bool holds_variables(const settings::Description& setting, TextView value);

} // namespace ornavel::programs
