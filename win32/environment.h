#pragma once

#include "base/text.h"

namespace ornavel::win32 {

/// A text in which the values of the environment stand for their names between per cent signs. A name
/// that is not known stays. Throws Failure.
Text expanded(TextView text);

/// The folder for data of the user's programs, without a backslash at its end. Empty where the environment
/// does not tell it.
Text application_data();

/// The folder of the user's own where the add-in and its programs keep what belongs to nobody else. Empty
/// where there is no folder for data of the user's programs.
Text user_folder();

} // namespace ornavel::win32
