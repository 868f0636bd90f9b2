#include "rehearsal/windows/event_point.h"

#include "rehearsal/windows/served_values.h"
#include "win32/events.h"
#include "win32/wide.h"

#include <olectl.h>

namespace ornavel::rehearsal {
namespace {

/// The arguments of one event on their way to a sink. Flags go by reference, and may come back changed.
class EventArguments {
public:
    EventArguments(std::span<host::Value> values, const std::shared_ptr<Subscriptions>& subscriptions)
        : values_(values), flags_(values.size()), variants_(values.size()) {
        for (std::size_t i = 0; i < values.size(); ++i) {
            win32::Variant& variant = variants_[values.size() - 1 - i];
            variant = served_variant(values[i], subscriptions);
            if (variant->vt != VT_BOOL) continue;
            flags_[i] = variant->boolVal;
            variant->vt = VT_BYREF | VT_BOOL;
            variant->pboolVal = &flags_[i];
        }
    }

    DISPPARAMS parameters() {
        return {variants_.empty() ? nullptr : variants_.front().address(), nullptr,
                static_cast<UINT>(variants_.size()), 0};
    }

    void take_back_flags() {
        for (std::size_t i = 0; i < values_.size(); ++i)
            if (std::holds_alternative<bool>(values_[i])) values_[i] = flags_[i] != VARIANT_FALSE;
    }

private:
    std::span<host::Value> values_;
    std::vector<VARIANT_BOOL> flags_;
    std::vector<win32::Variant> variants_;
};

void tell(IDispatch& sink, DISPID event, EventArguments arguments) {
    DISPPARAMS parameters = arguments.parameters();
    const HRESULT outcome = sink.Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                                        nullptr, nullptr, nullptr);
    if (FAILED(outcome)) win32::fail(u"an event handler of the add-in", static_cast<DWORD>(outcome));
    arguments.take_back_flags();
}

class EventPoint final : public win32::Counted<IConnectionPoint> {
public:
    EventPoint(host::ObjectPtr object, host::EventSource source, std::shared_ptr<Subscriptions> subscriptions)
        : object_(std::move(object)), source_(source), subscriptions_(std::move(subscriptions)) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** result) override {
        return answer(wanted == IID_IUnknown || wanted == IID_IConnectionPoint, result);
    }
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* wanted) override {
        *wanted = win32::event_interface(source_);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* listener, DWORD* cookie) override {
        win32::ComPtr<IDispatch> sink;
        if (FAILED(listener->QueryInterface(win32::event_interface(source_), sink.out_untyped())))
            return CONNECT_E_CANNOTCONNECT;
        const bool advised =
            attempt([&] { *cookie = subscriptions_->add(object_->advise(source_, teller(sink))); });
        return advised ? S_OK : CONNECT_E_CANNOTCONNECT;
    }
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override {
        return subscriptions_->remove(cookie) ? S_OK : CONNECT_E_NOCONNECTION;
    }
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }

private:
    host::EventHandler teller(const win32::ComPtr<IDispatch>& sink) const {
        // Weak: the subscriptions keep this handler.
        return [sink, source = source_, kept = std::weak_ptr(subscriptions_)](TextView event,
                                                                              std::span<host::Value> values) {
            const auto id = win32::event_id(source, event);
            if (id) tell(*win32::ComPtr<IDispatch>(sink).get(), *id, EventArguments(values, kept.lock()));
        };
    }

    host::ObjectPtr object_;
    host::EventSource source_;
    std::shared_ptr<Subscriptions> subscriptions_;
};

} // namespace

win32::ComPtr<IConnectionPoint> make_event_point(host::ObjectPtr object, host::EventSource source,
                                                 std::shared_ptr<Subscriptions> subscriptions) {
    return win32::ComPtr<IConnectionPoint>::adopt(
        new EventPoint(std::move(object), source, std::move(subscriptions)));
}

} // namespace ornavel::rehearsal
