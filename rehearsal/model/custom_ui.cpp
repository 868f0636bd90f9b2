#include "rehearsal/model/custom_ui.h"

#include "base/errors.h"
#include "rehearsal/xml.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <span>

namespace ornavel::rehearsal {
namespace {

constexpr TextView name_space = u"http://schemas.microsoft.com/office/2006/01/customui";

constexpr TextView of_root[] = {u"xmlns", u"onLoad", u"loadImage"};
constexpr TextView of_ribbon[] = {u"startFromScratch"};
constexpr TextView of_tab[] = {u"id",           u"idQ",          u"idMso",          u"tag",
                               u"label",        u"getLabel",     u"visible",        u"getVisible",
                               u"keytip",       u"getKeytip",    u"insertAfterMso", u"insertBeforeMso",
                               u"insertAfterQ", u"insertBeforeQ"};
constexpr TextView of_group[] = {
    u"id",           u"idQ",          u"idMso",     u"label",        u"getLabel",       u"image",
    u"imageMso",     u"getImage",     u"screentip", u"getScreentip", u"supertip",       u"getSupertip",
    u"visible",      u"getVisible",   u"keytip",    u"getKeytip",    u"insertAfterMso", u"insertBeforeMso",
    u"insertAfterQ", u"insertBeforeQ"};
constexpr TextView of_button[] = {u"id",
                                  u"idQ",
                                  u"idMso",
                                  u"tag",
                                  u"label",
                                  u"getLabel",
                                  u"image",
                                  u"imageMso",
                                  u"getImage",
                                  u"screentip",
                                  u"getScreentip",
                                  u"supertip",
                                  u"getSupertip",
                                  u"visible",
                                  u"getVisible",
                                  u"keytip",
                                  u"getKeytip",
                                  u"insertAfterMso",
                                  u"insertBeforeMso",
                                  u"insertAfterQ",
                                  u"insertBeforeQ",
                                  u"onAction",
                                  u"enabled",
                                  u"getEnabled",
                                  u"description",
                                  u"getDescription",
                                  u"showLabel",
                                  u"getShowLabel",
                                  u"showImage",
                                  u"getShowImage",
                                  u"size",
                                  u"getSize"};

/// An element, where it stands, and what it may have.
struct Rule {
    TextView name, parent;
    bool once;     ///< its parent has no more than one
    bool is_named; ///< by exactly one of its three identifiers
    std::span<const TextView> attributes;
};
constexpr Rule rules[] = {
    {u"customUI", u"", true, false, of_root},  {u"ribbon", u"customUI", true, false, of_ribbon},
    {u"tabs", u"ribbon", true, false, {}},     {u"tab", u"tabs", false, true, of_tab},
    {u"group", u"tab", false, true, of_group}, {u"button", u"group", false, true, of_button},
};

constexpr TextView identifiers[] = {u"id", u"idQ", u"idMso"};
constexpr TextView places[] = {u"insertAfterMso", u"insertBeforeMso", u"insertAfterQ", u"insertBeforeQ"};
constexpr TextView pictures[] = {u"image", u"imageMso", u"getImage"};
constexpr TextView labels[] = {u"label", u"getLabel"};
constexpr TextView sights[] = {u"visible", u"getVisible"};
constexpr TextView sizes[] = {u"size", u"getSize"};
/// Of each of these an element has one at most.
constexpr std::span<const TextView> exclusive[] = {identifiers, places, pictures, labels, sights, sizes};

[[noreturn]] void refuse(const XmlElement& element, const Text& reason) {
    throw Failure(u"markup, " + element.name + u": " + reason);
}

std::ptrdiff_t given(const XmlElement& element, std::span<const TextView> names) {
    return std::ranges::count_if(names, [&](TextView name) { return element.find(name) != nullptr; });
}

void check_values(const XmlElement& element) {
    const Text* const size = element.find(u"size");
    if (size && *size != u"normal" && *size != u"large") refuse(element, u"no such size");
    for (const auto& [name, value] : element.attributes)
        if (value.empty() && name != u"tag") refuse(element, name + u" is empty");
}

const Rule& check_element(const XmlElement& element, TextView parent) {
    const auto* rule = std::ranges::find_if(
        rules, [&](const Rule& each) { return each.name == element.name && each.parent == parent; });
    if (rule == std::end(rules)) refuse(element, u"not in " + Text(parent.empty() ? u"front" : parent));
    for (const auto& [name, value] : element.attributes)
        if (std::ranges::find(rule->attributes, name) == rule->attributes.end())
            refuse(element, u"no attribute " + name);
    for (const auto& names : exclusive)
        if (given(element, names) > 1)
            refuse(element, Text(names[0]) + u" and another one exclude each other");
    if (rule->is_named && given(element, identifiers) != 1) refuse(element, u"no identifier");
    check_values(element);
    return *rule;
}

Text text_of(const XmlElement& element, TextView attribute) {
    const Text* const value = element.find(attribute);
    return value ? *value : Text();
}

CustomControl control_of(const XmlElement& element) {
    return {.is_button = element.name == u"button",
            .id = text_of(element, u"id"),
            .tag = text_of(element, u"tag"),
            .picture = text_of(element, u"imageMso"),
            .label = text_of(element, u"label"),
            .get_label = text_of(element, u"getLabel"),
            .get_visible = text_of(element, u"getVisible"),
            .on_action = text_of(element, u"onAction")};
}

void take(CustomUI& ui, const XmlElement& element) {
    CustomControl control = control_of(element);
    if (!control.id.empty() &&
        std::ranges::find(ui.controls, control.id, &CustomControl::id) != ui.controls.end())
        refuse(element, u"the identifier " + control.id + u" twice");
    ui.controls.push_back(std::move(control));
}

void walk(CustomUI& ui, const XmlElement& element, TextView parent) {
    const Rule& rule = check_element(element, parent);
    if (rule.name == u"group" || rule.name == u"button") take(ui, element);
    for (const XmlElement& child : element.children) walk(ui, child, element.name);
    for (const Rule& each : rules)
        if (each.once && each.parent == element.name &&
            std::ranges::count(element.children, each.name, &XmlElement::name) > 1)
            refuse(element, u"more than one " + Text(each.name));
}

} // namespace

CustomUI read_custom_ui(TextView markup) {
    const XmlElement root = parse_xml(markup);
    CustomUI ui{.on_load = text_of(root, u"onLoad"), .controls = {}};
    walk(ui, root, u"");
    if (text_of(root, u"xmlns") != name_space) refuse(root, u"another name space");
    return ui;
}

} // namespace ornavel::rehearsal
