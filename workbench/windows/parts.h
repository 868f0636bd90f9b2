#pragma once

#include "base/files.h"
#include "workbench/diagnosis.h"

namespace ornavel::workbench {

/// How the mail client knows the add-in: registration, module, list of add-ins.
std::vector<Diagnosis> look_at_installation(const Files& files);

/// What the mail client remembers of the add-in, and what a policy says of it.
std::vector<Diagnosis> look_at_resiliency();

} // namespace ornavel::workbench
