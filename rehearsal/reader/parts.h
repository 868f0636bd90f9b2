#pragma once

#include "rehearsal/reader/place.h"
#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

/// The readers of a scenario's parts. Each refuses what the contract does not list.
SettingsTree read_settings(const Place& place);
Named<std::string> read_files(const Place& place);
std::vector<Text> read_folders(const Place& place, const Named<std::string>& files);
Named<Named<RegistryValue>> read_registry(const Place& place);
Computer read_computer(const Place& place);
Host read_host(const Place& place);
Item read_item(const Place& place);
std::vector<UserEntry> read_user(const Place& place);
Failing read_failing(const Place& place);
Act read_act(const Place& place);

/// Refuses acts that name an item or an explorer window that is not there.
void check_acts(const Scenario& scenario, const std::string& source);

/// Refuses what only the native binding can play.
void check_native_only(const Place& scenario);

/// Refuses a broken regular expression in what is expected.
void check_expectation(const Place& place);

} // namespace ornavel::rehearsal
