#pragma once

#include "win32/com.h"

#include <ocidl.h>

namespace ornavel::win32 {

/// Hands the events of an object to a sink for as long as it lives. Throws host::Error when the object has no
/// such events.
class Connection {
public:
    Connection(IUnknown* source, const IID& events, IUnknown* sink);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

private:
    ComPtr<IConnectionPoint> point_;
    DWORD cookie_ = 0;
};

} // namespace ornavel::win32
