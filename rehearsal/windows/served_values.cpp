#include "rehearsal/windows/served_values.h"

#include "win32/dispatch_object.h"
#include "win32/values.h"

namespace ornavel::rehearsal {
namespace {

host::Value as_it_was(host::Value value) {
    const auto* object = std::get_if<host::ObjectPtr>(&value);
    if (!object || !*object) return value;
    win32::ComPtr<ServedObject> served;
    const auto dispatch = win32::dispatch_of(*object);
    if (FAILED(dispatch->QueryInterface(IID_ServedObject, served.out_untyped()))) return value;
    return served->object();
}

} // namespace

win32::Variant served_variant(const host::Value& value, const std::shared_ptr<Subscriptions>& subscriptions) {
    const auto* object = std::get_if<host::ObjectPtr>(&value);
    if (!object) return win32::to_variant(value);
    win32::Variant variant;
    variant->vt = VT_DISPATCH;
    variant->pdispVal = serve(*object, subscriptions).release();
    return variant;
}

host::Arguments served_arguments(DISPPARAMS& parameters) {
    host::Arguments arguments;
    for (UINT i = parameters.cArgs; i-- > 0;) arguments.push_back(as_it_was(win32::to_value(parameters.rgvarg[i])));
    return arguments;
}

} // namespace ornavel::rehearsal
