#include "rehearsal/windows/page_site.h"

#include "win32/browser_frame.h"
#include "win32/property_page.h"
#include "win32/wide.h"

namespace ornavel::rehearsal {
namespace {

constexpr DISPID id_of_OnStatusChange = 0x2100;

} // namespace

HRESULT PageSite::QueryInterface(REFIID wanted, void** object) {
    *object = nullptr;
    if (wanted == IID_IUnknown || wanted == IID_IOleClientSite)
        *object = static_cast<IOleClientSite*>(this);
    else if (wanted == IID_IOleInPlaceSite || wanted == IID_IOleWindow)
        *object = static_cast<IOleInPlaceSite*>(this);
    else if (wanted == IID_IOleControlSite)
        *object = static_cast<IOleControlSite*>(this);
    else if (wanted == IID_IDispatch || wanted == win32::IID_PropertyPageSite)
        *object = static_cast<IDispatch*>(this);
    if (!*object) return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

HRESULT PageSite::GetContainer(IOleContainer** container) {
    *container = nullptr;
    return E_NOINTERFACE;
}

HRESULT PageSite::GetWindow(HWND* window) {
    *window = window_;
    return S_OK;
}

HRESULT PageSite::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, RECT* place,
                                   RECT* clip, OLEINPLACEFRAMEINFO* information) {
    *document = nullptr;
    *frame = new win32::BrowserFrame(window_);
    GetClientRect(window_, place);
    *clip = *place;
    information->fMDIApp = FALSE;
    information->hwndFrame = window_;
    information->haccel = nullptr;
    information->cAccelEntries = 0;
    return S_OK;
}

HRESULT PageSite::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}

HRESULT PageSite::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) {
    const bool known = same_name(win32::text_of(names[0]), u"OnStatusChange");
    ids[0] = known ? id_of_OnStatusChange : DISPID_UNKNOWN;
    return known ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT PageSite::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) {
    if (id != id_of_OnStatusChange) return DISP_E_MEMBERNOTFOUND;
    on_status_change_();
    return S_OK;
}

} // namespace ornavel::rehearsal
