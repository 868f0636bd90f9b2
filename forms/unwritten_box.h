#pragma once

#include "base/message_box.h"
#include "settings/changes.h"

namespace ornavel::forms {

/// Tells in one sentence which setting can't be written, and which stay changed all the same.
void tell_unwritten(MessageBoxes& boxes, TextView title, const settings::Unwritten& unwritten);

} // namespace ornavel::forms
