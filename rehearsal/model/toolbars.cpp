#include "rehearsal/model/toolbars.h"

#include "rehearsal/model/mail_client.h"

#include <algorithm>

namespace ornavel::rehearsal {
namespace {

using host::Value;

constexpr std::int32_t control_button = 1;

Value remove_button(const Call& call) {
    auto& buttons = call.client.standard_bar->buttons;
    std::erase_if(buttons, [&](const auto& button) { return button.get() == &call.self; });
    for (const auto& item : call.client.items)
        std::erase_if(item->inspector_bar->buttons,
                      [&](const auto& button) { return button.get() == &call.self; });
    call.self.gone = true;
    return {};
}

Value add_button(const Call& call) {
    if (call.given(0) && call.number(0) != control_button)
        throw host::Error(u"Invalid procedure call or argument");
    auto& buttons = call.as<ControlsNode>().bar->buttons;
    auto& button = buttons.emplace_back(std::make_shared<ButtonNode>());
    button->temporary = call.given(4) && call.flag(4);
    return call.client.hand_out(button);
}

Value control_at(const Call& call) {
    auto& buttons = call.as<ControlsNode>().bar->buttons;
    const auto* caption = std::get_if<Text>(&call.arguments[0]);
    if (!caption) return call.client.hand_out(entry_at(buttons, call.number(0)));
    for (const auto& button : buttons)
        if (same_name(button->caption, *caption)) return call.client.hand_out(button);
    throw host::Error(u"Invalid procedure call or argument");
}

Value find_control(const Call& call) {
    const auto& bar = call.as<BarNode>();
    if (call.given(0) && call.number(0) != control_button) return host::ObjectPtr();
    const auto button = call.given(2) ? bar.find(call.text(2)) : nullptr;
    return button ? call.client.hand_out(button) : host::ObjectPtr();
}

Value bar_at(const Call& call) {
    const auto& bars = call.as<BarsNode>();
    const auto* name = std::get_if<Text>(&call.arguments[0]);
    if (!bars.standard || (name ? !same_name(*name, u"Standard") : call.number(0) != 1))
        throw host::Error(u"Invalid procedure call or argument");
    return call.client.hand_out(bars.standard);
}

Value count_controls(const Call& call) {
    return static_cast<std::int32_t>(call.as<ControlsNode>().bar->buttons.size());
}

constexpr MemberRow button_members[] = {
    property<ButtonNode, &ButtonNode::caption>(u"Caption"),
    property<ButtonNode, &ButtonNode::tag>(u"Tag"),
    property<ButtonNode, &ButtonNode::tool_tip>(u"ToolTipText"),
    property<ButtonNode, &ButtonNode::face>(u"FaceId"),
    property<ButtonNode, &ButtonNode::style>(u"Style"),
    property<ButtonNode, &ButtonNode::visible>(u"Visible"),
    property<ButtonNode, &ButtonNode::enabled>(u"Enabled"),
    property<ButtonNode, &ButtonNode::begins_group>(u"BeginGroup"),
    method(u"Delete", remove_button, 0, 1),
};

constexpr MemberRow controls_members[] = {
    method(u"Count", count_controls),
    method(u"Item", control_at, 1, 1),
    method(u"Add", add_button, 0, 5),
};

constexpr MemberRow bar_members[] = {
    method(u"Name", [](const Call&) -> Value { return Text(u"Standard"); }),
    method(u"Controls",
           [](const Call& call) -> Value {
               auto bar = std::static_pointer_cast<BarNode>(call.self.shared_from_this());
               return call.client.hand_out(std::make_shared<ControlsNode>(std::move(bar)));
           }),
    method(u"FindControl", find_control, 0, 5),
};

constexpr MemberRow bars_members[] = {
    method(u"Item", bar_at, 1, 1),
    method(u"Count",
           [](const Call& call) -> Value { return std::int32_t{call.as<BarsNode>().standard ? 1 : 0}; }),
};

} // namespace

std::shared_ptr<ButtonNode> BarNode::find(TextView tag) const {
    const auto button =
        std::find_if(buttons.begin(), buttons.end(), [&](const auto& entry) { return entry->tag == tag; });
    return button == buttons.end() ? nullptr : *button;
}

const Class& ButtonNode::what() const {
    static constexpr Class table{u"CommandBarButton", button_members, host::EventSource::button};
    return table;
}

const Class& BarNode::what() const {
    static constexpr Class table{u"CommandBar", bar_members};
    return table;
}

const Class& ControlsNode::what() const {
    static constexpr Class table{u"CommandBarControls", controls_members};
    return table;
}

const Class& BarsNode::what() const {
    static constexpr Class table{u"CommandBars", bars_members};
    return table;
}

} // namespace ornavel::rehearsal
