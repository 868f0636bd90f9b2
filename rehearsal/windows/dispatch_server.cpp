#include "rehearsal/windows/dispatch_server.h"

#include "rehearsal/windows/event_point.h"
#include "rehearsal/windows/served_values.h"
#include "win32/events.h"
#include "win32/wide.h"

#include <algorithm>
#include <ocidl.h>
#include <olectl.h>

namespace ornavel::rehearsal {
namespace {

/// Numbers for the names of members, the same for every object; whether an object has a member shows when it
/// is used.
class MemberNumbers {
public:
    DISPID number(TextView name) {
        auto found = std::ranges::find_if(names_, [&](const Text& known) { return same_name(known, name); });
        if (found == names_.end()) found = names_.insert(names_.end(), Text(name));
        return static_cast<DISPID>(found - names_.begin()) + 1;
    }
    const Text& name(DISPID number) const { return names_.at(static_cast<std::size_t>(number) - 1); }

private:
    std::vector<Text> names_;
};

MemberNumbers members;

HRESULT describe(EXCEPINFO* exception) {
    if (exception) {
        *exception = {};
        exception->bstrDescription = win32::Bstr(current_description()).release();
        exception->scode = E_FAIL;
    }
    return DISP_E_EXCEPTION;
}

class DispatchServer;

/// The objects that the add-in holds now: asked for again, an object is the same one, as COM's identity wants
/// it.
std::vector<DispatchServer*> servers;

class DispatchServer final : public win32::Counted<IDispatch>,
                             public IConnectionPointContainer,
                             public ServedObject {
public:
    DispatchServer(host::ObjectPtr object, std::shared_ptr<Subscriptions> subscriptions)
        : object_(std::move(object)), subscriptions_(std::move(subscriptions)) {
        servers.push_back(this);
    }
    ~DispatchServer() override { std::erase(servers, this); }

    host::ObjectPtr object() const override { return object_; }
    bool serves(const host::Object& object) const { return object_->is_same(object); }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** result) override {
        if (wanted == IID_IConnectionPointContainer)
            return give(static_cast<IConnectionPointContainer*>(this), result);
        if (wanted == IID_ServedObject) return give(static_cast<ServedObject*>(this), result);
        return answer(wanted == IID_IUnknown || wanted == IID_IDispatch, result);
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return Counted::AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return Counted::Release(); }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        if (count != 1) return DISP_E_UNKNOWNNAME;
        ids[0] = members.number(win32::text_of(names[0]));
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD how, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT*) override {
        try {
            use(members.name(id), how, *parameters, result);
            return S_OK;
        } catch (...) {
            return describe(exception);
        }
    }

    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID wanted, IConnectionPoint** point) override {
        using host::EventSource;
        for (const auto source : {EventSource::application, EventSource::explorers, EventSource::explorer,
                                  EventSource::inspectors, EventSource::inspector, EventSource::button})
            if (wanted == win32::event_interface(source)) {
                *point = make_event_point(object_, source, subscriptions_).release();
                return S_OK;
            }
        *point = nullptr;
        return CONNECT_E_NOCONNECTION;
    }

private:
    HRESULT give(IUnknown* face, void** result) {
        *result = face;
        AddRef();
        return S_OK;
    }

    void use(const Text& name, WORD how, DISPPARAMS& parameters, VARIANT* result) {
        const host::Member member{name.c_str()};
        ServedArguments arguments(parameters);
        const auto& values = arguments.values();
        if (how & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) {
            if (values.size() != 1)
                throw host::Error(u"Wrong number of arguments or invalid property assignment");
            object_->put(member, values[0]);
            return;
        }
        const host::Value value =
            how & DISPATCH_PROPERTYGET ? object_->get(member, values) : object_->call(member, values);
        arguments.give_back_results(subscriptions_);
        if (result) *result = served_variant(value, subscriptions_).release();
    }

    host::ObjectPtr object_;
    std::shared_ptr<Subscriptions> subscriptions_;
};

} // namespace

DWORD Subscriptions::add(host::Subscription subscription) {
    kept_.emplace(++last_, std::move(subscription));
    return last_;
}

win32::ComPtr<IDispatch> serve(host::ObjectPtr object, std::shared_ptr<Subscriptions> subscriptions) {
    if (!object) return {};
    const auto known = std::ranges::find_if(servers, [&](const auto* each) { return each->serves(*object); });
    if (known != servers.end()) return win32::ComPtr<IDispatch>(*known);
    return win32::ComPtr<IDispatch>::adopt(new DispatchServer(std::move(object), std::move(subscriptions)));
}

} // namespace ornavel::rehearsal
