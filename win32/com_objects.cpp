#include "win32/com_objects.h"

#include "win32/dispatch_object.h"
#include "win32/wide.h"

#include <objbase.h>

namespace ornavel::win32 {

host::ObjectPtr ComObjects::create(TextView prog_id) {
    CLSID class_id{};
    check(CLSIDFromProgID(wide(prog_id).c_str(), &class_id));
    ComPtr<IDispatch> object;
    check(CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IDispatch,
                           object.out_untyped()));
    return std::make_shared<DispatchObject>(std::move(object));
}

host::ObjectPtr ComObjects::get(TextView moniker) {
    ComPtr<IDispatch> object;
    check(CoGetObject(wide(moniker).c_str(), nullptr, IID_IDispatch, object.out_untyped()));
    return std::make_shared<DispatchObject>(std::move(object));
}

} // namespace ornavel::win32
