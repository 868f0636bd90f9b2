#pragma once

#include "programs/program.h"

namespace ornavel::programs {

/// Ornavel Setup: a wizard for the user's own settings.
extern const Program site_assistant;

} // namespace ornavel::programs
