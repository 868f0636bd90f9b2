#pragma once

#include "base/message_box.h"
#include "forms/form.h"

namespace ornavel::forms {

/// Everything that the add-in can show on the user's screen.
class Windows : public MessageBoxes {
public:
    /// Loads the form, shows it above everything else of the mail client, and returns when it is unloaded.
    /// Where there are no windows the form is loaded and closed by its frame at once.
    virtual void show_modal(Form& form) {
        form.load();
        form.unload();
    }
};

} // namespace ornavel::forms
