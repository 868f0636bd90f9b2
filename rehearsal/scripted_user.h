#pragma once

#include "base/message_box.h"
#include "rehearsal/scenario.h"

#include <deque>

namespace ornavel::rehearsal {

/// The user of a scenario: answers the windows in the order in which they appear.
class ScriptedUser {
public:
    explicit ScriptedUser(const std::vector<UserEntry>& entries, std::string source);

    /// What the user does with the window that has just appeared; nothing when the script doesn't expect it.
    std::optional<UserEntry> meet(TextView at);

    /// Notes that what the script asks for can't be done; the first complaint is kept. A window is shown from
    /// inside the add-in, which would swallow an exception.
    void complain(const UserEntry& entry, const std::string& reason) { complain(entry.path, reason); }
    void complain(const std::string& path, const std::string& reason);
    const std::optional<std::string>& complaint() const { return complaint_; }

private:
    std::deque<UserEntry> entries_;
    std::string source_;
    std::optional<std::string> complaint_;
};

/// Lets the user answer a message box; gives the box's record, with the answer in it.
Json answer_message_box(ScriptedUser& user, TextView title, TextView text, Buttons buttons);

/// Lets the user answer a file dialog; gives its record, with the answer in it: null when it is cancelled.
Json answer_path_dialog(ScriptedUser& user, TextView title);

/// Lets the user answer an input box; gives the box's record, with the answer in it: null when it is
/// cancelled.
Json answer_input_box(ScriptedUser& user, TextView title, TextView prompt, TextView prefilled);

} // namespace ornavel::rehearsal
