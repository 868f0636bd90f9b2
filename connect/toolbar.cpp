#include "connect/toolbar.h"

#include "connect/button_tags.h"
#include "connect/environment.h"
#include "connect/message_windows.h"
#include "connect/ribbon.h"
#include "connect/session.h"
#include "connect/setup_program.h"
#include "host/versions.h"
#include "settings/modes.h"

namespace ornavel::connect {
namespace {

using namespace settings;

constexpr int setup_face = 3271;

Text off_caption(const Session& session) {
    return forms::load_text(session.platform.strings, forms::text_ids::ornavel_off);
}
// The mode "auto" is shown as "Ornavel On"; so is "on", which only a send writes.
Text on_caption(const Session& session) {
    return forms::load_text(session.platform.strings, forms::text_ids::ornavel_on);
}

Text caption_of_mode(const Session& session, TextView mode) {
    if (mode == modes::off) return off_caption(session);
    return mode == modes::signature ? Text(modes::signature) : on_caption(session);
}

/// The button's caption, not the setting, says where the cycle stands.
void myButtonSetting_Click(Session& session) noexcept {
    attempt([&] { cycle_mode(session, session.host.myButtonSetting.caption()); });
}

host::CommandBarButton button_with_tag(const host::CommandBar& bar, TextView tag) {
    if (host::CommandBarButton button = bar.find_button(tag)) return button;
    host::CommandBarButton button = bar.add_temporary_button();
    button.set_tag(tag);
    return button;
}

void add_setup_button(Session& session) {
    HostReferences& host = session.host;
    host.MyButtonConfigWiz = button_with_tag(host.oStandardBar, button_tags::setup);
    host.MyButtonConfigWiz.set_caption(
        forms::load_text(session.platform.strings, forms::text_ids::ornavel_setup));
    host.MyButtonConfigWiz.show_face_and_caption(setup_face);
    trap(session.quiet_errors, {u"OnStartupComplete", u"Error hooking the setup button"}, [&] {
        host.setup_button_events = host.MyButtonConfigWiz.on_click([&session] {
            const auto kept = session.platform.kept();
            start_setup_program(session);
        });
    });
}

void add_mode_button(Session& session) {
    HostReferences& host = session.host;
    host.myButtonSetting = button_with_tag(host.oStandardBar, button_tags::mode);
    host.myButtonSetting.show_caption();
    host.myButtonSetting.set_caption(mode_caption(session));
    trap(session.quiet_errors, {u"OnStartupComplete", u"Error hooking the mode button"}, [&] {
        host.mode_button_events = host.myButtonSetting.on_click([&session] {
            const auto kept = session.platform.kept();
            myButtonSetting_Click(session);
        });
    });
}

} // namespace

Text mode_caption(const Session& session) {
    return caption_of_mode(session, read(session.platform.settings, user::SettingButtonBar));
}

void cycle_mode(Session& session, TextView caption) noexcept {
    attempt([&] {
        if (caption == on_caption(session)) {
            change_mode(session, modes::automatic, modes::off);
        } else if (caption == off_caption(session) && is_on(session.platform.settings, admin::eSignature)) {
            change_mode(session, modes::off, modes::signature);
        } else if (caption == off_caption(session)) {
            change_mode(session, modes::off, modes::automatic);
        } else if (caption == modes::signature) {
            change_mode(session, modes::signature, modes::automatic);
        }
    });
}

void set_mode(Session& session, TextView mode) noexcept {
    attempt([&] { session.host.myButtonSetting.set_caption(caption_of_mode(session, mode)); });
    save(session.platform.settings, user::SettingButtonBar, mode);
    follow_mode(session);
    refresh_ribbon(session);
}

void change_mode(Session& session, TextView before, TextView now) noexcept {
    set_mode(session, now);
    if (now == modes::signature)
        write_signature_files(session);
    else if (before == modes::signature)
        reset_host_signatures(session);
}

void add_buttons(Session& session) noexcept {
    if (host::major_version(session.host.oHostApp) >= host::first_with_ribbon_in_explorers) return;
    const bool on_a_toolbar = attempt([&] {
        session.host.oCommandBars = session.host.myActiveExplorer.command_bars();
        session.host.oStandardBar = session.host.oCommandBars.item(u"Standard");
    });
    if (!on_a_toolbar) return;
    const Store& store = session.platform.settings;
    if (is_on(store, admin::ShowConfigWizButton)) attempt([&] { add_setup_button(session); });
    if (is_off(store, user::SuppressToolbar)) attempt([&] { add_mode_button(session); });
}

void remove_buttons(Session& session) noexcept {
    for (const host::CommandBarButton& button :
         {session.host.myButtonSetting, session.host.MyButtonConfigWiz})
        attempt([&] { button.remove(); });
}

} // namespace ornavel::connect
