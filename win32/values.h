#pragma once

#include "host/object.h"
#include "win32/com.h"

namespace ornavel::win32 {

/// The value as automation passes it. Throws host::Error for an object that is not one of automation's.
Variant to_variant(const host::Value& value);

/// What automation passed, by value or by reference. Throws host::Error for what the seam has no type for.
host::Value to_value(VARIANT& variant);
/// The same for what a call gave back: nothing of it is copied on the way to the value.
host::Value to_value(Variant variant);

/// Where a flag that was passed by reference is kept, or null.
VARIANT_BOOL* flag_behind(const VARIANT& argument);

} // namespace ornavel::win32
