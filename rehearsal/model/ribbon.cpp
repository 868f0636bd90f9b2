#include "rehearsal/model/ribbon.h"

#include "rehearsal/model/application.h"
#include "rehearsal/model/mail_client.h"
#include "rehearsal/model/versions.h"

#include <algorithm>

namespace ornavel::rehearsal {
namespace {

using host::Value;

const Text of_explorers = u"Microsoft.Outlook.Explorer";
/// Asked of every add-in from 2010 on, also of one that has never heard of it.
const Text of_somebody_else = u"Microsoft.Mso.IMLayerUI";

/// The kind of window that an item opens in, by its class and by whether it is sent.
Text ribbon_of(const MailItemNode& item) {
    const Text name = upper_case(item.message_class);
    if (name.starts_with(u"IPM.TASK")) return u"Microsoft.Outlook.Task";
    if (name.starts_with(u"IPM.SCHEDULE.")) return u"Microsoft.Outlook.MeetingRequest.Send";
    return item.sent ? u"Microsoft.Outlook.Mail.Read" : u"Microsoft.Outlook.Mail.Compose";
}

Value invalidate(const Call& call) {
    call.as<RibbonUINode>().is_invalid = true;
    return {};
}

Value context(const Call& call) {
    const NodePtr& window = call.as<RibbonControlNode>().window;
    return window ? call.client.hand_out(window) : host::ObjectPtr();
}

constexpr MemberRow ribbon_members[] = {
    method(u"Invalidate", invalidate),
    method(u"InvalidateControl", invalidate, 1, 1),
};

constexpr MemberRow control_members[] = {
    read_only<RibbonControlNode, &RibbonControlNode::id>(u"Id"),
    method(u"Context", context),
    read_only<RibbonControlNode, &RibbonControlNode::tag>(u"Tag"),
};

/// An answer of another type than was asked for shows nothing.
Text as_label(const Value& value) {
    const auto* text = std::get_if<Text>(&value);
    return text ? *text : Text();
}
bool as_sight(const Value& value) {
    const auto* flag = std::get_if<bool>(&value);
    return flag && *flag;
}

} // namespace

void Ribbons::load_explorers() {
    if (!addin_ || !explorers_have_the_ribbon(client_.host()) || !client_.active_explorer()) return;
    if (find(of_explorers)) return;
    load(of_somebody_else);
    const Ribbon& ribbon = *load(of_explorers);
    windows_.insert(windows_.begin(), Shown{of_explorers, {}, {}});
    ask(windows_.front(), ribbon);
}

void Ribbons::open(const std::shared_ptr<InspectorNode>& window) {
    if (!addin_ || !message_windows_have_the_ribbon(client_.host())) return;
    const Text id = ribbon_of(*window->item);
    const Ribbon* ribbon = find(id);
    if (!ribbon) ribbon = load(id);
    windows_.push_back(Shown{id, window, {}});
    ask(windows_.back(), *ribbon);
}

void Ribbons::close(const Node& window) {
    std::erase_if(windows_, [&](const Shown& shown) {
        return shown.ribbon_id != of_explorers && shown.window.lock().get() == &window;
    });
}

void Ribbons::draw() {
    if (!addin_) return;
    for (const Ribbon& ribbon : ribbons_) {
        if (!std::exchange(ribbon.node->is_invalid, false)) continue;
        for (Shown& shown : windows_)
            if (shown.ribbon_id == ribbon.id) ask(shown, ribbon);
    }
}

void Ribbons::let_go(bool by_the_user) {
    addin_ = nullptr;
    for (const Ribbon& ribbon : ribbons_) ribbon.node->gone = true;
    ribbons_.clear();
    std::erase_if(windows_,
                  [&](const Shown& shown) { return by_the_user || shown.ribbon_id != of_explorers; });
}

std::vector<ShownControl> Ribbons::shown() const {
    std::vector<ShownControl> buttons;
    for (const Shown& window : windows_)
        std::ranges::copy_if(window.controls, std::back_inserter(buttons), [](const ShownControl& control) {
            return control.is_button && control.is_visible;
        });
    return buttons;
}

bool Ribbons::click(TextView tag, const Node* window) {
    for (const Shown& shown : windows_) {
        if (window && shown.window.lock().get() != window) continue;
        for (const ShownControl& control : shown.controls) {
            if (!control.is_button || !control.is_visible || control.tag != tag) continue;
            const ShownControl pressed = control; // what it does may close its window
            if (addin_) run(pressed.on_action, pressed.id, pressed.tag, window_of(shown));
            return true;
        }
    }
    return false;
}

Ribbons::Ribbon* Ribbons::find(TextView id) {
    const auto found = std::ranges::find(ribbons_, id, &Ribbon::id);
    return found == ribbons_.end() ? nullptr : &*found;
}

Ribbons::Ribbon* Ribbons::load(const Text& id) {
    const Text markup = addin_->custom_ui(id);
    Ribbon ribbon{id, markup.empty() ? CustomUI() : read_custom_ui(markup), std::make_shared<RibbonUINode>()};
    const Text on_load = ribbon.ui.on_load;
    const auto node = ribbon.node;
    ribbons_.push_back(std::move(ribbon));
    if (!on_load.empty()) run(on_load, node);
    return &ribbons_.back();
}

void Ribbons::ask(Shown& shown, const Ribbon& ribbon) {
    const NodePtr window = window_of(shown);
    std::vector<ShownControl> controls;
    for (const CustomControl& control : ribbon.ui.controls) {
        ShownControl& own = controls.emplace_back();
        own = {control.id,        control.tag, control.label,    control.picture,
               control.on_action, true,        control.is_button};
        ask(own, control, window);
    }
    // A group takes its buttons along.
    bool is_group_visible = true;
    for (ShownControl& control : controls) {
        if (!control.is_button) is_group_visible = control.is_visible;
        control.is_visible = control.is_visible && is_group_visible;
    }
    shown.controls = std::move(controls);
}

/// A control that is not to be seen has no need of a label.
void Ribbons::ask(ShownControl& shown, const CustomControl& control, const NodePtr& window) {
    if (!control.get_visible.empty())
        shown.is_visible = as_sight(run(control.get_visible, control.id, control.tag, window));
    if (shown.is_visible && !control.get_label.empty())
        shown.label = as_label(run(control.get_label, control.id, control.tag, window));
}

Value Ribbons::run(const Text& callback, const NodePtr& argument) {
    client_.journal().note(Deed::event, u"Ribbon." + callback);
    return addin_->run_callback(callback, client_.hand_out(argument));
}

Value Ribbons::run(const Text& callback, const Text& id, const Text& tag, const NodePtr& window) {
    const auto control = std::make_shared<RibbonControlNode>();
    control->id = id;
    control->tag = tag;
    control->window = window;
    return run(callback, control);
}

NodePtr Ribbons::window_of(const Shown& shown) const {
    if (shown.ribbon_id == of_explorers) return client_.active_explorer();
    return shown.window.lock();
}

const Class& RibbonUINode::what() const {
    static constexpr Class table{u"RibbonUI", ribbon_members};
    return table;
}

const Class& RibbonControlNode::what() const {
    static constexpr Class table{u"RibbonControl", control_members};
    return table;
}

} // namespace ornavel::rehearsal
