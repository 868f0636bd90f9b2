#pragma once

#include "base/text.h"

namespace ornavel::workbench {

/// What the doctor says of one thing: how it is, what was seen, and what to do where something is wrong.
struct Diagnosis {
    enum class State { fine, look, broken };
    State state;
    Text what, seen, advice;
};

/// Looks at this machine's installation and at the user's settings. Changes nothing.
std::vector<Diagnosis> examine();

} // namespace ornavel::workbench
