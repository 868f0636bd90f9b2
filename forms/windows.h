#pragma once

#include "base/message_box.h"
#include "forms/form.h"

namespace ornavel::forms {

/// Everything that the add-in can show on the user's screen.
class Windows : public MessageBoxes {
public:
    /// Loads the form, shows it above everything else of the mail client, and returns when it is unloaded.
    /// Throws Failure when there is no window to be had: the form is unloaded then, too, and nobody has
    /// answered.
    virtual void show_modal(Form& form) = 0;
    /// Keeps another program's window above all others, where there is such a window.
    virtual void keep_on_top(int) {}
};

} // namespace ornavel::forms
