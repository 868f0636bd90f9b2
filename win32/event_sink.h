#pragma once

#include "host/object.h"
#include "win32/com.h"

namespace ornavel::win32 {

/// Hands the object's events to the handler for as long as the subscription is kept; it may be dropped inside
/// the handler. Throws host::Error when the object has no such events.
host::Subscription advise(IUnknown* object, host::EventSource source, host::EventHandler handler);

} // namespace ornavel::win32
