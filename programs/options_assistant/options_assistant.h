#pragma once

#include "programs/program.h"

namespace ornavel::programs {

/// Ornavel Options: every setting of the catalogue, for administrators.
extern const Program options_assistant;

} // namespace ornavel::programs
