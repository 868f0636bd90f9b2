#pragma once

#include "base/message_box.h"
#include "forms/form.h"

#include <functional>
#include <optional>

namespace ornavel::forms {

/// A question for a file or folder. Patterns are such as "*.vcf"; without one every file is shown.
struct PathQuestion {
    enum class Kind { existing_file, new_file, folder };
    Kind kind = Kind::existing_file;
    Text title{};
    Text proposed{}; ///< a full path; empty for none
    Text files{};    ///< what the pattern's files are called, such as "vCards"
    Text pattern{};
};

/// Everything that the add-in and its programs can show on the user's screen.
class Windows : public MessageBoxes {
public:
    /// Loads the form, shows it above everything else of the mail client, and returns when it is unloaded.
    /// Throws Failure when there is no window to be had: the form is unloaded then, too, and nobody has
    /// answered.
    virtual void show_modal(Form& form) = 0;
    /// The full path that the user chose; nothing when the user cancelled. Throws Failure when there is no
    /// window to be had.
    virtual std::optional<Text> ask_for_path(const PathQuestion& question) = 0;
    /// Runs what may take a while, as a look at a share does; meanwhile the user sees that something is done.
    virtual void while_user_waits(const std::function<void()>& body) { body(); }
    /// Keeps another program's window above all others, where there is such a window.
    virtual void keep_on_top(int) {}
};

} // namespace ornavel::forms
