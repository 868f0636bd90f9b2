#pragma once

#include "rehearsal/windows/dispatch_server.h"

#include <ocidl.h>

namespace ornavel::rehearsal {

/// Where the add-in's sinks are connected to one object's events.
win32::ComPtr<IConnectionPoint> make_event_point(host::ObjectPtr object, host::EventSource source,
                                                 std::shared_ptr<Subscriptions> subscriptions);

} // namespace ornavel::rehearsal
