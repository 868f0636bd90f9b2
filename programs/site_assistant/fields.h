#pragma once

#include "forms/form.h"
#include "settings/changes.h"

#include <span>

namespace ornavel::programs {

/// A control of the wizard, and the setting that it shows.
struct Field {
    TextView control;
    const settings::Key& key;
    bool is_HTML = false; ///< its value is poured into messages as it stands
};

/// All of them, in the order of the pages.
std::span<const Field> setup_fields();

/// What a field began with.
struct Beginning {
    Text stored; ///< the setting's value
    Text shown;  ///< what the control said of it, or what it proposed
};

/// The stored value, or what the setting counts as without one.
Text stored_value(const settings::Store& store, const settings::Key& key);

/// Makes the control show a value of its setting.
void show_value(forms::Form& form, const Field& field, TextView value);
/// What the control says, as a value of its setting.
Text shown_value(forms::Form& form, const Field& field);

/// The settings that the user changes, proposals included: texts with their ends trimmed, and the name of a
/// vCard with its file. The French texts count only while they are wanted. What another program has written
/// since the beginning stays, unless the user touched its field.
std::vector<settings::Change> changes_in(forms::Form& form, const settings::Store& store,
                                         std::span<const Beginning> beginnings);

/// The modes that the user can choose, as the form names them.
void list_modes(forms::Control& list, TextView mode_now);

} // namespace ornavel::programs
