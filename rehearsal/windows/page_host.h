#pragma once

#include "rehearsal/options_dialog.h"
#include "rehearsal/windows/page_site.h"
#include "win32/property_page.h"

namespace ornavel::rehearsal {

/// A dialog without anything of its own, with the page in it, as large as the mail client's. It is there as
/// long as this is kept. Throws host::Error where the page can't be shown.
class PageHost final : public HostedPage {
public:
    PageHost(IUnknown* page, std::function<void()> on_status_change);
    ~PageHost() override;
    PageHost(const PageHost&) = delete;
    PageHost& operator=(const PageHost&) = delete;

    void take(const Step& step) override;
    bool is_dirty() override;
    void apply() override;

    HWND dialog() const { return dialog_; }
    /// The page's own window.
    HWND window() const;
    IOleObject& control() const { return *control_.get(); }
    PageSite& site() const { return *site_.get(); }
    /// The dialog gives the page the keyboard, on the way of this key.
    void enter(MSG& key);
    /// Whether the page has used the key.
    bool takes_key(MSG& key) const;

private:
    void do_verb(LONG verb, MSG* key);

    HWND dialog_;
    win32::ComPtr<PageSite> site_;
    win32::ComPtr<IOleObject> control_;
    win32::ComPtr<win32::PropertyPage> page_;
};

} // namespace ornavel::rehearsal
