#include "connect/message_windows.h"

#include "connect/button_tags.h"
#include "connect/send_options.h"
#include "connect/session.h"
#include "host/versions.h"
#include "settings/modes.h"

#include <utility>

namespace ornavel::connect {
namespace {

using namespace settings;

bool is_mode_on(const Session& session) noexcept {
    bool on = false;
    attempt([&] { on = read(session.platform.settings, user::SettingButtonBar) == modes::on; });
    return on;
}

/// A window may fail at each Activate: the first failure is written to the error log, and nobody is asked.
template <class Body>
void log_once(Session& session, Body&& body) noexcept {
    if (session.button_failure_logged)
        attempt(body);
    else
        session.button_failure_logged = !trap(session.quiet_errors, window_button_trap, body);
}

bool is_unsent_message(const host::MessageWindow& window) {
    const host::MailItem item = window.item();
    return upper_case(item.message_class()) == u"IPM.NOTE" && !item.is_sent();
}

void add_button(Session& session, WatchedWindow& watched) {
    if (watched.button || !is_unsent_message(watched.window)) return;
    const host::CommandBar bar = watched.window.command_bars().item(u"Standard");
    host::CommandBarButton button = bar.find_button(button_tags::send_options);
    if (!button) {
        button = bar.add_temporary_button();
        button.set_tag(button_tags::send_options);
    }
    watched.button = button; // from here on it is taken away again, also when the next steps fail
    watched.button_events =
        button.on_click([&session, window = watched.window] { SendOptions_Click(session, window); });
    button.show_caption();
    button.set_caption(forms::load_text(session.platform.strings, forms::text_ids::send_options));
}

void remove_button(WatchedWindow& watched) noexcept {
    watched.button_events.reset();
    attempt([&] {
        if (watched.button) watched.button.remove();
    });
    watched.button.release();
}

void follow_mode(Session& session, WatchedWindow& watched) noexcept {
    if (!is_mode_on(session))
        remove_button(watched);
    else if (watched.activated)
        log_once(session, [&] { add_button(session, watched); });
}

/// Another program may have changed the mode meanwhile.
void on_activate(Session& session, WatchedWindow& watched) noexcept {
    watched.activated = true;
    follow_mode(session, watched);
}

void on_close(Session& session, WatchedWindow& watched) noexcept {
    remove_button(watched);
    session.host.message_windows.remove_if([&](const WatchedWindow& each) { return &each == &watched; });
}

WatchedWindow& watch(Session& session, host::MessageWindow window) {
    auto& watched = session.host.message_windows.emplace_back(WatchedWindow{.window = std::move(window)});
    watched.window_events =
        watched.window.on_events({.activate = [&session, &watched] { on_activate(session, watched); },
                                  .close = [&session, &watched] { on_close(session, watched); }});
    return watched;
}

/// Their first Activate is over.
void watch_open_windows(Session& session, const host::MessageWindows& windows) {
    const int count = windows.count();
    for (int index = 1; index <= count; ++index) on_activate(session, watch(session, windows.item(index)));
}

void remove_all(Session& session) noexcept {
    for (WatchedWindow& watched : session.host.message_windows) remove_button(watched);
    session.host.message_windows.clear();
}

} // namespace

bool offers_send_options(const Session& session, const host::MessageWindow& window) noexcept {
    bool offered = is_mode_on(session);
    if (offered) attempt([&] { offered = is_unsent_message(window); });
    return offered;
}

/// The window may close, and its entry go, while the form is open.
void SendOptions_Click(Session& session, const host::MessageWindow& window) noexcept {
    const auto kept = session.platform.kept();
    attempt([&] { dress_by_hand(session, window.item()); });
}

void watch_message_windows(Session& session) noexcept {
    if (host::major_version(session.host.oHostApp) >= host::first_with_ribbon_in_message_windows) return;
    trap(session.quiet_errors, message_windows_trap, [&] {
        const host::MessageWindows windows = session.host.oHostApp.message_windows();
        host::Subscription events = windows.on_new([&session](host::MessageWindow window) {
            log_once(session, [&] { watch(session, std::move(window)); });
        });
        // A mail client may stop telling of new windows when nobody holds their collection.
        session.host.message_windows_events =
            std::make_shared<std::pair<host::MessageWindows, host::Subscription>>(windows, std::move(events));
        watch_open_windows(session, windows);
    });
}

void follow_mode(Session& session) noexcept {
    for (WatchedWindow& watched : session.host.message_windows) follow_mode(session, watched);
}

void forget_message_windows(Session& session) noexcept {
    session.host.message_windows_events.reset();
    remove_all(session);
}

} // namespace ornavel::connect
