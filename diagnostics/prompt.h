#pragma once

#include "base/text.h"

namespace ornavel::diagnostics {

/// The names of the prompt dialog's modes. The case of letters counts.
namespace prompt_modes {
inline constexpr TextView reply = u"Reply";
inline constexpr TextView auto_no_template = u"Auto-no Template";
inline constexpr TextView auto_no_signature = u"Auto-no signature";
inline constexpr TextView security_warning = u"Security warning";
inline constexpr TextView bad_template = u"Bad Template";
inline constexpr TextView choose_template = u"Choose Template";
inline constexpr TextView choose_signature = u"Choose signature";
inline constexpr TextView format_warning = u"Format Warning";
inline constexpr TextView support_email_request = u"Support email request";
} // namespace prompt_modes

/// The one small dialog that asks the user a question, or tells of a problem, during a send. It stands here
/// so that rooms below the forms can ask.
class Prompt {
public:
    virtual ~Prompt() = default;
    /// Shows the dialog in the mode of this name and waits for it to close. Gives back whether the answer is
    /// exactly "Yes"; a mode that only informs is never answered so.
    virtual bool ask(TextView mode) = 0;
};

} // namespace ornavel::diagnostics
