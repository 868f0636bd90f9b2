#pragma once

#include "base/errors.h"

namespace ornavel::forms {

/// The traps of the form's handlers, each named after its handler.
namespace load_traps {
inline constexpr TrapName importance{u"Form_Load", u"Error reading the importance"};
inline constexpr TrapName sensitivity{u"Form_Load", u"Error reading the sensitivity"};
inline constexpr TrapName delivery{u"Form_Load", u"Error reading the delivery receipt"};
inline constexpr TrapName receipt{u"Form_Load", u"Error reading the read receipt"};
} // namespace load_traps

namespace send_traps {
inline constexpr TrapName selection{u"cmdOkToSend_Click", u"Error checking the selection"};
inline constexpr TrapName delivery{u"cmdOkToSend_Click", u"Error setting the delivery receipt"};
inline constexpr TrapName receipt{u"cmdOkToSend_Click", u"Error setting the read receipt"};
inline constexpr TrapName importance{u"cmdOkToSend_Click", u"Error setting the importance"};
inline constexpr TrapName sensitivity{u"cmdOkToSend_Click", u"Error setting the sensitivity"};
inline constexpr TrapName body{u"cmdOkToSend_Click", u"Error dressing the message"};
inline constexpr TrapName categories{u"cmdOkToSend_Click", u"Error setting the categories"};
inline constexpr TrapName follow_up{u"cmdOkToSend_Click", u"Error setting the follow-up flag"};
} // namespace send_traps

inline constexpr TrapName form_preview_trap{u"cmdPreview_Click", u"Error showing the preview"};
inline constexpr TrapName attachments_trap{u"cmdPreview_Click", u"Error reading the attachments"};
inline constexpr TrapName help_trap{u"cmdHelp_Click", u"Error showing the help page"};

} // namespace ornavel::forms
