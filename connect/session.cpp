#include "connect/session.h"

namespace ornavel::connect {

void read_working_folders(Session& session) {
    using namespace settings;
    // No catalogue can know where the add-in lies.
    session.start_up.application_path =
        read(session.platform.settings, admin::ApplicationPath, session.platform.addin_folder);
    session.start_up.browser_path = read(session.platform.settings, admin::BrowserPath);
}

void record(Session& session, TextView label, TextView detail, TextView handler) noexcept {
    if (settings::is_on(session.platform.settings, settings::system::SystemCheck))
        session.log.SystemCheck(label, detail, handler);
}

} // namespace ornavel::connect
