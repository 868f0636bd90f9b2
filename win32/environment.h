#pragma once

#include "base/text.h"

namespace ornavel::win32 {

/// A text in which the values of the environment stand for their names between per cent signs. A name
/// that is not known stays. Throws Failure.
Text expanded(TextView text);

/// The folder of the user's own where the add-in and its programs keep what belongs to nobody else. Empty
/// where the environment does not tell it.
Text user_folder();

} // namespace ornavel::win32
