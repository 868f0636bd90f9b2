#include "win32/com_objects.h"

#include "win32/dispatch_object.h"
#include "win32/wide.h"

#include <objbase.h>

namespace ornavel::win32 {

namespace {

/// What late binding has always said, whatever stands in the way.
host::ObjectPtr made(HRESULT outcome, ComPtr<IDispatch> object) {
    if (FAILED(outcome) || !object) throw host::Error(u"ActiveX component can't create object");
    return std::make_shared<DispatchObject>(std::move(object));
}

} // namespace

host::ObjectPtr ComObjects::create(TextView prog_id) {
    CLSID class_id{};
    ComPtr<IDispatch> object;
    HRESULT outcome = CLSIDFromProgID(wide(prog_id).c_str(), &class_id);
    if (SUCCEEDED(outcome))
        outcome = CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                                   IID_IDispatch, object.out_untyped());
    return made(outcome, std::move(object));
}

host::ObjectPtr ComObjects::get(TextView moniker) {
    ComPtr<IDispatch> object;
    const HRESULT outcome = CoGetObject(wide(moniker).c_str(), nullptr, IID_IDispatch, object.out_untyped());
    return made(outcome, std::move(object));
}

} // namespace ornavel::win32
