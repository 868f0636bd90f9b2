#include "connect/session.h"

namespace ornavel::connect {

void record(Session& session, TextView label, TextView detail, TextView handler) noexcept {
    if (settings::is_on(session.platform.settings, settings::system::SystemCheck))
        session.log.SystemCheck(label, detail, handler);
}

} // namespace ornavel::connect
