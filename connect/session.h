#pragma once

#include "compose/composer.h"
#include "connect/platform.h"
#include "diagnostics/error_reporter.h"
#include "forms/frmBrowser.h"
#include "forms/frmMessage.h"
#include "forms/frmSysTray.h"
#include "host/application.h"
#include "host/ribbon.h"

#include <list>

namespace ornavel::connect {

/// A message's window, and the button that the add-in put on its toolbar.
struct WatchedWindow {
    host::MessageWindow window;
    bool activated = false; ///< before that its toolbars may be missing
    host::CommandBarButton button{};
    host::Subscription window_events{}, button_events{};
};

/// Every reference to a host object, and the subscriptions to its events, in one place, so that VarCleanup
/// can let all of them go.
struct HostReferences {
    host::Explorer myActiveExplorer;
    host::Application oHostApp;
    host::CommandBars oCommandBars;
    host::CommandBar oStandardBar;
    host::CommandBarButton myButtonSetting;
    host::CommandBarButton MyButtonConfigWiz;
    host::MailItem MyMessItem; ///< the current item: the one being sent, or its wrapper

    std::list<WatchedWindow> message_windows;
    std::vector<host::RibbonUI> ribbons;

    host::Subscription application_events;
    host::Subscription explorers_events;
    host::Subscription explorer_events;
    host::Subscription message_windows_events;
    host::Subscription mode_button_events;
    host::Subscription setup_button_events;
};

/// What lives as long as the add-in is loaded.
struct Session {
    explicit Session(Platform machine)
        : platform(std::move(machine)),
          log(platform.settings, platform.files, platform.clock, platform.addin_folder),
          prompt(platform.windows, platform.strings),
          errors({platform.settings, log, prompt, platform.machine, platform.objects, host.oHostApp,
                  platform.addin_folder, platform.on_trap}) {
        start_up.application_path = platform.addin_folder;
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    Platform platform;
    HostReferences host;
    diagnostics::ErrorLog log;
    forms::PromptDialog prompt;
    diagnostics::ErrorReporter errors;
    diagnostics::QuietErrors quiet_errors{errors};
    compose::StartUpValues start_up;
    compose::Services composing{platform.settings, platform.files, platform.clock, platform.windows,
                                platform.objects,  errors,         host.oHostApp,  start_up};
    bool started = false; ///< the start-up's work is done in this connection
    // Both outlive a send, because the next one may read what this one left: a walk over recipients without
    // the wrapper never sets the internal flag, and a gate that refuses a send clears the processed one.
    bool processed = false;
    bool internal = false;
    bool dialog_answer = true; ///< the send-options form's answer
    bool sent_to_many = false; ///< another program reads the preview's page
    bool button_failure_logged = false;
    bool released = false; ///< every reference is let go, and none is taken before the next connection
    Text shown_mode;       ///< what the ribbon's mode button was last told to show
    Text language;
    std::shared_ptr<forms::frmSysTray> tray_form; ///< while the administrator's icon is shown
};

/// What the start-up reads of the folders that the add-in works in.
void read_working_folders(Session& session);

/// A system-check record; written only while the setting "SystemCheck" is on.
void record(Session& session, TextView label, TextView detail, TextView handler) noexcept;

} // namespace ornavel::connect
