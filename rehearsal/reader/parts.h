#pragma once

#include "rehearsal/reader/json_place.h"
#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

/// The readers of a scenario's parts. Each refuses what the contract does not list.
SettingsTree read_settings(const JsonPlace& place);
Named<std::string> read_files(const JsonPlace& place);
std::vector<Text> read_folders(const JsonPlace& place, const Named<std::string>& files);
Named<Named<RegistryValue>> read_registry(const JsonPlace& place);
Computer read_computer(const JsonPlace& place);
Host read_host(const JsonPlace& place);
Item read_item(const JsonPlace& place);
std::vector<UserEntry> read_user(const JsonPlace& place);
Step read_step(const JsonPlace& place);
Failing read_failing(const JsonPlace& place);
Act read_act(const JsonPlace& place);

/// Refuses acts that name an item or an explorer window that is not there.
void check_acts(const Scenario& scenario, const std::string& source);

/// Refuses what only the native binding can play.
void check_native_only(const JsonPlace& scenario);

/// Refuses a broken regular expression in what is expected.
void check_expectation(const JsonPlace& place);

} // namespace ornavel::rehearsal
