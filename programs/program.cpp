#include "programs/program.h"

namespace ornavel::programs {

int run(const Program& program, const Platform& platform) noexcept {
    try {
        return program.body(platform);
    } catch (...) {
        const Text reason = current_description();
        attempt([&] {
            platform.windows.inform(program.title, Text(program.title) + u" can't go on: " + reason + u".");
        });
        return gave_up;
    }
}

bool save_or_tell(const Platform& platform, TextView title,
                  const std::vector<settings::Change>& changes) noexcept {
    const settings::Key* failed = settings::write_changes(platform.settings, changes);
    if (!failed) return true;
    attempt([&] {
        platform.windows.inform(title, u"Nothing was changed, because the setting " + Text(failed->name) +
                                           u" can't be written.");
    });
    return false;
}

} // namespace ornavel::programs
