#include "win32/event_sink.h"

#include "win32/connection.h"
#include "win32/events.h"
#include "win32/values.h"

namespace ornavel::win32 {
namespace {

/// The arguments in their order; automation passes the last one first.
std::vector<host::Value> in_order(const DISPPARAMS& parameters) {
    std::vector<host::Value> values;
    for (UINT i = parameters.cArgs; i-- > 0;) values.push_back(to_value(parameters.rgvarg[i]));
    return values;
}

void give_back_flags(const DISPPARAMS& parameters, const std::vector<host::Value>& values) {
    for (UINT i = 0; i < parameters.cArgs; ++i) {
        VARIANT_BOOL* flag = flag_behind(parameters.rgvarg[parameters.cArgs - 1 - i]);
        if (flag) *flag = host::as_flag(values[i]) ? VARIANT_TRUE : VARIANT_FALSE;
    }
}

class EventSink final : public Counted<IDispatch> {
public:
    EventSink(host::EventSource source, host::EventHandler handler)
        : source_(source), handler_(std::make_shared<host::EventHandler>(std::move(handler))) {}

    void disconnect() { handler_.reset(); }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override {
        return answer(wanted == IID_IUnknown || wanted == IID_IDispatch || wanted == event_interface(source_),
                      object);
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (count) *count = 0;
        return count ? S_OK : E_POINTER;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*,
                                     EXCEPINFO*, UINT*) override {
        attempt([&] { pass_on(id, parameters ? *parameters : DISPPARAMS{}); });
        return S_OK;
    }

private:
    void pass_on(DISPID id, const DISPPARAMS& parameters) {
        const auto name = event_name(source_, id);
        // The handler may drop its subscription, and this sink with it.
        const auto handler = handler_;
        if (!name || !handler) return;
        auto values = in_order(parameters);
        (*handler)(*name, values);
        give_back_flags(parameters, values);
    }

    host::EventSource source_;
    std::shared_ptr<host::EventHandler> handler_;
};

/// A connection whose handler is heard no more from its end on, also by a host that keeps the sink.
class Listening {
public:
    Listening(IUnknown* object, host::EventSource source, host::EventHandler handler)
        : sink_(ComPtr<EventSink>::adopt(new EventSink(source, std::move(handler)))),
          connection_(object, event_interface(source), sink_.get()) {}
    ~Listening() { sink_->disconnect(); }
    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;

private:
    ComPtr<EventSink> sink_;
    Connection connection_;
};

} // namespace

host::Subscription advise(IUnknown* object, host::EventSource source, host::EventHandler handler) {
    return std::make_shared<Listening>(object, source, std::move(handler));
}

} // namespace ornavel::win32
