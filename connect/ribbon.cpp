#include "connect/ribbon.h"

#include "connect/button_tags.h"
#include "connect/message_windows.h"
#include "connect/session.h"
#include "connect/setup_program.h"
#include "connect/toolbar.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace ornavel::connect {
namespace {

using host::RibbonControl;
using host::Value;
using namespace settings;

/// One button: the same as that of the toolbar with its tag.
struct Button {
    TextView id, tag, picture; ///< the picture is one of the mail client's own
    Text (*label)(Session&);
    bool (*is_visible)(Session&, const RibbonControl&);
    void (*click)(Session&, const RibbonControl&);
};

Text setup_label(Session& session) {
    return forms::load_text(session.platform.strings, forms::text_ids::ornavel_setup);
}
bool is_setup_visible(Session& session, const RibbonControl&) {
    return is_on(session.platform.settings, admin::ShowConfigWizButton);
}
void click_setup(Session& session, const RibbonControl&) { start_setup_program(session); }

/// The cycle stands where the user sees it stand.
Text mode_label(Session& session) { return session.shown_mode = mode_caption(session); }
bool is_mode_visible(Session& session, const RibbonControl&) {
    return is_off(session.platform.settings, user::SuppressToolbar);
}
void click_mode(Session& session, const RibbonControl&) { cycle_mode(session, Text(session.shown_mode)); }

host::MessageWindow window_of(const RibbonControl& control) { return host::MessageWindow(control.context()); }

Text send_options_label(Session& session) {
    return forms::load_text(session.platform.strings, forms::text_ids::send_options);
}
bool is_send_options_visible(Session& session, const RibbonControl& control) {
    host::MessageWindow window;
    attempt([&] { window = window_of(control); });
    return offers_send_options(session, window);
}
void click_send_options(Session& session, const RibbonControl& control) {
    SendOptions_Click(session, window_of(control));
}

constexpr Button explorer_buttons[] = {
    {u"OrnavelSetup", button_tags::setup, u"PropertySheet", setup_label, is_setup_visible, click_setup},
    {u"OrnavelMode", button_tags::mode, u"EnvelopesAndLabelsDialog", mode_label, is_mode_visible, click_mode},
};
constexpr Button message_buttons[] = {
    {u"OrnavelSendOptions", button_tags::send_options, u"EnvelopesAndLabelsDialog", send_options_label,
     is_send_options_visible, click_send_options},
};

/// What one kind of window has: a group on a tab of the mail client's own, by the names of its documentation.
struct Ribbon {
    TextView id, tab, group;
    std::span<const Button> buttons;
};
constexpr Ribbon ribbons[] = {
    {u"Microsoft.Outlook.Explorer", u"TabMail", u"OrnavelMailGroup", explorer_buttons},
    {u"Microsoft.Outlook.Mail.Compose", u"TabNewMailMessage", u"OrnavelMessageGroup", message_buttons},
};

/// The control that a callback is asked about. One that can't be told is nobody's.
struct Asked {
    const Ribbon* group = nullptr;
    const Button* button = nullptr;
};

Asked find(const RibbonControl& control) {
    const Text id = control.id(), tag = control.tag();
    for (const Ribbon& ribbon : ribbons) {
        if (id == ribbon.group) return {.group = &ribbon};
        for (const Button& button : ribbon.buttons)
            if (id == button.id && tag == button.tag) return {.button = &button};
    }
    return {};
}

/// An empty group would leave its name behind.
bool has_visible_button(Session& session, const Ribbon& ribbon, const RibbonControl& control) {
    return std::ranges::any_of(ribbon.buttons, [&](const Button& button) {
        bool visible = false;
        attempt([&] { visible = button.is_visible(session, control); });
        return visible;
    });
}

/// Each kind of window has a ribbon of its own; the same one may be told again.
Value on_load(Session& session, const host::ObjectPtr& argument) {
    const host::RibbonUI ribbon(argument);
    auto& known = session.host.ribbons;
    const bool is_new =
        std::ranges::none_of(known, [&](const host::RibbonUI& each) { return each.is_same(ribbon); });
    if (argument && !session.released && is_new) known.push_back(ribbon);
    return {};
}

Value get_label(Session& session, const host::ObjectPtr& argument) {
    const Asked asked = find(RibbonControl(argument));
    return asked.button ? Value(asked.button->label(session)) : Value();
}

Value get_visible(Session& session, const host::ObjectPtr& argument) {
    const RibbonControl control(argument);
    const Asked asked = find(control);
    if (asked.group) return has_visible_button(session, *asked.group, control);
    return asked.button ? Value(asked.button->is_visible(session, control)) : Value();
}

Value on_action(Session& session, const host::ObjectPtr& argument) {
    const RibbonControl control(argument);
    const Asked asked = find(control);
    if (asked.button && session.host.oHostApp) asked.button->click(session, control);
    return {};
}

struct Callback {
    TextView name;
    Value (*run)(Session&, const host::ObjectPtr&);
};
constexpr Callback callbacks[] = {
    {u"onLoad", on_load}, {u"getLabel", get_label}, {u"getVisible", get_visible}, {u"onAction", on_action}};

Text attribute(TextView name, TextView value) { return u" " + Text(name) + u"=\"" + Text(value) + u"\""; }

Text markup_of(const Button& button) {
    return u"<button" + attribute(u"id", button.id) + attribute(u"tag", button.tag) +
           attribute(u"size", u"large") + attribute(u"imageMso", button.picture) +
           attribute(u"getLabel", u"getLabel") + attribute(u"getVisible", u"getVisible") +
           attribute(u"onAction", u"onAction") + u"/>";
}

Text markup_of(const Ribbon& ribbon) {
    Text markup = u"<customUI" +
                  attribute(u"xmlns", u"http://schemas.microsoft.com/office/2006/01/customui") +
                  attribute(u"onLoad", u"onLoad") + u"><ribbon><tabs><tab" + attribute(u"idMso", ribbon.tab) +
                  u"><group" + attribute(u"id", ribbon.group) + attribute(u"label", u"Ornavel") +
                  attribute(u"getVisible", u"getVisible") + u">";
    for (const Button& button : ribbon.buttons) markup += markup_of(button);
    return markup + u"</group></tab></tabs></ribbon></customUI>";
}

} // namespace

Text GetCustomUI(TextView ribbon_id) {
    const auto* ribbon = std::ranges::find(ribbons, ribbon_id, &Ribbon::id);
    return ribbon == std::end(ribbons) ? Text() : markup_of(*ribbon);
}

std::optional<int> find_ribbon_callback(TextView name) {
    for (const Callback& callback : callbacks)
        if (same_name(callback.name, name)) return static_cast<int>(&callback - callbacks);
    return {};
}

Value run_ribbon_callback(Session& session, int callback, const host::ObjectPtr& argument) noexcept {
    const auto kept = session.platform.kept();
    Value answer;
    attempt([&] {
        const auto index = static_cast<std::size_t>(callback);
        if (index < std::size(callbacks)) answer = callbacks[index].run(session, argument);
    });
    return answer;
}

void refresh_ribbon(Session& session) noexcept {
    for (const host::RibbonUI& ribbon : session.host.ribbons) attempt([&] { ribbon.invalidate(); });
}

void forget_ribbon(Session& session) noexcept { session.host.ribbons.clear(); }

} // namespace ornavel::connect
