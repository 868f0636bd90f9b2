#include "shell/add_in.h"
#include "shell/registration.h"
#include "win32/this_module.h"
#include "win32/wide.h"

#include <new>
#include <olectl.h>

namespace ornavel::shell {
namespace {

class AddInFactory final : public win32::Counted<IClassFactory> {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override {
        return answer(wanted == IID_IUnknown || wanted == IID_IClassFactory, object);
    }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID wanted, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (outer) return CLASS_E_NOAGGREGATION;
        win32::ComPtr<AddIn> add_in;
        if (!attempt([&] { add_in = win32::ComPtr<AddIn>::adopt(new AddIn); })) return E_OUTOFMEMORY;
        return add_in->QueryInterface(wanted, object);
    }

    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
        lock ? win32::ModuleUse::begin() : win32::ModuleUse::end();
        return S_OK;
    }
};

} // namespace
} // namespace ornavel::shell

using namespace ornavel;
using namespace ornavel::shell;

STDAPI DllGetClassObject(REFCLSID class_id, REFIID wanted, void** object) {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (class_id != CLSID_Connect) return CLASS_E_CLASSNOTAVAILABLE;
    const auto factory = win32::ComPtr<AddInFactory>::adopt(new (std::nothrow) AddInFactory);
    return factory ? factory->QueryInterface(wanted, object) : E_OUTOFMEMORY;
}

STDAPI DllCanUnloadNow() { return win32::ModuleUse::any() ? S_FALSE : S_OK; }

STDAPI DllRegisterServer() {
    return attempt([] { register_add_in(win32::path_of(win32::this_module())); }) ? S_OK : SELFREG_E_CLASS;
}

STDAPI DllUnregisterServer() { return attempt(unregister_add_in) ? S_OK : SELFREG_E_CLASS; }
