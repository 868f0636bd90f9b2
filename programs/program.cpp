#include "programs/program.h"

#include "forms/unwritten_box.h"

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
    const auto unwritten = settings::write_changes(platform.settings, changes);
    if (!unwritten) return true;
    attempt([&] { forms::tell_unwritten(platform.windows, title, *unwritten); });
    return false;
}

} // namespace ornavel::programs
