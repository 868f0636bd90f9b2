#include "win32/web_browser.h"

#include "host/browser.h"
#include "win32/browser_site.h"
#include "win32/dispatch_object.h"

namespace ornavel::win32 {
namespace {

constexpr CLSID CLSID_of_the_control{
    0x8856F961, 0x340A, 0x11D0, {0xA9, 0x6B, 0x00, 0xC0, 0x4F, 0xD7, 0x05, 0xA2}};

/// The control may keep the site a while longer; the site then has no control any more.
void close(BrowserSite* site) {
    if (site->control) {
        site->control->Close(OLECLOSE_NOSAVE);
        site->control->SetClientSite(nullptr);
        site->control = {};
    }
    site->Release();
}

} // namespace

WebBrowser::WebBrowser(HWND window) : site_(new BrowserSite(window), close) {
    ComPtr<IOleObject> control;
    check(CoCreateInstance(CLSID_of_the_control, nullptr, CLSCTX_INPROC_SERVER, IID_IOleObject,
                           control.out_untyped()));
    site_->control = control;
    check(control->SetClientSite(site_.get()));
    const RECT area = site_->area();
    check(control->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, site_.get(), 0, window, &area));
}

WebBrowser::~WebBrowser() = default;

void WebBrowser::show(TextView page) { host::Browser(object_of(site_->control.get())).navigate(page); }

void WebBrowser::fill_window() {
    ComPtr<IOleInPlaceObject> in_place;
    check(site_->control->QueryInterface(IID_IOleInPlaceObject, in_place.out_untyped()));
    const RECT area = site_->area();
    check(in_place->SetObjectRects(&area, &area));
}

} // namespace ornavel::win32
