#pragma once

#include "win32/com.h"
#include "win32/values.h"

#include <algorithm>
#include <functional>
#include <ocidl.h>
#include <olectl.h>

namespace ornavel::win32 {

/// A call that reached the fake, with its arguments in their order.
struct Invocation {
    DISPID id = 0;
    WORD how = 0;
    bool names_its_value = false;
    std::vector<VARTYPE> types;
    host::Arguments arguments;
};

/// A host object in the test's hands. Its members are numbered from 1.
class FakeDispatch : public Counted<IDispatch>, public IConnectionPointContainer, public IConnectionPoint {
public:
    using Answer = std::function<HRESULT(const Invocation&, VARIANT*, EXCEPINFO*)>;

    std::vector<Text> members;
    std::vector<Invocation> invocations;
    Answer answer_call = [](const Invocation&, VARIANT*, EXCEPINFO*) { return S_OK; };
    IID event_interface = IID_NULL;
    ComPtr<IDispatch> sink;

    /// References other than the test's own.
    ULONG others() {
        AddRef();
        return Release() - 1;
    }

    /// Raises an event; the arguments come in their order.
    HRESULT raise(DISPID id, std::vector<VARIANT> arguments) {
        std::ranges::reverse(arguments);
        DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
        const ComPtr<IDispatch> kept = sink;
        return kept->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr,
                            nullptr);
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override {
        if (wanted == IID_IConnectionPointContainer && event_interface != IID_NULL) {
            *object = static_cast<IConnectionPointContainer*>(this);
            Counted::AddRef();
            return S_OK;
        }
        return answer(wanted == IID_IUnknown || wanted == IID_IDispatch, object);
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return Counted::AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return Counted::Release(); }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
        const std::wstring_view wanted = names[0];
        const auto found = std::ranges::find(members, Text(wanted.begin(), wanted.end()));
        ids[0] = found == members.end() ? DISPID_UNKNOWN : static_cast<DISPID>(found - members.begin()) + 1;
        return found == members.end() ? DISP_E_UNKNOWNNAME : S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD how, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT*) override {
        Invocation call{id,
                        how,
                        parameters->cNamedArgs == 1 && *parameters->rgdispidNamedArgs == DISPID_PROPERTYPUT,
                        {},
                        {}};
        for (UINT i = parameters->cArgs; i-- > 0;) {
            call.types.push_back(parameters->rgvarg[i].vt);
            call.arguments.push_back(to_value(parameters->rgvarg[i]));
        }
        invocations.push_back(call);
        return answer_call(call, result, exception);
    }

    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID wanted, IConnectionPoint** point) override {
        if (wanted != event_interface) return CONNECT_E_NOCONNECTION;
        *point = this;
        AddRef();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* listener, DWORD* cookie) override {
        *cookie = 7;
        return listener->QueryInterface(event_interface, sink.out_untyped());
    }
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override {
        if (cookie != 7) return CONNECT_E_NOCONNECTION;
        sink = {};
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }
};

inline ComPtr<FakeDispatch> make_fake(std::vector<Text> members = {}) {
    auto fake = ComPtr<FakeDispatch>::adopt(new FakeDispatch);
    fake->members = std::move(members);
    return fake;
}

} // namespace ornavel::win32
