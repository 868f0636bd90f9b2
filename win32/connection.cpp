#include "win32/connection.h"

#include "win32/dispatch_object.h"

namespace ornavel::win32 {

Connection::Connection(IUnknown* source, const IID& events, IUnknown* sink) {
    ComPtr<IConnectionPointContainer> container;
    check(source->QueryInterface(IID_IConnectionPointContainer, container.out_untyped()));
    check(container->FindConnectionPoint(events, point_.out()));
    check(point_->Advise(sink, &cookie_));
}

// A source that is gone already answers with an error, which changes nothing.
Connection::~Connection() { point_->Unadvise(cookie_); }

} // namespace ornavel::win32
