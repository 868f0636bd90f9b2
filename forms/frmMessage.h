#pragma once

#include "diagnostics/prompt.h"
#include "forms/string_table.h"
#include "forms/windows.h"

namespace ornavel::forms {

/// What the prompt dialog and its caller share; both values stay until the next caller sets them.
struct PromptValues {
    Text mode;
    Text answer; ///< "Yes" or "No"
};

/// The prompt dialog: message, title and buttons follow from the mode when it loads. A mode that it does not
/// know (the case of letters counts) leaves the form as designed. All of the arguments outlive it.
class frmMessage {
public:
    frmMessage(PromptValues& shared, const StringTable& table);
    Form& form() { return form_; }

private:
    void Form_Load();
    void cmdYes_Click();
    void cmdNo_Click();
    void cmdOK_Click();

    PromptValues& shared_;
    const StringTable& table_;
    Form form_;
};

/// Asks the user through frmMessage, in windows of the platform.
class PromptDialog final : public diagnostics::Prompt {
public:
    PromptDialog(Windows& windows, const StringTable& table) : windows_(windows), table_(table) {}
    bool ask(TextView mode) override;
    const PromptValues& values() const { return values_; }

private:
    Windows& windows_;
    const StringTable& table_;
    PromptValues values_;
};

} // namespace ornavel::forms
