#pragma once

#include "base/text.h"

namespace ornavel::connect {

struct Session;

/// Where a registry file of this name lies: in the program folder of an installation, or, where Windows is in
/// another language and has no such folder, beside the add-in.
Text registry_file(const Session& session, TextView name);

/// Imports a registry file once: it is deleted as soon as the import has ended, and only then. An import that
/// can't be started, fails, or takes its time is left to the next time, so one may run twice, but none is
/// lost. Returns whether it has ended.
bool import_registry_file(Session& session, TextView name) noexcept;

} // namespace ornavel::connect
