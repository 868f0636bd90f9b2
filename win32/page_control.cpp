#include "win32/page_control.h"

#include "host/application.h"
#include "win32/dispatch_object.h"
#include "win32/wide.h"

namespace ornavel::win32 {
namespace {

/// Lives in place as soon as it is seen, and is told its site before anything else.
constexpr DWORD what_it_is = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE | OLEMISC_INSIDEOUT |
                             OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_SETCLIENTSITEFIRST;

struct MemberName {
    TextView name;
    DISPID id;
};

constexpr MemberName members[] = {
    {u"GetPageInfo", id_of_GetPageInfo}, {u"Dirty", id_of_Dirty}, {u"Apply", id_of_Apply}};

DISPID find_member(TextView name) {
    for (const auto& member : members)
        if (same_name(member.name, name)) return member.id;
    return DISPID_UNKNOWN;
}

/// In hundredths of a millimetre, as containers count.
LONG in_himetric(int twips) { return MulDiv(twips, 2540, 1440); }

} // namespace

HRESULT PageControl::QueryInterface(REFIID wanted, void** object) {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (wanted == IID_IUnknown || wanted == IID_IDispatch || wanted == IID_PropertyPage)
        *object = static_cast<PropertyPage*>(this);
    else if (wanted == IID_IOleObject)
        *object = static_cast<IOleObject*>(this);
    else if (wanted == IID_IOleInPlaceObject || wanted == IID_IOleWindow)
        *object = static_cast<IOleInPlaceObject*>(this);
    else if (wanted == IID_IOleInPlaceActiveObject)
        *object = static_cast<IOleInPlaceActiveObject*>(this);
    else if (wanted == IID_IOleControl)
        *object = static_cast<IOleControl*>(this);
    else if (wanted == IID_IPersistStreamInit || wanted == IID_IPersist)
        *object = static_cast<IPersistStreamInit*>(this);
    if (!*object) return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

HRESULT PageControl::GetTypeInfoCount(UINT* count) {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT PageControl::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    if (!names || !ids || count == 0) return E_INVALIDARG;
    // The first name is the member's; its parameters have no names here.
    for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
    attempt([&] { ids[0] = find_member(text_of(names[0])); });
    return count > 1 || ids[0] == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT PageControl::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) {
    switch (id) {
    case id_of_GetPageInfo:
        return GetPageInfo(nullptr, nullptr);
    case id_of_Apply:
        return Apply();
    case id_of_Dirty:
        if (!result) return E_POINTER;
        result->vt = VT_BOOL;
        return get_Dirty(&result->boolVal);
    default:
        return DISP_E_MEMBERNOTFOUND;
    }
}

HRESULT PageControl::get_Dirty(VARIANT_BOOL* Dirty) {
    if (!Dirty) return E_POINTER;
    *Dirty = VARIANT_FALSE;
    attempt([&] { *Dirty = is_dirty() ? VARIANT_TRUE : VARIANT_FALSE; });
    return S_OK;
}

/// The dialog closes whatever the answer is; the user has been told what could not be written.
HRESULT PageControl::Apply() {
    const ComPtr<IOleObject> kept(this);
    attempt([&] { apply(); });
    return S_OK;
}

HRESULT PageControl::SetClientSite(IOleClientSite* site) {
    if (!site) end_window();
    site_ = ComPtr<IOleClientSite>(site);
    return S_OK;
}

HRESULT PageControl::GetClientSite(IOleClientSite** site) {
    if (!site) return E_POINTER;
    *site = ComPtr<IOleClientSite>(site_).release();
    return S_OK;
}

HRESULT PageControl::Close(DWORD) { return InPlaceDeactivate(); }

HRESULT PageControl::DoVerb(LONG verb, LPMSG message, IOleClientSite*, LONG, HWND parent, LPCRECT place) {
    switch (verb) {
    case OLEIVERB_SHOW:
    case OLEIVERB_INPLACEACTIVATE:
        return show(parent, place);
    case OLEIVERB_PRIMARY:
    case OLEIVERB_UIACTIVATE: {
        const HRESULT shown = show(parent, place);
        return SUCCEEDED(shown) ? take_keyboard(message) : shown;
    }
    case OLEIVERB_HIDE:
        return InPlaceDeactivate();
    default:
        return verb > 0 ? OLEOBJ_S_INVALIDVERB : E_NOTIMPL;
    }
}

HRESULT PageControl::SetExtent(DWORD aspect, SIZEL* extent) {
    if (!extent) return E_POINTER;
    if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
    extent_ = *extent;
    return S_OK;
}

HRESULT PageControl::GetExtent(DWORD aspect, SIZEL* extent) {
    if (!extent) return E_POINTER;
    if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
    const auto room = form().room();
    *extent = extent_.cx > 0 ? extent_ : SIZEL{in_himetric(room.width), in_himetric(room.height)};
    return S_OK;
}

HRESULT PageControl::GetMiscStatus(DWORD aspect, DWORD* status) {
    if (!status) return E_POINTER;
    *status = aspect == DVASPECT_CONTENT ? what_it_is : 0;
    return S_OK;
}

HRESULT PageControl::GetSizeMax(ULARGE_INTEGER* size) {
    if (!size) return E_POINTER;
    size->QuadPart = 0;
    return S_OK;
}

/// Outside the dialog, too, a change is none of this control's errors.
void PageControl::tell_change() {
    ComPtr<IDispatch> dialog;
    if (!site_ || FAILED(site_->QueryInterface(IID_PropertyPageSite, dialog.out_untyped()))) return;
    attempt([&] { host::PropertyPageSite(object_of(dialog.get())).on_status_change(); });
}

} // namespace ornavel::win32
