#include "rehearsal/windows/page_host.h"

#include "forms/screen_place.h"
#include "rehearsal/windows/form_hand.h"
#include "win32/dispatch_object.h"
#include "win32/twips.h"

namespace ornavel::rehearsal {
namespace {

HWND make_dialog() {
    const win32::Scale scale = win32::Scale::of_screen();
    RECT desk;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &desk, 0);
    const RECT place = scale.pixels(forms::centred({0, 0, page_width, page_height}, scale.twips(desk)));
    return CreateWindowExW(WS_EX_CONTROLPARENT, L"STATIC", L"Options", WS_POPUP | WS_VISIBLE, place.left,
                           place.top, place.right - place.left, place.bottom - place.top, nullptr, nullptr,
                           nullptr, nullptr);
}

/// What a step has caused may still be on its way.
void let_messages_arrive() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

} // namespace

PageHost::PageHost(IUnknown* page, std::function<void()> on_status_change)
    : dialog_(make_dialog()),
      site_(win32::ComPtr<PageSite>::adopt(new PageSite(dialog_, std::move(on_status_change)))) {
    win32::check(page->QueryInterface(IID_IOleObject, control_.out_untyped()));
    win32::check(page->QueryInterface(win32::IID_PropertyPage, page_.out_untyped()));
    win32::check(control_->SetClientSite(site_.get()));
    do_verb(OLEIVERB_INPLACEACTIVATE, nullptr);
}

PageHost::~PageHost() {
    if (control_) {
        control_->Close(OLECLOSE_NOSAVE);
        control_->SetClientSite(nullptr);
    }
    DestroyWindow(dialog_);
}

void PageHost::do_verb(LONG verb, MSG* key) {
    RECT room;
    GetClientRect(dialog_, &room);
    win32::check(control_->DoVerb(verb, key, site_.get(), 0, dialog_, &room));
}

HWND PageHost::window() const {
    win32::ComPtr<IOleInPlaceObject> in_place;
    HWND window = nullptr;
    if (SUCCEEDED(control_->QueryInterface(IID_IOleInPlaceObject, in_place.out_untyped())))
        in_place->GetWindow(&window);
    return window;
}

void PageHost::take(const Step& step) {
    take_step_in_window(step, window());
    let_messages_arrive();
}

bool PageHost::is_dirty() {
    VARIANT_BOOL dirty = VARIANT_FALSE;
    win32::check(page_->get_Dirty(&dirty));
    return dirty == VARIANT_TRUE;
}

void PageHost::apply() { win32::check(page_->Apply()); }

void PageHost::enter(MSG& key) { do_verb(OLEIVERB_UIACTIVATE, &key); }

bool PageHost::takes_key(MSG& key) const {
    win32::ComPtr<IOleInPlaceActiveObject> active;
    return SUCCEEDED(control_->QueryInterface(IID_IOleInPlaceActiveObject, active.out_untyped())) &&
           active->TranslateAccelerator(&key) == S_OK;
}

} // namespace ornavel::rehearsal
