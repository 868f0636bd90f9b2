#pragma once

#include "programs/program.h"

#include <windows.h>

namespace ornavel::programs {

/// Runs the program on this machine and gives its exit code. Where it runs already in this session, that one
/// comes to the front instead.
int start(const Program& program);

} // namespace ornavel::programs
