#include "win32/web_browser.h"

#include "base/errors.h"
#include "host/browser.h"
#include "win32/dispatch_object.h"

namespace ornavel::win32 {
namespace {

constexpr CLSID CLSID_of_the_control{
    0x8856F961, 0x340A, 0x11D0, {0xA9, 0x6B, 0x00, 0xC0, 0x4F, 0xD7, 0x05, 0xA2}};

/// The property of the window that holds its browser.
constexpr const wchar_t* browser_property = L"Ornavel browser";

} // namespace

WebBrowser::WebBrowser(HWND window, bool follows_links)
    : window_(window), site_(ComPtr<BrowserSite>::adopt(new BrowserSite(window, follows_links))),
      events_(ComPtr<BrowserEvents>::adopt(new BrowserEvents(follows_links))) {
    check(CoCreateInstance(CLSID_of_the_control, nullptr, CLSCTX_INPROC_SERVER, IID_IOleObject,
                           control_.out_untyped()));
    check(control_->SetClientSite(site_.get()));
    do_verb(OLEIVERB_INPLACEACTIVATE);
    connection_.emplace(control_.get(), DIID_BrowserEvents, events_.get());
    SetPropW(window_, browser_property, this);
    const LONG_PTR before = SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    window_procedure_ = reinterpret_cast<WNDPROC>(before);
}

/// The control may keep its site and its events a while longer.
WebBrowser::~WebBrowser() {
    SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(window_procedure_));
    RemovePropW(window_, browser_property);
    connection_.reset();
    control_->Close(OLECLOSE_NOSAVE);
    control_->SetClientSite(nullptr);
}

void WebBrowser::do_verb(LONG verb) {
    RECT area;
    GetClientRect(window_, &area);
    check(control_->DoVerb(verb, nullptr, site_.get(), 0, window_, &area));
}

void WebBrowser::show(TextView page) {
    events_->expect(page);
    host::Browser(object_of(control_.get())).navigate(page);
}

void WebBrowser::fill_window() {
    ComPtr<IOleInPlaceObject> in_place;
    check(control_->QueryInterface(IID_IOleInPlaceObject, in_place.out_untyped()));
    RECT area;
    GetClientRect(window_, &area);
    check(in_place->SetObjectRects(&area, &area));
}

bool WebBrowser::has_keyboard() const {
    const HWND focus = GetFocus();
    return focus == window_ || IsChild(window_, focus);
}

bool WebBrowser::takes_key(const MSG& message) {
    ComPtr<IOleInPlaceActiveObject> page;
    MSG key = message;
    return SUCCEEDED(control_->QueryInterface(IID_IOleInPlaceActiveObject, page.out_untyped())) &&
           page->TranslateAccelerator(&key) == S_OK;
}

/// An active control doesn't always take the keyboard again by itself.
void WebBrowser::take_keyboard() {
    attempt([this] { do_verb(OLEIVERB_UIACTIVATE); });
    if (!IsChild(window_, GetFocus())) SetFocus(GetWindow(window_, GW_CHILD));
}

LRESULT CALLBACK WebBrowser::procedure(HWND window, UINT message, WPARAM word, LPARAM pointer) {
    auto* const self = static_cast<WebBrowser*>(GetPropW(window, browser_property));
    if (!self) return DefWindowProcW(window, message, word, pointer);
    if (message == WM_SETFOCUS) self->take_keyboard();
    return CallWindowProcW(self->window_procedure_, window, message, word, pointer);
}

} // namespace ornavel::win32
