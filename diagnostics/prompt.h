#pragma once

#include "base/text.h"

namespace ornavel::diagnostics {

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
