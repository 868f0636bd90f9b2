#pragma once

#include "base/message_box.h"

namespace ornavel::forms {

/// Tells the product's name and version.
void show_about(MessageBoxes& boxes);

} // namespace ornavel::forms
