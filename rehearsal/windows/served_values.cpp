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

ServedArguments::ServedArguments(DISPPARAMS& parameters) {
    for (UINT i = parameters.cArgs; i-- > 0;) {
        VARIANT& argument = parameters.rgvarg[i];
        if (argument.vt == (VT_BYREF | VT_VARIANT)) {
            places_.push_back({argument.pvarVal, std::make_unique<host::Result>()});
            values_.emplace_back(places_.back().result.get());
        } else {
            values_.push_back(as_it_was(win32::to_value(argument)));
        }
    }
}

void ServedArguments::give_back_results(const std::shared_ptr<Subscriptions>& subscriptions) {
    for (auto& place : places_) {
        win32::Variant variant = served_variant(place.result->value, subscriptions);
        VariantClear(place.variant);
        *place.variant = variant.release();
    }
}

} // namespace ornavel::rehearsal
