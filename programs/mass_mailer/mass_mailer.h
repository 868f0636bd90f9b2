#pragma once

#include "programs/program.h"

namespace ornavel::programs {

/// Send to Many: the composed message, one to each person of a list.
extern const Program mass_mailer;

} // namespace ornavel::programs
