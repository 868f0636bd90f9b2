#include "base/encoding.h"
#include "workbench/policy_files.h"

// The policy template of Windows 2000 to 2003: categories and policies, then the texts that they name.

namespace ornavel::workbench {
namespace {

using namespace settings;

/// A text in quotes; there is no way to write a quote inside.
std::string in_quotes(TextView text) { return "\"" + to_utf8(replace_all(Text(text), u"\"", u"'")) + "\""; }

std::string choice_part(const Policy& policy) {
    std::string lines = "      PART !!N_" + policy.id + " DROPDOWNLIST REQUIRED\r\n        VALUENAME " +
                        in_quotes(policy.setting.key.name) + "\r\n        ITEMLIST\r\n";
    for (const Text& choice : choices_of(policy.setting)) {
        const bool standard = choice == policy.setting.key.default_value;
        lines += "          NAME " + in_quotes(choice.empty() ? TextView(u"(empty)") : choice) + " VALUE " +
                 in_quotes(choice) + (standard ? " DEFAULT" : "") + "\r\n";
    }
    return lines + "        END ITEMLIST\r\n      END PART\r\n";
}

std::string text_part(const Policy& policy) {
    const Key& key = policy.setting.key;
    const std::string kind = key.kind == SettingKind::path ? "EDITTEXT EXPANDABLETEXT" : "EDITTEXT";
    std::string lines =
        "      PART !!N_" + policy.id + " " + kind + "\r\n        VALUENAME " + in_quotes(key.name) + "\r\n";
    if (!key.default_value.empty()) lines += "        DEFAULT " + in_quotes(key.default_value) + "\r\n";
    return lines + "      END PART\r\n";
}

std::string policy_lines(const Policy& policy) {
    const std::string name = in_quotes(policy.setting.key.name);
    std::string lines = "    POLICY !!N_" + policy.id + "\r\n      KEYNAME " +
                        in_quotes(from_utf8(key_of(policy.setting))) + "\r\n      EXPLAIN !!E_" + policy.id +
                        "\r\n";
    if (policy.setting.key.kind == SettingKind::switch_)
        lines += "      VALUENAME " + name + "\r\n      VALUEON \"True\"\r\n      VALUEOFF \"False\"\r\n";
    else
        lines += choices_of(policy.setting).empty() ? text_part(policy) : choice_part(policy);
    return lines + "    END POLICY\r\n";
}

std::string strings(const std::vector<Policy>& policies) {
    std::string lines = "\r\n[strings]\r\nOrnavel=\"Ornavel\"\r\n";
    const Group* last = nullptr;
    for (const Policy& policy : policies) {
        const Group& group = policy.setting.group;
        if (!last || *last != group)
            lines +=
                "G_" + std::to_string(static_cast<int>(group)) + "=" + in_quotes(name_of(group)) + "\r\n";
        last = &group;
        lines += "N_" + policy.id + "=" + in_quotes(policy.setting.key.name) + "\r\nE_" + policy.id + "=" +
                 in_quotes(policy.explanation) + "\r\n";
    }
    return lines;
}

} // namespace

std::string adm_file(const std::vector<Policy>& policies) {
    std::string lines = "CLASS USER\r\nCATEGORY !!Ornavel\r\n";
    const Group* open = nullptr;
    for (const Policy& policy : policies) {
        const Group& group = policy.setting.group;
        if (!open || *open != group) {
            if (open) lines += "  END CATEGORY\r\n";
            lines += "  CATEGORY !!G_" + std::to_string(static_cast<int>(group)) + "\r\n";
        }
        open = &group;
        lines += policy_lines(policy);
    }
    if (open) lines += "  END CATEGORY\r\n";
    return lines + "END CATEGORY\r\n" + strings(policies);
}

} // namespace ornavel::workbench
