#pragma once

#include "base/message_box.h"

namespace ornavel::forms {

/// Everything that the add-in can show on the user's screen.
class Windows : public MessageBoxes {};

} // namespace ornavel::forms
