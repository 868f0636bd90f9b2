#include "connect/setup_program.h"

#include "connect/session.h"

namespace ornavel::connect {

using namespace settings;

bool start_setup_program(Session& session) noexcept {
    return attempt([&] {
        session.platform.launcher.launch(session.platform.addin_folder + u"\\SiteAssistant.exe", {},
                                         WindowState::normal);
    });
}

void start_setup_program_when_due(Session& session) noexcept {
    Store& store = session.platform.settings;
    bool identity_missing = false;
    attempt([&] {
        identity_missing = read(store, admin::SigEmail).empty() || read(store, admin::SigWebsite).empty();
    });
    if (!identity_missing && !is_on(store, admin::StartupSetupWiz)) return;
    if (start_setup_program(session)) record(session, u"Calling Setup Wiz", u"", u"On Connection");
    save(store, admin::StartupSetupWiz, off);
}

} // namespace ornavel::connect
