#pragma once

#include "programs/program.h"

namespace ornavel::programs {

/// The program with this file name, with or without its ".exe"; null where there is none. Names compare
/// without case.
const Program* find_program(TextView file);

} // namespace ornavel::programs
