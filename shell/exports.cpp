#include "shell/add_in.h"
#include "shell/options_page.h"
#include "shell/registration.h"
#include "win32/this_module.h"
#include "win32/wide.h"

#include <new>
#include <olectl.h>

namespace ornavel::shell {
namespace {

/// Makes an object and gives the interface that is asked for.
using Maker = HRESULT (*)(REFIID wanted, void** object);

template <class Kind>
HRESULT make(REFIID wanted, void** object) {
    return win32::ComPtr<Kind>::adopt(new Kind)->QueryInterface(wanted, object);
}

class Factory final : public win32::Counted<IClassFactory> {
public:
    explicit Factory(Maker maker) : make_(maker) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override {
        return answer(wanted == IID_IUnknown || wanted == IID_IClassFactory, object);
    }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID wanted, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (outer) return CLASS_E_NOAGGREGATION;
        HRESULT made = E_OUTOFMEMORY;
        attempt([&] { made = make_(wanted, object); });
        return made;
    }

    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
        lock ? win32::ModuleUse::begin() : win32::ModuleUse::end();
        return S_OK;
    }

private:
    Maker make_;
};

HRESULT give_factory(Maker maker, REFIID wanted, void** object) {
    const auto factory = win32::ComPtr<Factory>::adopt(new (std::nothrow) Factory(maker));
    return factory ? factory->QueryInterface(wanted, object) : E_OUTOFMEMORY;
}

} // namespace
} // namespace ornavel::shell

using namespace ornavel;
using namespace ornavel::shell;

STDAPI DllGetClassObject(REFCLSID class_id, REFIID wanted, void** object) {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (class_id == CLSID_Connect) return give_factory(make<AddIn>, wanted, object);
    if (class_id == CLSID_PropPage) return give_factory(make<OptionsPage>, wanted, object);
    return CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() { return win32::ModuleUse::any() ? S_FALSE : S_OK; }

STDAPI DllRegisterServer() {
    return attempt([] { register_add_in(win32::path_of(win32::this_module())); }) ? S_OK : SELFREG_E_CLASS;
}

STDAPI DllUnregisterServer() { return attempt(unregister_add_in) ? S_OK : SELFREG_E_CLASS; }
