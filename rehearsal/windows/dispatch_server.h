#pragma once

#include "host/object.h"
#include "win32/com.h"

#include <map>

namespace ornavel::rehearsal {

/// The subscriptions that the add-in has made through COM, until it ends them, by their cookies. They outlast
/// whatever else the add-in releases, as in a real host: one that is forgotten is seen in the outcome.
class Subscriptions {
public:
    DWORD add(host::Subscription subscription);
    bool remove(DWORD cookie) { return kept_.erase(cookie) == 1; }

private:
    DWORD last_ = 0;
    std::map<DWORD, host::Subscription> kept_;
};

/// The object as the add-in gets it through COM: late-bound, with its events at a connection point. It holds
/// the object until the add-in has given back every reference. "Nothing" is null.
win32::ComPtr<IDispatch> serve(host::ObjectPtr object, std::shared_ptr<Subscriptions> subscriptions);

} // namespace ornavel::rehearsal
