#pragma once

#include "base/launcher.h"
#include "base/system_information.h"
#include "diagnostics/error_reports.h"
#include "forms/string_table.h"
#include "forms/tray.h"
#include "forms/windows.h"
#include "host/application.h"
#include "settings/store.h"

#include <memory>

namespace ornavel::forms {

inline constexpr TrapName tray_trap{u"frmSysTray", u"Error in the administrator menu"};
/// A request of the user's own for help goes the way of an error.
inline constexpr TrapName support_request{u"Systray option", u"UserRequest"};

/// The administrator's icon in the notification area, and its menu: switches of the clean-up passes, default
/// names, what the machine is, and a request to support. The icon is there while the form is loaded.
class frmSysTray {
public:
    struct Needs {
        settings::Store& settings;
        Windows& windows;
        Tray& tray;
        const StringTable& strings;
        const SystemInformation& machine;
        Launcher& launcher;
        diagnostics::ErrorReports& errors;
        const host::Application& application; ///< the mail client; may hold nothing
        Text addin_folder;
        /// Keeps all of the above and this form for as long as the result lives: the mail client may end
        /// while the menu or a box is open.
        std::function<std::shared_ptr<void>()> keep;
    };
    /// The needs outlive it.
    explicit frmSysTray(Needs needs);

    /// Its menu, as controls of that kind.
    Form& form() { return form_; }

private:
    void Form_Load();
    void Form_Unload();
    void Picture1_MouseMove(int message) noexcept;
    void pop_up();

    void mnSite_Click();
    void mnSystemInfo_Click();
    void mnOptions_Click();
    void mnHide_Click();
    void mnSignature_Click();
    void mnTemplate_Click();
    void mnSupport_Click();
    void flip(std::size_t toggle);

    Needs needs_;
    Form form_;
    bool open_ = false; ///< the menu, or what an entry of it has opened
};

/// The caption of the entry that works on the setting with this key, or of the request to support for
/// "Support".
std::optional<Text> tray_caption(TextView key);

} // namespace ornavel::forms
