#pragma once

#include "win32/com.h"

#include <gtest/gtest.h>

#include <exdispid.h>
#include <ocidl.h>
#include <ole2.h>
#include <set>
#include <vector>

namespace ornavel::win32 {

/// A web browser control in the test's hands: it asks for its surroundings when it gets a site, stands in a
/// window of its own, notes where it is sent and which keys it is offered, and raises events.
class FakeBrowser final : public Counted<IOleObject>,
                          public IOleInPlaceObject,
                          public IOleInPlaceActiveObject,
                          public IDispatch,
                          public IConnectionPointContainer,
                          public IConnectionPoint {
public:
    /// The one that was made last, while it is in use.
    static FakeBrowser* current;

    FakeBrowser() { current = this; }
    ~FakeBrowser() override { current = nullptr; }

    std::vector<Text> pages;   ///< that it was sent to
    std::vector<WPARAM> keys;  ///< that it was offered
    std::set<WPARAM> own_keys; ///< that it uses
    HWND window = nullptr;
    ComPtr<IOleClientSite> site;
    ComPtr<IOleInPlaceFrame> frame;
    ComPtr<IDispatch> sink;
    /// The numbers that its surroundings answered when it got its site; 0 where there was no answer.
    LONG downloads = 0, silent = 0, offline = 0;

    /// Whether it may go to a page of its own accord, and open a window.
    bool may_go_to(TextView address);
    bool may_open_window(DISPID event);

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return Counted::AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return Counted::Release(); }

    // IOleObject
    HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* given) override;
    HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR, LPCOLESTR) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Close(DWORD) override;
    HRESULT STDMETHODCALLTYPE SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE InitFromData(IDataObject*, BOOL, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD, IDataObject**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DoVerb(LONG verb, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT place) override;
    HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Update() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE IsUpToDate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetUserType(DWORD, LPOLESTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetExtent(DWORD, SIZEL*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD, SIZEL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Advise(IAdviseSink*, DWORD*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD, DWORD*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE*) override { return E_NOTIMPL; }

    // IOleInPlaceObject and IOleInPlaceActiveObject
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* own) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE InPlaceDeactivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE UIDeactivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetObjectRects(LPCRECT place, LPCRECT clip) override;
    HRESULT STDMETHODCALLTYPE ReactivateAndUndo() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG message) override;
    HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return S_OK; }

    // IDispatch: the method Navigate
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                                     UINT*) override;

    // IConnectionPointContainer and IConnectionPoint
    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID wanted, IConnectionPoint** point) override;
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* listener, DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD) override;
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }

private:
    LONG surroundings(DISPID id) const;
    void activate(const RECT& place);
    bool is_allowed(DISPID event, std::vector<VARIANT> last_argument_first, VARIANT_BOOL& cancel) const;
};

/// For as long as this is kept, the system's web browser control is the fake.
class FakeBrowserClass {
public:
    FakeBrowserClass();
    ~FakeBrowserClass() { CoRevokeClassObject(cookie_); }
    FakeBrowserClass(const FakeBrowserClass&) = delete;
    FakeBrowserClass& operator=(const FakeBrowserClass&) = delete;

private:
    DWORD cookie_ = 0;
};

} // namespace ornavel::win32
