#include "tests/win32/fake_browser.h"

#include "win32/values.h"
#include "win32/wide.h"

#include <idispids.h>
#include <mshtmdid.h>
#include <olectl.h>

namespace ornavel::win32 {
namespace {

constexpr CLSID class_of_control{
    0x8856F961, 0x340A, 0x11D0, {0xA9, 0x6B, 0x00, 0xC0, 0x4F, 0xD7, 0x05, 0xA2}};
constexpr IID browser_events{0x34A715A0, 0x6587, 0x11D0, {0x92, 0x4A, 0x00, 0x20, 0xAF, 0xC7, 0xAC, 0x4D}};

VARIANT by_reference(VARIANT_BOOL& flag) {
    VARIANT made{};
    made.vt = VT_BYREF | VT_BOOL;
    made.pboolVal = &flag;
    return made;
}

VARIANT by_reference(VARIANT& value) {
    VARIANT made{};
    made.vt = VT_BYREF | VT_VARIANT;
    made.pvarVal = &value;
    return made;
}

class Factory final : public Counted<IClassFactory> {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override {
        return answer(wanted == IID_IUnknown || wanted == IID_IClassFactory, object);
    }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID wanted, void** object) override {
        const auto made = ComPtr<FakeBrowser>::adopt(new FakeBrowser);
        return made->QueryInterface(wanted, object);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
};

} // namespace

FakeBrowser* FakeBrowser::current = nullptr;

FakeBrowserClass::FakeBrowserClass() {
    const auto factory = ComPtr<Factory>::adopt(new Factory);
    CoRegisterClassObject(class_of_control, factory.get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                          &cookie_);
}

HRESULT FakeBrowser::QueryInterface(REFIID wanted, void** object) {
    *object = nullptr;
    if (wanted == IID_IUnknown || wanted == IID_IOleObject) *object = static_cast<IOleObject*>(this);
    if (wanted == IID_IOleInPlaceObject) *object = static_cast<IOleInPlaceObject*>(this);
    if (wanted == IID_IOleInPlaceActiveObject) *object = static_cast<IOleInPlaceActiveObject*>(this);
    if (wanted == IID_IDispatch) *object = static_cast<IDispatch*>(this);
    if (wanted == IID_IConnectionPointContainer) *object = static_cast<IConnectionPointContainer*>(this);
    if (!*object) return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

LONG FakeBrowser::surroundings(DISPID id) const {
    ComPtr<IDispatch> ambient;
    if (FAILED(site->QueryInterface(IID_IDispatch, ambient.out_untyped()))) return 0;
    Variant answer;
    DISPPARAMS none{};
    ambient->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, answer.address(), nullptr,
                    nullptr);
    return answer->vt == VT_BOOL ? answer->boolVal : answer->lVal;
}

HRESULT FakeBrowser::SetClientSite(IOleClientSite* given) {
    site = ComPtr<IOleClientSite>(given);
    if (!site) return S_OK;
    downloads = surroundings(DISPID_AMBIENT_DLCONTROL);
    silent = surroundings(DISPID_AMBIENT_SILENT);
    offline = surroundings(DISPID_AMBIENT_OFFLINEIFNOTCONNECTED);
    return S_OK;
}

void FakeBrowser::activate(const RECT& place) {
    ComPtr<IOleInPlaceSite> in_place;
    if (FAILED(site->QueryInterface(IID_IOleInPlaceSite, in_place.out_untyped()))) return;
    HWND parent = nullptr;
    in_place->GetWindow(&parent);
    ComPtr<IOleInPlaceUIWindow> document;
    RECT own, clip;
    OLEINPLACEFRAMEINFO information{};
    information.cb = sizeof information;
    in_place->GetWindowContext(frame.out(), document.out(), &own, &clip, &information);
    in_place->OnInPlaceActivate();
    window = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, place.left, place.top, place.right,
                             place.bottom, parent, nullptr, nullptr, nullptr);
}

HRESULT FakeBrowser::DoVerb(LONG verb, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT place) {
    if (!window) activate(*place);
    if (verb != OLEIVERB_UIACTIVATE) return S_OK;
    frame->SetActiveObject(static_cast<IOleInPlaceActiveObject*>(this), L"page");
    SetFocus(window);
    return S_OK;
}

HRESULT FakeBrowser::Close(DWORD) {
    if (frame) frame->SetActiveObject(nullptr, nullptr);
    frame = {};
    if (window) DestroyWindow(window);
    window = nullptr;
    return S_OK;
}

HRESULT FakeBrowser::GetWindow(HWND* own) {
    *own = window;
    return S_OK;
}

HRESULT FakeBrowser::SetObjectRects(LPCRECT place, LPCRECT) {
    SetWindowPos(window, nullptr, 0, 0, place->right, place->bottom, SWP_NOMOVE | SWP_NOZORDER);
    return S_OK;
}

HRESULT FakeBrowser::TranslateAccelerator(LPMSG message) {
    if (message->message != WM_KEYDOWN) return S_FALSE;
    keys.push_back(message->wParam);
    return own_keys.contains(message->wParam) ? S_OK : S_FALSE;
}

HRESULT FakeBrowser::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) {
    if (std::wstring_view(names[0]) != L"Navigate") return DISP_E_UNKNOWNNAME;
    ids[0] = 1;
    return S_OK;
}

HRESULT FakeBrowser::Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) {
    pages.push_back(host::as_text(to_value(parameters->rgvarg[0])));
    return S_OK;
}

HRESULT FakeBrowser::FindConnectionPoint(REFIID wanted, IConnectionPoint** point) {
    if (wanted != browser_events) return CONNECT_E_NOCONNECTION;
    *point = this;
    AddRef();
    return S_OK;
}

HRESULT FakeBrowser::Advise(IUnknown* listener, DWORD* cookie) {
    *cookie = 1;
    return listener->QueryInterface(browser_events, sink.out_untyped());
}

HRESULT FakeBrowser::Unadvise(DWORD) {
    sink = {};
    return S_OK;
}

bool FakeBrowser::is_allowed(DISPID event, std::vector<VARIANT> last_argument_first,
                             VARIANT_BOOL& cancel) const {
    DISPPARAMS parameters{last_argument_first.data(), nullptr, static_cast<UINT>(last_argument_first.size()),
                          0};
    if (sink)
        sink->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr,
                     nullptr);
    return cancel == VARIANT_FALSE;
}

bool FakeBrowser::may_go_to(TextView address) {
    VARIANT_BOOL cancel = VARIANT_FALSE;
    Bstr text(address);
    VARIANT url{}, empty{}, browser{};
    url.vt = VT_BSTR;
    url.bstrVal = text.get();
    browser.vt = VT_DISPATCH;
    browser.pdispVal = this;
    return is_allowed(DISPID_BEFORENAVIGATE2,
                      {by_reference(cancel), by_reference(empty), by_reference(empty), by_reference(empty),
                       by_reference(empty), by_reference(url), browser},
                      cancel);
}

bool FakeBrowser::may_open_window(DISPID event) {
    VARIANT_BOOL cancel = VARIANT_FALSE;
    IDispatch* opened = nullptr;
    VARIANT other{}, flags{}, from{}, to{};
    other.vt = VT_BYREF | VT_DISPATCH;
    other.ppdispVal = &opened;
    flags.vt = VT_I4;
    from.vt = to.vt = VT_BSTR;
    if (event == DISPID_NEWWINDOW2) return is_allowed(event, {by_reference(cancel), other}, cancel);
    return is_allowed(event, {to, from, flags, by_reference(cancel), other}, cancel);
}

} // namespace ornavel::win32
