#pragma once

#include "host/object.h"
#include "win32/com.h"

namespace ornavel::win32 {

/// A host object that is reached through IDispatch, by the names of its members.
class DispatchObject final : public host::Object {
public:
    explicit DispatchObject(ComPtr<IDispatch> dispatch) : dispatch_(std::move(dispatch)) {}

    host::Value get(host::Member member, const host::Arguments& arguments) override;
    void put(host::Member member, const host::Value& value) override;
    host::Value call(host::Member member, const host::Arguments& arguments) override;
    host::Subscription advise(host::EventSource source, host::EventHandler handler) override;
    /// By the identity of COM: whatever interfaces the two were reached by.
    bool is_same(const host::Object& other) const override;

    const ComPtr<IDispatch>& dispatch() const { return dispatch_; }

private:
    DISPID identifier(host::Member member) const;
    host::Value invoke(host::Member member, WORD how, std::span<const host::Value> arguments);

    ComPtr<IDispatch> dispatch_;
};

/// The object behind any of its interfaces; null is "Nothing". Throws host::Error when it has no IDispatch.
host::ObjectPtr object_of(IUnknown* unknown);

/// The interface behind an object; "Nothing" is null. Throws host::Error when it is not one of automation's.
ComPtr<IDispatch> dispatch_of(const host::ObjectPtr& object);

/// Throws host::Error with the system's description when the result is a failure.
void check(HRESULT result);

} // namespace ornavel::win32
