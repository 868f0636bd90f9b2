#pragma once

#include "base/text.h"

namespace ornavel::win32 {

/// A text in which the values of the environment stand for their names between per cent signs. A name
/// that is not known stays. Throws Failure.
Text expanded(TextView text);

} // namespace ornavel::win32
