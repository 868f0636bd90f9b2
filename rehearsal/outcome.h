#pragma once

#include "rehearsal/player.h"

namespace ornavel::rehearsal {

/// What a rehearsal has to show, every member of it always there. The snapshot was taken when the world had
/// just been prepared.
Json write_outcome(const Scenario& scenario, const Player& player, MailClient& client, const Machine& machine,
                   const Snapshot& before);

/// The outcome of an add-in that took its process with it: nothing is known but that.
Json crash_outcome(const Text& name, const std::string& error);

/// What changed on the machine's disk and in its registry; null is what went.
Json changed_files(const Snapshot& before, const Snapshot& after);
Json changed_registry(const Snapshot& before, const Snapshot& after);
/// One value of it.
Json registry_outcome(const RegistryValue& value);

} // namespace ornavel::rehearsal
