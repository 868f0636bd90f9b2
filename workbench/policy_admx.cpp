#include "base/encoding.h"
#include "workbench/policy_files.h"

// The policy templates of later Windows: definitions, and the texts and controls that go with them.

namespace ornavel::workbench {
namespace {

using namespace settings;

constexpr const char* opening = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n";
constexpr const char* schema = " xmlns=\"http://schemas.microsoft.com/GroupPolicy/2006/07/PolicyDefinitions\""
                               " revision=\"1.0\" schemaVersion=\"1.0\">\n";

/// A text of XML, also in an attribute.
std::string xml(TextView text) {
    std::string result;
    for (const char unit : to_utf8(text)) {
        if (unit == '&')
            result += "&amp;";
        else if (unit == '<')
            result += "&lt;";
        else if (unit == '>')
            result += "&gt;";
        else if (unit == '"')
            result += "&quot;";
        else
            result += unit;
    }
    return result;
}

std::string group_id(Group group) { return "Group" + std::to_string(static_cast<int>(group)); }

std::string categories(const std::vector<Policy>& policies) {
    std::string lines =
        "  <categories>\n    <category name=\"Ornavel\" displayName=\"$(string.Ornavel)\"/>\n";
    std::string last;
    for (const Policy& policy : policies) {
        const std::string id = group_id(policy.setting.group);
        if (id != last)
            lines += "    <category name=\"" + id + "\" displayName=\"$(string." + id +
                     ")\"><parentCategory ref=\"Ornavel\"/></category>\n";
        last = id;
    }
    return lines + "  </categories>\n";
}

std::string value(TextView text) { return "<string>" + xml(text) + "</string>"; }

std::string elements(const Policy& policy) {
    const Key& key = policy.setting.key;
    const std::string name = "id=\"" + policy.id + "\" valueName=\"" + xml(key.name) + "\"";
    const auto choices = choices_of(policy.setting);
    if (choices.empty())
        return "      <elements><text " + name +
               (key.kind == SettingKind::path ? " expandable=\"true\"" : "") + "/></elements>\n";
    std::string lines = "      <elements><enum " + name + " required=\"true\">";
    for (std::size_t at = 0; at < choices.size(); ++at)
        lines += "<item displayName=\"$(string." + policy.id + "_" + std::to_string(at) + ")\"><value>" +
                 value(choices[at]) + "</value></item>";
    return lines + "</enum></elements>\n";
}

std::string definition(const Policy& policy) {
    const bool is_switch = policy.setting.key.kind == SettingKind::switch_;
    std::string lines = "    <policy name=\"" + policy.id + "\" class=\"User\" displayName=\"$(string." +
                        policy.id + ")\" explainText=\"$(string." + policy.id + "_Help)\" key=\"" +
                        xml(from_utf8(key_of(policy.setting))) + "\"";
    lines += is_switch ? " valueName=\"" + xml(policy.setting.key.name) + "\">\n"
                       : " presentation=\"$(presentation." + policy.id + ")\">\n";
    lines += "      <parentCategory ref=\"" + group_id(policy.setting.group) +
             "\"/>\n      <supportedOn ref=\"Any\"/>\n";
    if (is_switch)
        lines += "      <enabledValue>" + value(on) + "</enabledValue>\n      <disabledValue>" + value(off) +
                 "</disabledValue>\n";
    else
        lines += elements(policy);
    return lines + "    </policy>\n";
}

std::string string_row(const std::string& id, TextView text) {
    return "      <string id=\"" + id + "\">" + xml(text) + "</string>\n";
}

std::string string_elements(const std::vector<Policy>& policies) {
    std::string lines = string_row("Ornavel", u"Ornavel") + string_row("Any", u"Any version"), last;
    for (const Policy& policy : policies) {
        const std::string group = group_id(policy.setting.group);
        if (group != last) lines += string_row(group, name_of(policy.setting.group));
        last = group;
        lines += string_row(policy.id, policy.setting.key.name) +
                 string_row(policy.id + "_Help", policy.explanation);
        const auto choices = choices_of(policy.setting);
        for (std::size_t at = 0; at < choices.size(); ++at)
            lines += string_row(policy.id + "_" + std::to_string(at),
                                choices[at].empty() ? TextView(u"(empty)") : choices[at]);
    }
    return "    <stringTable>\n" + lines + "    </stringTable>\n";
}

std::string presentation(const Policy& policy) {
    const Key& key = policy.setting.key;
    const std::string id = "refId=\"" + policy.id + "\"";
    const bool choice = !choices_of(policy.setting).empty();
    const std::string control = choice ? "<dropdownList " + id + ">" + xml(key.name) + "</dropdownList>"
                                       : "<textBox " + id + "><label>" + xml(key.name) +
                                             "</label><defaultValue>" + xml(key.default_value) +
                                             "</defaultValue></textBox>";
    return "      <presentation id=\"" + policy.id + "\">" + control + "</presentation>\n";
}

} // namespace

std::string admx_file(const std::vector<Policy>& policies) {
    std::string lines =
        std::string(opening) + "<policyDefinitions" + schema +
        "  <policyNamespaces><target prefix=\"ornavel\" namespace=\"Brevant.Policies.Ornavel\"/>"
        "</policyNamespaces>\n  <resources minRequiredRevision=\"1.0\"/>\n"
        "  <supportedOn><definitions><definition name=\"Any\" displayName=\"$(string.Any)\"/>"
        "</definitions></supportedOn>\n" +
        categories(policies) + "  <policies>\n";
    for (const Policy& policy : policies) lines += definition(policy);
    return lines + "  </policies>\n</policyDefinitions>\n";
}

std::string adml_file(const std::vector<Policy>& policies) {
    std::string lines =
        std::string(opening) + "<policyDefinitionResources" + schema +
        "  <displayName>Ornavel</displayName>\n  <description>The settings of Ornavel</description>\n"
        "  <resources>\n" +
        string_elements(policies) + "    <presentationTable>\n";
    for (const Policy& policy : policies)
        if (policy.setting.key.kind != SettingKind::switch_) lines += presentation(policy);
    return lines + "    </presentationTable>\n  </resources>\n</policyDefinitionResources>\n";
}

} // namespace ornavel::workbench
