#pragma once

#include "rehearsal/scenario.h"

#include <windows.h>

namespace ornavel::rehearsal {

/// Takes one step in an open form of this thread, by the messages that a user's hand causes. Some are still
/// on their way when this returns. Throws UnusableStep for a step that no user could take.
void take_step_in_window(const Step& step, HWND form);

} // namespace ornavel::rehearsal
