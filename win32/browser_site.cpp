#include "win32/browser_site.h"

#include <mshtmdid.h>

namespace ornavel::win32 {

RECT BrowserSite::area() const {
    RECT area{};
    GetClientRect(window_, &area);
    return area;
}

HRESULT STDMETHODCALLTYPE BrowserSite::QueryInterface(REFIID wanted, void** object) {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (wanted == IID_IUnknown || wanted == IID_IOleClientSite)
        *object = static_cast<IOleClientSite*>(this);
    else if (wanted == IID_IOleInPlaceSite || wanted == IID_IOleWindow)
        *object = static_cast<IOleInPlaceSite*>(this);
    else if (wanted == IID_IDispatch)
        *object = static_cast<IDispatch*>(this);
    if (!*object) return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

ULONG STDMETHODCALLTYPE BrowserSite::Release() {
    const LONG left = InterlockedDecrement(&references_);
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
}

HRESULT STDMETHODCALLTYPE BrowserSite::GetContainer(IOleContainer** container) {
    if (container) *container = nullptr;
    return container ? E_NOINTERFACE : E_POINTER;
}

HRESULT STDMETHODCALLTYPE BrowserSite::GetWindow(HWND* window) {
    if (!window) return E_POINTER;
    *window = window_;
    return S_OK;
}

HRESULT STDMETHODCALLTYPE BrowserSite::GetWindowContext(IOleInPlaceFrame** frame,
                                                        IOleInPlaceUIWindow** document, RECT* place,
                                                        RECT* clip, OLEINPLACEFRAMEINFO* information) {
    if (!frame || !document || !place || !clip || !information) return E_POINTER;
    AddRef();
    *frame = this;
    *document = nullptr;
    *place = *clip = area();
    information->fMDIApp = FALSE;
    information->hwndFrame = GetParent(window_);
    information->haccel = nullptr;
    information->cAccelEntries = 0;
    return S_OK;
}

HRESULT STDMETHODCALLTYPE BrowserSite::GetTypeInfoCount(UINT* count) {
    if (count) *count = 0;
    return count ? S_OK : E_POINTER;
}

HRESULT STDMETHODCALLTYPE BrowserSite::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result,
                                              EXCEPINFO*, UINT*) {
    if (id != DISPID_AMBIENT_DLCONTROL || !result) return DISP_E_MEMBERNOTFOUND;
    result->vt = VT_I4;
    result->lVal = DLCTL_DLIMAGES | DLCTL_VIDEOS | DLCTL_BGSOUNDS | DLCTL_NO_SCRIPTS | DLCTL_NO_JAVA |
                   DLCTL_NO_DLACTIVEXCTLS | DLCTL_NO_RUNACTIVEXCTLS | DLCTL_NO_BEHAVIORS;
    return S_OK;
}

} // namespace ornavel::win32
