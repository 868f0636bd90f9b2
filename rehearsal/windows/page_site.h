#pragma once

#include "win32/com.h"

#include <functional>
#include <ole2.h>
#include <olectl.h>

namespace ornavel::rehearsal {

/// The Options dialog as a control in it sees it: the place where it stands, and who is told of changes and
/// of keys that it has no use for.
class PageSite final : public win32::Counted<IOleClientSite>,
                       public IOleInPlaceSite,
                       public IOleControlSite,
                       public IDispatch {
public:
    PageSite(HWND window, std::function<void()> on_status_change)
        : window_(window), on_status_change_(std::move(on_status_change)) {}

    int keys_given_back = 0;
    bool is_active = false;   ///< the control has the keyboard
    bool is_in_place = false; ///< the control has a window here

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return Counted::AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return Counted::Release(); }

    // IOleClientSite
    HRESULT STDMETHODCALLTYPE SaveObject() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** container) override;
    HRESULT STDMETHODCALLTYPE ShowObject() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }

    // IOleWindow
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }

    // IOleInPlaceSite
    HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override {
        is_in_place = true;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnUIActivate() override {
        is_active = true;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                                               RECT* place, RECT* clip,
                                               OLEINPLACEFRAMEINFO* information) override;
    HRESULT STDMETHODCALLTYPE Scroll(SIZE) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL) override {
        is_active = false;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override {
        is_in_place = false;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT) override { return S_OK; }

    // IOleControlSite
    HRESULT STDMETHODCALLTYPE OnControlInfoChanged() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE LockInPlaceActive(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*, DWORD) override {
        ++keys_given_back;
        return S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE OnFocus(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE ShowPropertyFrame() override { return E_NOTIMPL; }

    // IDispatch: PropertyPageSite, as far as a page uses it.
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override;

private:
    HWND window_;
    std::function<void()> on_status_change_;
};

} // namespace ornavel::rehearsal
