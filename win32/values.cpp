#include "win32/values.h"

#include "win32/dispatch_object.h"

#include <limits>

namespace ornavel::win32 {
namespace {

Variant variant(VARTYPE type) {
    Variant made;
    made->vt = type;
    return made;
}

struct ToVariant {
    Variant operator()(host::Empty) const { return {}; }
    Variant operator()(bool flag) const {
        Variant made = variant(VT_BOOL);
        made->boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
        return made;
    }
    Variant operator()(std::int32_t number) const {
        Variant made = variant(VT_I4);
        made->lVal = number;
        return made;
    }
    Variant operator()(double number) const {
        Variant made = variant(VT_R8);
        made->dblVal = number;
        return made;
    }
    Variant operator()(host::Date date) const {
        Variant made = variant(VT_DATE);
        made->date = date.days;
        return made;
    }
    Variant operator()(const Text& text) const {
        Bstr string(text);
        Variant made = variant(VT_BSTR);
        made->bstrVal = string.release();
        return made;
    }
    Variant operator()(const host::ObjectPtr& object) const {
        auto dispatch = dispatch_of(object);
        Variant made = variant(VT_DISPATCH);
        made->pdispVal = dispatch.release();
        return made;
    }
    Variant operator()(host::Omitted) const {
        Variant made = variant(VT_ERROR);
        made->scode = DISP_E_PARAMNOTFOUND;
        return made;
    }
    /// The caller of automation points it at a place of its own.
    Variant operator()(host::Result*) const { return {}; }
};

[[noreturn]] void mismatch() { throw host::Error(u"Type mismatch"); }

Variant converted(Variant& from, VARTYPE type) {
    Variant result;
    if (FAILED(VariantChangeType(result.address(), from.address(), 0, type))) mismatch();
    return result;
}

host::Value whole_number(double number) {
    if (number > std::numeric_limits<std::int32_t>::max()) return number;
    return static_cast<std::int32_t>(number);
}

} // namespace

Variant to_variant(const host::Value& value) { return std::visit(ToVariant{}, value); }

host::Value to_value(VARIANT& from) {
    Variant value;
    if (FAILED(VariantCopyInd(value.address(), &from))) mismatch();
    return to_value(std::move(value));
}

host::Value to_value(Variant value) {
    if ((value->vt & VT_BYREF) != 0) return to_value(*value.address());
    switch (value->vt) {
    case VT_EMPTY:
    case VT_NULL:
        return host::Empty{};
    case VT_BOOL:
        return value->boolVal != VARIANT_FALSE;
    case VT_I1:
    case VT_UI1:
    case VT_I2:
    case VT_UI2:
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
        return whole_number(converted(value, VT_R8)->dblVal);
    case VT_R4:
    case VT_R8:
    case VT_CY:
    case VT_DECIMAL:
        return converted(value, VT_R8)->dblVal;
    case VT_DATE:
        return host::Date{value->date};
    case VT_BSTR:
        return text_of_bstr(value->bstrVal);
    case VT_UNKNOWN:
    case VT_DISPATCH:
        return object_of(value->punkVal);
    case VT_ERROR:
        if (value->scode == DISP_E_PARAMNOTFOUND) return host::Omitted{};
        mismatch();
    default:
        mismatch();
    }
}

VARIANT_BOOL* flag_behind(const VARIANT& argument) {
    if (argument.vt == (VT_BYREF | VT_BOOL)) return argument.pboolVal;
    const bool by_variant = argument.vt == (VT_BYREF | VT_VARIANT) && argument.pvarVal;
    return by_variant && argument.pvarVal->vt == VT_BOOL ? &argument.pvarVal->boolVal : nullptr;
}

} // namespace ornavel::win32
