#pragma once

#include "settings/descriptions.h"

#include <string>
#include <vector>

namespace ornavel::workbench {

/// A setting as a policy: an identifier of letters, digits and "_" that no other has, and what is told about
/// it.
struct Policy {
    const settings::Description& setting;
    std::string id;
    Text explanation; ///< the meaning, the default, and who reads it
};

/// Every setting that is an administrator's or a user's, once, by its group. Names that differ in case alone
/// are one value of the registry, and so one policy.
std::vector<Policy> all_policies();

/// The values that a choice tells apart; none for another setting.
std::vector<Text> choices_of(const settings::Description& setting);

/// The whole key of a setting, without its root.
std::string key_of(const settings::Description& setting);

/// The file for Windows 2000 to 2003, in the ANSI code page; and those for later ones, in UTF-8.
std::string adm_file(const std::vector<Policy>& policies);
std::string admx_file(const std::vector<Policy>& policies);
std::string adml_file(const std::vector<Policy>& policies);

} // namespace ornavel::workbench
