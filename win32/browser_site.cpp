#include "win32/browser_site.h"

#include "win32/browser_frame.h"

#include <idispids.h>
#include <mshtmdid.h>
#include <new>

namespace ornavel::win32 {
namespace {

LONG downloads(bool follows_links) {
    constexpr LONG shown = DLCTL_DLIMAGES;
    constexpr LONG kept_still = DLCTL_SILENT | DLCTL_NO_CLIENTPULL | DLCTL_NO_SCRIPTS | DLCTL_NO_JAVA |
                                DLCTL_NO_DLACTIVEXCTLS | DLCTL_NO_RUNACTIVEXCTLS | DLCTL_NO_BEHAVIORS;
    return shown | kept_still | (follows_links ? 0 : DLCTL_FORCEOFFLINE);
}

} // namespace

HRESULT BrowserSite::QueryInterface(REFIID wanted, void** object) {
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

HRESULT BrowserSite::GetContainer(IOleContainer** container) {
    if (container) *container = nullptr;
    return container ? E_NOINTERFACE : E_POINTER;
}

HRESULT BrowserSite::GetWindow(HWND* window) {
    if (!window) return E_POINTER;
    *window = window_;
    return S_OK;
}

HRESULT BrowserSite::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, RECT* place,
                                      RECT* clip, OLEINPLACEFRAMEINFO* information) {
    if (!frame || !document || !place || !clip || !information) return E_POINTER;
    *document = nullptr;
    *frame = new (std::nothrow) BrowserFrame(GetParent(window_));
    if (!*frame) return E_OUTOFMEMORY;
    GetClientRect(window_, place);
    *clip = *place;
    information->fMDIApp = FALSE;
    information->hwndFrame = GetParent(window_);
    information->haccel = nullptr;
    information->cAccelEntries = 0;
    return S_OK;
}

HRESULT BrowserSite::GetTypeInfoCount(UINT* count) {
    if (count) *count = 0;
    return count ? S_OK : E_POINTER;
}

HRESULT BrowserSite::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) {
    if (!result) return DISP_E_MEMBERNOTFOUND;
    switch (id) {
    case DISPID_AMBIENT_DLCONTROL:
        result->vt = VT_I4;
        result->lVal = downloads(follows_links_);
        return S_OK;
    case DISPID_AMBIENT_SILENT:
        result->vt = VT_BOOL;
        result->boolVal = VARIANT_TRUE;
        return S_OK;
    case DISPID_AMBIENT_OFFLINEIFNOTCONNECTED:
        result->vt = VT_BOOL;
        result->boolVal = follows_links_ ? VARIANT_FALSE : VARIANT_TRUE;
        return S_OK;
    default:
        return DISP_E_MEMBERNOTFOUND;
    }
}

} // namespace ornavel::win32
