#include "connect/tray.h"

#include "connect/session.h"

namespace ornavel::connect {
namespace {

/// What must stay while the menu or one of its boxes is open.
struct Kept {
    std::shared_ptr<void> add_in;
    std::shared_ptr<forms::frmSysTray> form;
};

std::shared_ptr<forms::frmSysTray> make_form(Session& session) {
    const Platform& platform = session.platform;
    const auto keep = [&session]() -> std::shared_ptr<void> {
        return std::make_shared<Kept>(Kept{session.platform.kept(), session.tray_form});
    };
    return std::make_shared<forms::frmSysTray>(forms::frmSysTray::Needs{
        platform.settings, platform.windows, *platform.tray, platform.strings, platform.machine,
        platform.launcher, session.errors, session.host.oHostApp, platform.addin_folder, keep});
}

} // namespace

void show_tray_icon(Session& session) noexcept {
    if (!session.platform.tray) return;
    attempt([&] {
        remove_tray_icon(session);
        session.tray_form = make_form(session);
        session.tray_form->form().load();
    });
}

void remove_tray_icon(Session& session) noexcept {
    if (!session.tray_form) return;
    attempt([&] { session.tray_form->form().unload(); });
    session.tray_form.reset();
}

} // namespace ornavel::connect
