// How a page comes to stand in a window of its container, and how the keyboard goes in and out.
#include "win32/page_control.h"

namespace ornavel::win32 {
namespace {

bool is_shift_tab(const MSG* message) {
    return message && message->message == WM_KEYDOWN && message->wParam == VK_TAB &&
           GetKeyState(VK_SHIFT) < 0;
}

/// As IOleControlSite wants to be told of them.
DWORD held_keys() {
    constexpr DWORD shift = 1, control = 2, alt = 4;
    return (GetKeyState(VK_SHIFT) < 0 ? shift : 0) | (GetKeyState(VK_CONTROL) < 0 ? control : 0) |
           (GetKeyState(VK_MENU) < 0 ? alt : 0);
}

} // namespace

ComPtr<IOleInPlaceSite> PageControl::in_place_site() const {
    ComPtr<IOleInPlaceSite> site;
    if (site_) site_->QueryInterface(IID_IOleInPlaceSite, site.out_untyped());
    return site;
}

HRESULT PageControl::show(HWND parent, const RECT* place) {
    if (window_) return S_OK;
    const auto site = in_place_site();
    if (!site || site->CanInPlaceActivate() != S_OK) return E_FAIL;
    site->OnInPlaceActivate();
    RECT given{}, clip{};
    OLEINPLACEFRAMEINFO information{};
    information.cb = sizeof information;
    ComPtr<IOleInPlaceUIWindow> document;
    frame_ = {};
    const HRESULT told = site->GetWindowContext(frame_.out(), document.out(), &given, &clip, &information);
    if (FAILED(told) && !place) return told;
    if (FAILED(site->GetWindow(&parent)) && !parent) return E_FAIL;
    const bool shown = attempt([&] {
        auto window = std::make_unique<FormWindow>(form());
        window->open_within(parent, SUCCEEDED(told) ? given : *place, [this] { enter(); });
        window_ = std::move(window);
    });
    if (!shown) return E_FAIL;
    if (site_) site_->ShowObject();
    return S_OK;
}

/// The page has the keyboard now: keys come by way of the container.
void PageControl::enter() {
    if (std::exchange(has_keyboard_, true)) return;
    if (const auto site = in_place_site()) site->OnUIActivate();
    if (frame_) frame_->SetActiveObject(this, nullptr);
}

HRESULT PageControl::take_keyboard(const MSG* message) {
    if (!window_) return E_UNEXPECTED;
    enter();
    window_->take_keyboard(is_shift_tab(message));
    return S_OK;
}

HRESULT PageControl::UIDeactivate() {
    if (!std::exchange(has_keyboard_, false)) return S_OK;
    if (frame_) frame_->SetActiveObject(nullptr, nullptr);
    if (const auto site = in_place_site()) site->OnUIDeactivate(FALSE);
    return S_OK;
}

HRESULT PageControl::InPlaceDeactivate() {
    if (!window_) return S_OK;
    const ComPtr<IOleObject> kept(this);
    UIDeactivate();
    end_window();
    if (const auto site = in_place_site()) site->OnInPlaceDeactivate();
    return S_OK;
}

void PageControl::end_window() noexcept {
    has_keyboard_ = false;
    frame_ = {};
    window_.reset();
}

HRESULT PageControl::GetWindow(HWND* window) {
    if (!window) return E_POINTER;
    *window = window_ ? window_->window() : nullptr;
    return *window ? S_OK : E_FAIL;
}

HRESULT PageControl::SetObjectRects(LPCRECT place, LPCRECT) {
    if (!place) return E_POINTER;
    if (window_) attempt([&] { window_->move(*place); });
    return S_OK;
}

/// What the page has no use for is its container's, the Tab key where it leads out among it.
HRESULT PageControl::TranslateAccelerator(LPMSG message) {
    if (!message) return E_POINTER;
    bool used = false;
    if (window_) attempt([&] { used = window_->takes_key(*message); });
    if (used) return S_OK;
    ComPtr<IOleControlSite> site;
    if (!site_ || FAILED(site_->QueryInterface(IID_IOleControlSite, site.out_untyped()))) return S_FALSE;
    return site->TranslateAccelerator(message, held_keys());
}

/// The container looks for the keys by the sign that is typed, so each stands there in both its spellings.
HRESULT PageControl::GetControlInfo(CONTROLINFO* information) {
    if (!information) return E_POINTER;
    const bool told = attempt([&] {
        std::vector<ACCEL> keys;
        for (const forms::Control& control : form().controls())
            if (const auto key = forms::access_key_of(control))
                for (const Text& spelled : {Text(1, *key), upper_case(Text(1, *key))})
                    keys.push_back({FALT, spelled.front(), 0});
        const int count = static_cast<int>(keys.size());
        access_keys_.reset(CreateAcceleratorTableW(keys.data(), count));
        information->hAccel = access_keys_.get();
        information->cAccel = static_cast<USHORT>(access_keys_ ? count : 0);
        information->dwFlags = 0;
    });
    return told ? S_OK : E_OUTOFMEMORY;
}

/// A key that was pressed elsewhere in the container.
HRESULT PageControl::OnMnemonic(LPMSG message) {
    if (!message || !window_) return E_UNEXPECTED;
    bool used = false;
    attempt([&] { used = window_->takes_key_from_outside(*message); });
    return used ? S_OK : S_FALSE;
}

} // namespace ornavel::win32
