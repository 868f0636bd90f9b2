#pragma once

#include "host/object.h"

#include <windows.h>

#include <optional>

namespace ornavel::win32 {

/// The event interface of a source: the host's application and windows, the command bars' button.
const IID& event_interface(host::EventSource source);

/// The name of an event by its number, and the other way round; nothing for one that the add-in doesn't know.
std::optional<TextView> event_name(host::EventSource source, DISPID id);
std::optional<DISPID> event_id(host::EventSource source, TextView name);

} // namespace ornavel::win32
