#include "win32/dispatch_object.h"

#include "win32/event_sink.h"
#include "win32/values.h"
#include "win32/wide.h"

namespace ornavel::win32 {
namespace {

/// What an object says about a call that failed.
class Exception {
public:
    ~Exception() {
        SysFreeString(info_.bstrSource);
        SysFreeString(info_.bstrDescription);
        SysFreeString(info_.bstrHelpFile);
    }
    EXCEPINFO* out() { return &info_; }
    HRESULT code() const { return info_.scode != 0 ? info_.scode : DISP_E_EXCEPTION; }

    Text description() {
        if (info_.pfnDeferredFillIn) info_.pfnDeferredFillIn(&info_);
        const Text own = text_of_bstr(info_.bstrDescription);
        if (!own.empty()) return own;
        return info_.scode ? system_message(static_cast<DWORD>(info_.scode))
                           : u"Error " + to_text(info_.wCode);
    }

private:
    EXCEPINFO info_{};
};

/// The arguments as IDispatch takes them: the last one first, and a result by reference to a place of its
/// own.
class CallArguments {
public:
    explicit CallArguments(std::span<const host::Value> arguments) : results_(arguments.size()) {
        values_.reserve(arguments.size());
        for (auto argument = arguments.rbegin(); argument != arguments.rend(); ++argument) {
            Variant& value = values_.emplace_back(to_variant(*argument));
            if (!std::holds_alternative<host::Result*>(*argument)) continue;
            value->vt = VT_BYREF | VT_VARIANT;
            value->pvarVal = results_[values_.size() - 1].address();
        }
    }

    VARIANT* first() { return values_.empty() ? nullptr : values_.front().address(); }
    UINT count() const { return static_cast<UINT>(values_.size()); }

    void hand_over(std::span<const host::Value> arguments) {
        for (std::size_t i = 0; i < arguments.size(); ++i)
            if (const auto* result = std::get_if<host::Result*>(&arguments[arguments.size() - 1 - i]))
                (*result)->value = to_value(std::move(results_[i]));
    }

private:
    std::vector<Variant> results_;
    std::vector<Variant> values_;
};

/// The address that stands for an object among all its interfaces; to be compared only.
const void* identity_of(const ComPtr<IDispatch>& dispatch) {
    ComPtr<IUnknown> unknown;
    dispatch->QueryInterface(IID_IUnknown, unknown.out_untyped());
    return unknown.get();
}

static_assert(sizeof(Variant) == sizeof(VARIANT), "a vector of Variant is an array of VARIANT");

} // namespace

host::Value DispatchObject::get(host::Member member, const host::Arguments& arguments) {
    return invoke(member, DISPATCH_PROPERTYGET | DISPATCH_METHOD, arguments);
}

void DispatchObject::put(host::Member member, const host::Value& value) {
    invoke(member, DISPATCH_PROPERTYPUT, {&value, 1});
}

host::Value DispatchObject::call(host::Member member, const host::Arguments& arguments) {
    return invoke(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments);
}

host::Subscription DispatchObject::advise(host::EventSource source, host::EventHandler handler) {
    return win32::advise(dispatch_.get(), source, std::move(handler));
}

bool DispatchObject::is_same(const host::Object& other) const {
    const auto* object = dynamic_cast<const DispatchObject*>(&other);
    return object && identity_of(dispatch_) == identity_of(object->dispatch_);
}

DISPID DispatchObject::identifier(host::Member member) const {
    std::wstring name = wide(member.name);
    LPOLESTR names[] = {name.data()};
    DISPID id = DISPID_UNKNOWN;
    if (FAILED(dispatch_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id)))
        throw host::Error(u"Object doesn't support this property or method", member.full_name(),
                          DISP_E_UNKNOWNNAME);
    return id;
}

host::Value DispatchObject::invoke(host::Member member, WORD how, std::span<const host::Value> arguments) {
    const DISPID id = identifier(member);
    CallArguments values(arguments);
    DISPID put_name = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{values.first(), nullptr, values.count(), 0};
    const bool putting = how == DISPATCH_PROPERTYPUT;
    if (putting) {
        parameters.rgdispidNamedArgs = &put_name;
        parameters.cNamedArgs = 1;
    }
    Variant result;
    Exception exception;
    const HRESULT outcome = dispatch_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, how, &parameters,
                                              putting ? nullptr : result.address(), exception.out(), nullptr);
    if (outcome == DISP_E_EXCEPTION)
        throw host::Error(exception.description(), member.full_name(), exception.code());
    if (FAILED(outcome))
        throw host::Error(system_message(static_cast<DWORD>(outcome)), member.full_name(), outcome);
    values.hand_over(arguments);
    return to_value(std::move(result));
}

host::ObjectPtr object_of(IUnknown* unknown) {
    if (!unknown) return nullptr;
    ComPtr<IDispatch> dispatch;
    if (FAILED(unknown->QueryInterface(IID_IDispatch, dispatch.out_untyped())))
        throw host::Error(u"Type mismatch");
    return std::make_shared<DispatchObject>(std::move(dispatch));
}

ComPtr<IDispatch> dispatch_of(const host::ObjectPtr& object) {
    if (!object) return {};
    const auto* automation = dynamic_cast<const DispatchObject*>(object.get());
    if (!automation) throw host::Error(u"Type mismatch");
    return automation->dispatch();
}

void check(HRESULT result) {
    if (FAILED(result)) throw host::Error(system_message(static_cast<DWORD>(result)), {}, result);
}

} // namespace ornavel::win32
